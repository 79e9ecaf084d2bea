#include "handbook/ledger.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "house/source_tree.h"

namespace orvane {
namespace {

constexpr std::array<std::string_view, 21> kCounts{
    "none",     "one",     "two",     "three",     "four",     "five",     "six",
    "seven",    "eight",   "nine",    "ten",       "eleven",   "twelve",   "thirteen",
    "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen", "twenty"};

constexpr auto kShapes = std::to_array<std::string_view>(
    {"flat", "plane", "planes", "staggered", "clockwise", "right-handed", "left-handed", "trans",
     "cis", "bent", "anti", "upright", "tetrahedron", "C2'-endo", "C3'-endo", "straight",
     "twisted"});

std::string InOneLine(const std::string& text) {
  std::istringstream lines(text);
  std::string all;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#")) continue;
    std::istringstream words(line);
    bool first = true;
    for (std::string word; words >> word; first = false) {
      // The number of a step or of an item of a list, as "**7.**" or "7." at the head of a line.
      const bool counts = std::regex_match(word, std::regex(R"(\*\*[0-9]+\.\*\*)")) ||
                          (first && std::regex_match(word, std::regex(R"([0-9]+\.)")));
      if (!counts) all += (all.empty() ? "" : " ") + word;
    }
  }
  return all;
}

// Without what clings to a word: brackets, stops, marks of emphasis.
std::string Bare(std::string_view word) {
  const auto clings = [](char c) {
    return std::string_view("(),.;:*|?[]").find(c) != std::string_view::npos;
  };
  while (!word.empty() && clings(word.front())) word.remove_prefix(1);
  while (!word.empty() && clings(word.back())) word.remove_suffix(1);
  return std::string(word);
}

bool IsNumber(std::string_view word) {
  if (!word.empty() && (word.front() == '+' || word.front() == '-')) word.remove_prefix(1);
  if (word.empty() || !std::isdigit(static_cast<unsigned char>(word.front()))) return false;
  return word.find_first_not_of("0123456789.") == std::string_view::npos;
}

bool IsClaim(std::string word) {
  if (IsNumber(word)) return true;
  if (std::find(kShapes.begin(), kShapes.end(), word) != kShapes.end()) return true;
  word.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(word.front())));
  const auto count = std::find(kCounts.begin(), kCounts.end(), word);
  return count != kCounts.end() && count - kCounts.begin() >= 2;
}

}  // namespace

Ledger Ledger::OfPage(std::string_view path) {
  const std::string text = house::ReadProjectFile(path);
  EXPECT_FALSE(text.empty()) << path;
  return Ledger(text);
}

Ledger::Ledger(const std::string& text) : text_(InOneLine(text)), accounted_(text_.size()) {
  bool quoted = false, target = false, picture = false;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_.compare(i, 2, "![") == 0) picture = true;
    if (text_[i] == '`') quoted = !quoted;
    if (text_[i] == '(' && i > 0 && text_[i - 1] == ']') target = true;
    accounted_[i] = quoted || target || picture;
    if (text_[i] == ')') target = picture = false;
  }
}

bool Ledger::Has(std::string_view phrase) const { return text_.find(phrase) != std::string::npos; }

void Ledger::Says(std::string_view phrase) {
  std::size_t at = text_.find(phrase);
  EXPECT_NE(at, std::string::npos) << "the page does not say: " << phrase;
  for (; at != std::string::npos; at = text_.find(phrase, at + 1)) {
    std::fill_n(accounted_.begin() + static_cast<std::ptrdiff_t>(at), phrase.size(), true);
  }
}

void Ledger::SaysBySource(std::string_view phrase) {
  Says(phrase);
  const std::size_t at = text_.find(phrase);
  if (at == std::string::npos) return;
  std::size_t end = text_.find(". ", at + phrase.size());
  end = text_.find(". ", std::min(end, text_.size() - 1) + 1);
  const std::string sentence = text_.substr(at, std::min(end, text_.size()) - at);
  EXPECT_NE(sentence.find("sources.md#"), std::string::npos) << "no source behind: " << phrase;
}

std::vector<std::string> Ledger::Unaccounted() const {
  std::vector<std::string> found;
  std::size_t from = 0;
  while (from < text_.size()) {
    const std::size_t end = std::min(text_.find(' ', from), text_.size());
    const std::string word = Bare(std::string_view(text_).substr(from, end - from));
    if (!word.empty() && IsClaim(word)) {
      const std::size_t at = text_.find(word, from);
      if (!accounted_[at]) {
        const std::size_t near = at > 50 ? at - 50 : 0;
        found.push_back(word + "   in: " + text_.substr(near, 110));
      }
    }
    from = end + 1;
  }
  return found;
}

std::string CountWord(std::size_t count) { return std::string(kCounts.at(count)); }

std::string Capital(std::string word) {
  word.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(word.front())));
  return word;
}

}  // namespace orvane
