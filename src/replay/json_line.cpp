#include "replay/json_line.h"

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace orvane {

void AppendNumber(std::string& line, double value, int digits) {
  if (!std::isfinite(value)) {
    line += "null";
    return;
  }
  std::array<char, 40> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::general, digits);
  line.append(text.data(), end);
}

void AppendText(std::string& line, std::string_view text) {
  using Json = nlohmann::json;
  line += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string TextInQuotes(std::string_view text) {
  std::string quoted;
  AppendText(quoted, text);
  return quoted;
}

std::string& ObjectLine::Name(std::string_view name) {
  if (Text.size() > 1) Text += ',';
  AppendText(Text, name);
  Text += ':';
  return Text;
}

}  // namespace orvane
