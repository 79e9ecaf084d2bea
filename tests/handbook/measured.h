// The atoms of all rows, for the tests that hold a page against them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stock_check/fixed.h"
#include "stock_check/stock_row.h"

namespace orvane {

using stock_check::Fixed;
using stock_check::StockRow;

const std::vector<StockRow>& AllRows();
const StockRow& RowOf(std::string_view key);

// Atoms are named "CA", or with their residue "3:CA", with blanks between.
Point PlaceOf(const StockRow& row, std::string_view atom);
std::vector<Point> PlacesOf(const StockRow& row, std::string_view atoms);
// Two atoms: their distance. Three: the angle at the middle one. Four: the torsion.
double Measured(std::string_view key, std::string_view atoms);
double Measured(const StockRow& row, std::string_view atoms);
// The published mean of a length or an angle of an amino acid.
double PublishedMean(std::string_view residue, std::string_view atoms);
// What the panel makes of a torsion's size.
double Folded(double torsion);

}  // namespace orvane
