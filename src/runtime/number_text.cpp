#include "runtime/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "runtime/arithmetic.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view WithoutBlanks(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// from_chars takes a minus but no plus.
std::string_view WithoutPlus(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

// Whether a number outside the range of a double is too small, and not too large. The power of ten
// of its first digit tells.
bool IsTooSmall(std::string_view number) {
  const std::string_view digits = number.substr(0, number.find_first_of("eE"));
  std::string_view exponent = number.substr(std::min(digits.size() + 1, number.size()));
  if (exponent.starts_with('+')) exponent.remove_prefix(1);
  long long power = 0;
  const auto [end, error] =
      std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  // No text has enough digits to make up for such an exponent.
  if (error == std::errc::result_out_of_range) return exponent.starts_with('-');
  const auto point = static_cast<long long>(std::min(digits.find('.'), digits.size()));
  return power + point < static_cast<long long>(digits.find_first_of("123456789"));
}

// to_chars and not the printf family, which would take a decimal comma from the locale.
std::string Fixed(float value, int decimals) {
  std::array<char, 128> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                    std::chars_format::fixed, decimals);
  return {text.data(), result.ptr};
}

// The power of ten at which the digits of a 32-bit size begin, 6 for all above it too. The tenths
// are off a little, but no 32-bit number lies between them and the exact ones.
int LeadingPlace(double size) {
  int place = 0;
  if (size == 0) return place;
  for (double ten = 10; place < 6 && size >= ten; ten *= 10) ++place;
  for (double tenth = 1; size < tenth; tenth /= 10) --place;
  return place;
}

}  // namespace

double LenientNumber(std::string_view text) {
  text = WithoutPlus(WithoutLeadingBlanks(text));
  double value = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && std::isfinite(value) ? value : 0.0;
}

Int16 StrictInt16(std::string_view text) {
  const std::string_view number = WithoutPlus(WithoutBlanks(text));
  std::int16_t value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc() || end != number.data() + number.size()) FailConversion(text);
  return value;
}

Int16 RoundedInt16(std::string_view text) {
  const std::string_view number = WithoutPlus(WithoutBlanks(text));
  double value = 0.0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (end != number.data() + number.size()) FailConversion(text);
  if (error == std::errc::result_out_of_range && IsTooSmall(number)) return 0;
  if (error != std::errc() || !std::isfinite(value)) FailConversion(text);
  // Reported by its text, which the user knows; 32767.5 would round up to the even neighbour.
  if (value < -32768.5 || value >= 32767.5) FailConversion(text);
  return RoundToInt16(value);
}

std::string SingleText(double value) {
  const auto single = static_cast<float>(value);
  return Fixed(single, std::max(0, 6 - LeadingPlace(std::fabs(single))));
}

std::string TwoDecimals(double value) {
  const auto single = static_cast<float>(value);
  std::string digits = Fixed(std::fabs(single), 2);
  if (digits.find('.') == 1) digits.insert(0, "0");
  const bool is_zero = digits.find_first_not_of("0.") == std::string::npos;
  return single < 0.0F && !is_zero ? "-" + digits : digits;
}

std::string Com2Pnt(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

}  // namespace orvane
