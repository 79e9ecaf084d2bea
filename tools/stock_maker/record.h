// One atom record of 55 characters.
#pragma once

#include <string>

#include "stock_maker/point.h"

namespace orvane::stock_maker {

inline constexpr std::size_t kRecordLength = 55;

struct AtomRecord {
  int serial = 0;
  std::string atom;     // one to three characters, from column 14 on
  std::string residue;  // one to three characters, right-aligned
  char chain = ' ';
  int number = 0;  // of the residue
  Point at;        // Angstrom, written with three decimals
};

//          1         2         3         4         5
// 123456789012345678901234567890123456789012345678901234 5
// ATOM      1  N   GLY     1      11.140   8.020   1.544
//
// The record with its closing blank. A field that overflows its columns is refused, and the message
// names the record. Coordinates are rounded to the nearest thousandth and never read "-0.000".
std::string WriteRecord(const AtomRecord& record);

}  // namespace orvane::stock_maker
