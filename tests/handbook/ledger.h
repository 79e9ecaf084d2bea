// Keeps account of a page: which of its numbers and of its words about shape a test has worked out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class Ledger {
 public:
  // The page, or a piece of its text. What stands between back quotes, in targets of links and in
  // headings is no claim.
  static Ledger OfPage(std::string_view path);
  explicit Ledger(const std::string& text);

  // The page must say this, wherever its lines break; every place where it does is accounted for.
  void Says(std::string_view phrase);
  // The same, with a link to docs/sources.md in the same sentence or the one behind it.
  void SaysBySource(std::string_view phrase);
  bool Has(std::string_view phrase) const;

  // Numbers, counts in words from two on, and words about shape that nobody has accounted for, each
  // with its neighbours.
  std::vector<std::string> Unaccounted() const;

 private:
  std::string text_;  // in one line
  std::vector<bool> accounted_;
};

// "two" of 2, up to twenty.
std::string CountWord(std::size_t count);
std::string Capital(std::string word);

}  // namespace orvane
