// docs/structures.md, taken apart: a piece for each row of the four lists.
#pragma once

#include <string>
#include <vector>

namespace orvane {

// One row: what is said of it, and the three lines below that, without their heads.
struct RowOnPage {
  std::string Title, Key, Text, Look, Measure, Doubt;
};

std::vector<RowOnPage> RowsOnPage();

// What stands between the marks.
std::vector<std::string> SplitAt(const std::string& text, const std::string& mark);

}  // namespace orvane
