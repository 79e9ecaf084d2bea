// Small builders of molecule texts, for any test that needs its own structure.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "core/loader.h"

namespace orvane {

struct RecordRest {
  std::string_view Residue = "GLY";
  int Seq = 1;
  int Serial = 1;
  char Chain = ' ';
};

// One record with its closing blank: Record("CA", 1.0, 0.0, 0.0) is an atom whose name field is
// "  CA ". A shorter residue name is aligned to the right, as a nucleotide's is. Tests run in the
// plain locale, so decimals have a point.
inline std::string Record(std::string_view name, double x, double y, double z,
                          RecordRest rest = {}) {
  char text[96];
  std::snprintf(text, sizeof text, "ATOM%7d  %-3.3s %3.3s %c%4d    %8.3f%8.3f%8.3f ", rest.Serial,
                std::string(name).c_str(), std::string(rest.Residue).c_str(), rest.Chain, rest.Seq,
                x, y, z);
  return text;
}

// Loads a text as a selection does, but does nothing else of a selection.
inline void Load(Orvane_Desk& desk, std::string text) {
  ClearBondTables(desk.molecule);
  desk.molecule.MolText = std::move(text);
  desk.molecule.MoleculeReady = 1;
  LoadMolecule(desk);
}

}  // namespace orvane
