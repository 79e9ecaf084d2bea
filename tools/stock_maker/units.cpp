#include "stock_maker/units.h"

namespace orvane::stock_maker {

namespace {

Point CylindricalField(const Row& row) {
  return Cylindrical(Number(row, "r"), Number(row, "theta"), Number(row, "z"));
}

const Point& AtomOf(const Unit& unit, const Row& row, const char* column) {
  const auto found = unit.find(Field(row, column));
  if (found == unit.end()) Refuse(row.place, "no atom " + Field(row, column) + " before this row");
  return found->second;
}

// The first three atoms of a unit have nothing to refer to: they go to 0, along x, and into the
// plane of x and y. The picture turns them anyway.
Point InternalField(const Unit& unit, const Unit& joined, const Row& row) {
  if (Field(row, "on") == "-") return {};
  const Point& on = AtomOf(unit, row, "on");
  const double length = Number(row, "length");
  if (Field(row, "ang") == "-") return on + Point{length, 0, 0};
  const Point& ang = AtomOf(unit, row, "ang");
  const double angle = Number(row, "angle");
  if (Field(row, "tor") == "-") {
    return Attached(on, ang, ang + Point{0, 1, 0}, length, angle, 0);
  }
  const Point& tor = AtomOf(unit, row, "tor");
  const double torsion = Field(row, "torsion") == "unit"
                             ? Torsion(tor, ang, on, AtomOf(joined, row, "atom"))
                             : Number(row, "torsion");
  return Attached(on, ang, tor, length, angle, torsion);
}

const Row& PlaceRow(const Table& places, const std::string& place, const std::string& asker) {
  for (const Row& row : places.rows) {
    if (Field(row, "place") == place) return row;
  }
  Refuse(asker, "no place " + place);
}

}  // namespace

void ReadUnits(Units& units, const std::string& folder) {
  Table table;
  ReadTableFile(table, folder, "peptide_units.tsv");
  for (const Row& row : table.rows) {
    units.atoms[Field(row, "chain")][Field(row, "atom")] = CylindricalField(row);
  }
  ReadTableFile(table, folder, "sheet_unit.tsv");
  for (const Row& row : table.rows) {
    units.atoms["flat"][Field(row, "atom")] = {Number(row, "x"), Number(row, "y"),
                                               Number(row, "z")};
  }
  ReadTableFile(table, folder, "bdna_helix.tsv");
  for (const Row& row : table.rows) {
    const std::string& group = Field(row, "group");
    units.atoms[group == "backbone" ? "bdna" : group][Field(row, "atom")] = CylindricalField(row);
  }
  // The monophosphate replaces the phosphate on the same sugar.
  const Unit backbone = units.atoms["bdna"];
  units.atoms["5MP"] = backbone;
  ReadTableFile(table, folder, "internal_coordinates.tsv");
  for (const Row& row : table.rows) {
    Unit& unit = units.atoms[Field(row, "unit")];
    unit[Field(row, "atom")] = InternalField(unit, backbone, row);
  }
  ReadTableFile(units.places, folder, "places.tsv");
}

Point PlaceAtom(const Units& units, const std::string& place, int level, char base,
                const std::string& atom, const std::string& asker) {
  const Row& row = PlaceRow(units.places, place, asker);
  const Unit& unit = units.atoms.at(Field(row, "unit"));
  auto found = unit.find(atom);
  if (found == unit.end() && base != ' ') {
    const Unit& base_unit = units.atoms.at(std::string(1, base));
    found = base_unit.find(atom);
    if (found == base_unit.end()) Refuse(asker, "neither sugar nor base has an atom " + atom);
  } else if (found == unit.end()) {
    Refuse(asker, "the unit has no atom " + atom);
  }

  const std::string& way = Field(row, "way");
  const double rise = Number(row, "rise");
  Point at = found->second;
  if (way == "dyad") at = {at.x, -at.y, -at.z};
  at = Turned(at, 'z', Number(row, "turn") * level) + Point{0, 0, rise * level};
  if (way == "beside") at.x += Number(row, "shift");
  if (way == "facing") {
    const double axis = Number(row, "fold") + rise * (Whole(row, "partner") - 1);
    at = {Number(row, "shift") - at.x, at.y, 2 * axis - at.z};
  }
  return at;
}

}  // namespace orvane::stock_maker
