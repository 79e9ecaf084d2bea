#include "stock_check/stock_row.h"

#include <algorithm>
#include <memory>

#include "desk/actions.h"
#include "no_platform/no_platform.h"
#include "shell/start_up.h"
#include "stock_check/geometry.h"

namespace orvane::stock_check {

namespace {

std::string WithoutBlanks(std::string_view field) {
  const std::size_t start = field.find_first_not_of(' ');
  if (start == std::string_view::npos) return {};
  return std::string(field.substr(start, field.find_last_not_of(' ') + 1 - start));
}

// The store numbers atoms from 1, and puts the later atom of a pair first.
AtomPair PairOf(int later, int earlier) { return {earlier - 1, later - 1}; }

StockRow RowOf(const Molecule& molecule, const List& list) {
  StockRow row;
  row.List = list.Name;
  row.Text = list.Text();
  row.Key = row.Text.substr(0, row.Text.find(' '));
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    row.Atoms.push_back({WithoutBlanks(molecule.AtomName[i]),
                         molecule.ResSeq[i],
                         WithoutBlanks(molecule.ResName[i]),
                         {molecule.AtomX[i], molecule.AtomY[i], molecule.AtomZ[i]}});
  }
  for (int b = 1; b <= molecule.BondCount; ++b) {
    row.Joined.push_back(PairOf(molecule.BondA[b], molecule.BondB[b]));
  }
  for (int h = 1; h <= molecule.HBondCount; ++h) {
    row.HydrogenBonds.push_back(PairOf(molecule.HBondA[h], molecule.HBondB[h]));
  }
  return row;
}

}  // namespace

int StockRow::Find(std::string_view name) const {
  for (std::size_t i = 0; i < Atoms.size(); ++i) {
    if (Atoms[i].Name == name) return static_cast<int>(i);
  }
  return -1;
}

int StockRow::Find(int residue, std::string_view name) const {
  for (std::size_t i = 0; i < Atoms.size(); ++i) {
    if (Atoms[i].Residue == residue && Atoms[i].Name == name) return static_cast<int>(i);
  }
  return -1;
}

double StockRow::Apart(int a, int b) const { return orvane::Apart(At(a), At(b)); }

std::vector<int> StockRow::Residues() const {
  std::vector<int> numbers;
  for (const StockAtom& atom : Atoms) {
    if (std::find(numbers.begin(), numbers.end(), atom.Residue) == numbers.end()) {
      numbers.push_back(atom.Residue);
    }
  }
  return numbers;
}

std::vector<StockRow> StockRows() {
  NoPlatform platform;
  const auto desk = StartDesk(platform);
  desk->main.Show();
  std::vector<StockRow> rows;
  for (List* list :
       {&desk->main.AA_Lst, &desk->main.Pro_Lst, &desk->main.Nuc_Lst, &desk->main.DNA_Lst}) {
    for (int row = 0; row < static_cast<int>(list->Rows.Get().size()); ++row) {
      SelectRow(*desk, *list, row);
      rows.push_back(RowOf(desk->molecule, *list));
    }
  }
  return rows;
}

}  // namespace orvane::stock_check
