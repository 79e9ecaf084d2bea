// The sheet behind F1: the keys, what the colours stand for, and how to look at a pair of views. It
// is made from the tables that the program works by.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "runtime/colour.h"

namespace orvane {

struct SheetRow {
  std::string Head;  // a key, "Left or Up"; or the name beside a swatch
  std::string Words;
  std::optional<Colour> Swatch;
};

struct SheetSection {
  std::string Heading;
  std::vector<SheetRow> Rows;
  std::vector<std::string> Texts;  // paragraphs
};

inline constexpr const char* kSheetTitle = "Keys and colours";

std::vector<SheetSection> KeySheet();

// The whole sheet as plain text, one line for each row: what a screen reader reads.
std::string KeySheetText();

}  // namespace orvane
