// A row of the four lists as a chemist sees it: its atoms as they were read, and the pairs that the
// program has joined.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/molecule.h"

namespace orvane::stock_check {

struct StockAtom {
  std::string Name;         // without its blanks: "CA"
  int Residue = 0;          // its number
  std::string ResidueName;  // as stored; GLY in every amino acid
  Point At;
};

struct AtomPair {
  int A = 0, B = 0;  // places in `Atoms`, A before B
};

struct StockRow {
  std::string List;  // the name of the list
  std::string Text;  // of the row: "ALA ALANINE (ALA A)"
  std::string Key;   // its first word
  std::vector<StockAtom> Atoms;
  std::vector<AtomPair> Joined;         // within the limit of a bond
  std::vector<AtomPair> HydrogenBonds;  // as the program lists them

  bool IsAminoAcid() const { return List == "AA_Lst"; }
  // The first atom of that name, in that residue if one is given. -1 if there is none.
  int Find(std::string_view name) const;
  int Find(int residue, std::string_view name) const;
  const Point& At(int atom) const { return Atoms[static_cast<std::size_t>(atom)].At; }
  const std::string& Name(int atom) const { return Atoms[static_cast<std::size_t>(atom)].Name; }
  int Residue(int atom) const { return Atoms[static_cast<std::size_t>(atom)].Residue; }
  char Element(int atom) const { return Name(atom).front(); }
  double Apart(int a, int b) const;
  // The numbers of the residues in the order of their atoms, each once.
  std::vector<int> Residues() const;
};

// All 46, each read after a click on it, in the order of the lists.
std::vector<StockRow> StockRows();

}  // namespace orvane::stock_check
