#include "narration/number_words.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orvane {
namespace {

constexpr double kTenths = 10;

std::string WithTrueMinus(std::string_view digits) {
  if (!digits.starts_with('-')) return std::string(digits);
  return "−" + std::string(digits.substr(1));
}

}  // namespace

std::string NumberWords(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return WithTrueMinus({digits.data(), end.ptr});
}

std::string DegreeWords(double degrees) {
  double rounded = std::round(degrees * kTenths) / kTenths;
  if (rounded == 0) rounded = 0;  // no minus before a zero
  if (rounded == -180) rounded = 180;
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded,
                                 std::chars_format::fixed, 1);
  return WithTrueMinus({digits.data(), end.ptr}) + "°";
}

std::string LengthWords(double angstrom) { return NumberWords(angstrom) + " Å"; }

}  // namespace orvane
