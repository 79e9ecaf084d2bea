#include "handbook/measured.h"

#include <cmath>
#include <gtest/gtest.h>

#include "stock_check/geometry.h"
#include "stock_check/published.h"

namespace orvane {

const std::vector<StockRow>& AllRows() {
  static const std::vector<StockRow> rows = stock_check::StockRows();
  return rows;
}

const StockRow& RowOf(std::string_view key) {
  for (const StockRow& row : AllRows()) {
    if (row.Key == key) return row;
  }
  ADD_FAILURE() << "no row " << key;
  return AllRows().front();
}

Point PlaceOf(const StockRow& row, std::string_view atom) {
  const std::size_t colon = atom.find(':');
  const int found =
      colon == std::string_view::npos
          ? row.Find(atom)
          : row.Find(std::stoi(std::string(atom.substr(0, colon))), atom.substr(colon + 1));
  EXPECT_GE(found, 0) << "no atom " << atom << " in " << row.Key;
  return found < 0 ? Point() : row.At(found);
}

std::vector<Point> PlacesOf(const StockRow& row, std::string_view atoms) {
  std::vector<Point> places;
  for (const std::string& name : stock_check::NamesIn(atoms)) places.push_back(PlaceOf(row, name));
  return places;
}

double Measured(const StockRow& row, std::string_view atoms) {
  const std::vector<Point> at = PlacesOf(row, atoms);
  if (at.size() == 2) return Apart(at[0], at[1]);
  if (at.size() == 3) return AngleAt(at[0], at[1], at[2]);
  return TorsionOf(at[0], at[1], at[2], at[3]);
}

double Measured(std::string_view key, std::string_view atoms) {
  return Measured(RowOf(key), atoms);
}

double PublishedMean(std::string_view residue, std::string_view atoms) {
  for (const stock_check::Published& row : stock_check::PublishedOf(residue)) {
    if (row.Atoms == atoms) return row.Mean;
  }
  ADD_FAILURE() << "nothing published of " << atoms << " in " << residue;
  return 0;
}

double Folded(double torsion) {
  const double size = std::abs(torsion);
  return size < 90 ? 180 - size : size;
}

}  // namespace orvane
