// The atom record: 55 characters, laid back to back in a molecule text with nothing between them.
#pragma once

#include <algorithm>
#include <string_view>

#include "runtime/int16.h"

namespace orvane {

// The last column is a blank that separates the record from the next one; the last record of a text
// may lack it. The first record that does not begin with "AT" ends the structure, and so does the
// end of the text.
//
//            1         2         3         4         5
//   1234567890123456789012345678901234567890123456789012345
//   ATOM      2  CA  GLY     1      10.466   6.872   2.145
//       serial  name res  number    x       y       z
inline constexpr int kRecordWidth = 55;

struct RecordField {
  int Column, Width;  // column of the first character, from 1
};
inline constexpr RecordField kRecordType = {1, 2};
inline constexpr RecordField kAtomNameField = {12, 5};
inline constexpr RecordField kResNameField = {18, 3};
inline constexpr RecordField kResSeqField = {23, 4};
inline constexpr RecordField kXField = {31, 8};
inline constexpr RecordField kYField = {39, 8};
inline constexpr RecordField kZField = {47, 8};

// The characters from a position on, counted from 1: fewer or none where the text is too short.
constexpr std::string_view Mid(std::string_view text, int position, int width) {
  const auto from = std::min(static_cast<std::size_t>(position - 1), text.size());
  return text.substr(from, static_cast<std::size_t>(width));
}
constexpr std::string_view Cut(std::string_view record, RecordField field) {
  return Mid(record, field.Column, field.Width);
}
constexpr bool IsAtomRecord(std::string_view record) { return Cut(record, kRecordType) == "AT"; }

// Steps from record to record, numbered from 1; `position` is where the previous record begins. The
// position has 16 bits, so the step to the 597th record fails, and no structure can have more than
// 596. The end of the text is found from the last record and gives an empty one.
constexpr std::string_view StepToRecord(std::string_view text, int number, Int16& position) {
  if (number > 1) {
    if (static_cast<std::size_t>(position) + kRecordWidth > text.size()) return {};
    position += kRecordWidth;
  }
  return Mid(text, position, kRecordWidth);
}

}  // namespace orvane
