// All that is measured on a row, compared with what chemistry requires.
#pragma once

#include <string>
#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

struct Verdict {
  std::vector<std::string> Found;  // what was measured, one line for each subject
  std::vector<std::string> Wrong;  // what is not as it must be
};

// Bonds, contacts and hands of every row; lengths, angles and flatness of what is built from
// published geometry; sugars, torsions of chains, hydrogen bonds, base pairs. The positions of the
// amino acids are the generator's, so their lengths and angles are measured but not judged:
// docs/bends.md says what is bent in them.
Verdict CheckRow(const StockRow& row);

// The torsion of a chain at a residue, by the names of its atoms: + is the next residue, - the one
// before. Not a number if an atom is missing.
double TorsionAt(const StockRow& row, int residue, std::string_view atoms);

// The sugar of a residue, also of ribose and deoxyribose.
struct SugarShape {
  double Phase = 0, Amplitude = 0;
};
SugarShape SugarOf(const StockRow& row, int residue);

}  // namespace orvane::stock_check
