#include "stock_maker/table.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>

namespace orvane::stock_maker {

namespace {

std::vector<std::string> Parted(std::string_view line, char at) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end = line.find(at); end != std::string_view::npos; end = line.find(at, start)) {
    parts.emplace_back(line.substr(start, end - start));
    start = end + 1;
  }
  parts.emplace_back(line.substr(start));
  return parts;
}

template <class T>
T Read(const Row& row, std::string_view column) {
  const std::string& text = Field(row, column);
  T value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    Refuse(row.place, "\"" + text + "\" in column " + std::string(column) + " is no number");
  }
  return value;
}

}  // namespace

void Refuse(const std::string& place, const std::string& why) { throw Refusal(place + ": " + why); }

void ReadTable(Table& table, std::string name, std::string_view text) {
  table.name = std::move(name);
  table.columns.clear();
  table.rows.clear();
  int line_number = 0;
  for (const std::string& line : Parted(text, '\n')) {
    ++line_number;
    if (line.empty() || line.front() == '#') continue;
    std::vector<std::string> fields = Parted(line, '\t');
    const std::string place = table.name + ", line " + std::to_string(line_number);
    if (table.columns.empty()) {
      table.columns = std::move(fields);
      continue;
    }
    if (fields.size() != table.columns.size()) {
      Refuse(place, std::to_string(fields.size()) + " fields for " +
                        std::to_string(table.columns.size()) + " columns");
    }
    table.rows.push_back({place, &table.columns, std::move(fields)});
  }
}

void ReadTableFile(Table& table, const std::string& folder, const std::string& name) {
  std::ifstream file(folder + "/" + name, std::ios::binary);
  if (!file) Refuse(folder + "/" + name, "cannot be read");
  std::ostringstream text;
  text << file.rdbuf();
  ReadTable(table, name, text.str());
}

const std::string& Field(const Row& row, std::string_view column) {
  const auto found = std::find(row.columns->begin(), row.columns->end(), column);
  if (found == row.columns->end()) Refuse(row.place, "no column " + std::string(column));
  return row.fields[static_cast<std::size_t>(found - row.columns->begin())];
}

double Number(const Row& row, std::string_view column) { return Read<double>(row, column); }

int Whole(const Row& row, std::string_view column) { return Read<int>(row, column); }

std::vector<std::string> Words(const Row& row, std::string_view column) {
  std::vector<std::string> words = Parted(Field(row, column), ' ');
  std::erase(words, "");
  return words;
}

}  // namespace orvane::stock_maker
