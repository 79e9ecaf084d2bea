// The units of the reference tables, and where an atom of a unit is at a level of its chain.
#pragma once

#include <map>
#include <string>

#include "stock_maker/point.h"
#include "stock_maker/table.h"

namespace orvane::stock_maker {

// The atoms of one unit by their names in the tables.
using Unit = std::map<std::string, Point>;

struct Units {
  std::map<std::string, Unit> atoms;  // helix, strand, flat, bdna, its bases A C G T, 5MP, RIB, PHS
  Table places;                       // screws and copy operations, by place
};

// Reads the unit tables and places.tsv of a folder.
void ReadUnits(Units& units, const std::string& folder);

// Where an atom is. `base` is the residue's base letter, or blank if it is not a nucleotide. An
// atom that the unit lacks is looked for in the base. If neither has it, the message names `asker`.
Point PlaceAtom(const Units& units, const std::string& place, int level, char base,
                const std::string& atom, const std::string& asker);

}  // namespace orvane::stock_maker
