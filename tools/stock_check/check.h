// All that is measured on a row, held against what chemistry asks for.
#pragma once

#include <string>
#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

struct Verdict {
  std::vector<std::string> Found;  // what was measured, a line a subject
  std::vector<std::string> Wrong;  // what is not as it must be
};

// Bonds, contacts and hands of every row; lengths, angles and flatness of what is built from
// published geometry; sugars, torsions of chains, hydrogen bonds, base pairs. Of the amino acids,
// whose places are the generator's, lengths and angles are measured and not judged: what is bent in
// them stands in docs/bends.md.
Verdict CheckRow(const StockRow& row);

// The torsion of a chain at a residue, by the names of its atoms: + is the next residue, - the one
// before. Not a number where an atom is missing.
double TorsionAt(const StockRow& row, int residue, std::string_view atoms);

// The sugar of a residue; of ribose and deoxyribose as well.
struct SugarShape {
  double Phase = 0, Amplitude = 0;
};
SugarShape SugarOf(const StockRow& row, int residue);

}  // namespace orvane::stock_check
