// Where the program takes its mathematics from: what compilers and C libraries compute each in
// their own way may not decide a stroke, a number or a word.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

// Functions of <cmath> whose last bit is nobody's promise. Those that give the exact result, or
// that nearest to it, are everybody's: sqrt, floor, fmod, remainder, lround and their like. The
// product that is summed at once, fma, is exact too, but slow where the processor has none.
const std::string kInexact =
    "sin|cos|tan|asin|acos|atan|atan2|sincos|sinh|cosh|tanh|asinh|acosh|atanh|exp|exp2|exp10|expm1|"
    "log|log2|log10|log1p|pow|cbrt|hypot|erf|erfc|tgamma|lgamma|fma|polar|beta|riemann_zeta|"
    "legendre";

// The files that may use them, and why.
struct Exception {
  std::string_view File, Reason;
};
constexpr Exception kExceptions[] = {
    {"colour_difference", "how far apart colours look; the program never asks, only a page does"},
    {"simulation", "how a colour looks to other eyes; the program never asks, only a page does"},
};

std::string Stem(const std::string& path) {
  const auto from = path.rfind('/') + 1;
  return path.substr(from, path.rfind('.') - from);
}

bool IsExcepted(const std::string& path) {
  return std::ranges::any_of(kExceptions, [&](const Exception& e) { return Stem(path) == e.File; });
}

// The skin of real windows draws its own icon; nothing of the desk hangs on that.
bool IsLogic(const std::string& path) { return RoomOf(path) != "desktop"; }

bool UsesInexact(std::string line) {
  static const std::regex qualified("::(" + kInexact + ")[fl]?\\b(?!::)");
  static const std::regex called("(^|[^A-Za-z0-9_.>:])(" + kInexact + ")[fl]? ?\\(");
  if (const auto comment = line.find("//"); comment != std::string::npos) line.resize(comment);
  return std::regex_search(line, qualified) || std::regex_search(line, called);
}

TEST(TheMathematics, OfTheLogicAreItsOwn) {
  for (const std::string& source : Sources()) {
    if (!IsLogic(source) || IsExcepted(source)) continue;
    std::istringstream text(ReadProjectFile("src/" + source));
    int number = 0;
    for (std::string line; std::getline(text, line);) {
      ++number;
      EXPECT_FALSE(UsesInexact(line)) << "src/" << source << ":" << number << ": " << line;
    }
  }
}

TEST(TheMathematics, AreKnownByTheirNames) {
  for (const char* line :
       {"x = std::sin(y);", "f(&std::atan2)", "x = ::cosf(y);", "  pow(x, 2);",
        "if (hypot (x, y) > 1)", "return -exp(x);", "__builtin_x + std::fma(x,"}) {
    EXPECT_TRUE(UsesInexact(line)) << line;
  }
  for (const char* line : {"x = Sine(y);", "// std::sin(y)", "std::sqrt(x)", "log.Append(x)",
                           "table.log(x)", "basin(x)", "std::expected<int>", "x->exp(2)"}) {
    EXPECT_FALSE(UsesInexact(line)) << line;
  }
}

TEST(TheMathematics, ExceptWhatIsThereAndUsesThem) {
  for (const Exception& exception : kExceptions) {
    EXPECT_TRUE(std::ranges::any_of(Sources(), [&](const std::string& source) {
      std::istringstream text(ReadProjectFile("src/" + source));
      for (std::string line; Stem(source) == exception.File && std::getline(text, line);) {
        if (UsesInexact(line)) return true;
      }
      return false;
    })) << exception.File;
  }
}

// The reason of both exceptions.
TEST(TheMathematics, OfTheExceptionsReachNothingElse) {
  for (const Inclusion& i : Inclusions()) {
    if (IsExcepted(i.From)) continue;
    EXPECT_FALSE(IsExcepted(i.Target)) << "src/" << i.From << ":" << i.Line << " " << i.Target;
  }
}

}  // namespace
}  // namespace orvane::house
