#include "commands/lists.h"

#include <algorithm>
#include <limits>
#include <span>

#include "commands/reset.h"
#include "core/loader.h"
#include "core/record.h"
#include "core/selection.h"
#include "stock/catalogue_tables.h"
#include "stock/generator.h"
#include "windows/panels.h"

namespace orvane {
namespace {

using namespace catalogue;

// How the handlers of the four lists differ.
struct ListKind {
  List MainWindow::*Rows;
  std::string Catalogue::*Key;
  int KeyWidth;
  int TitleFrom;    // column of the row where the title begins
  bool HasIsomers;  // whether these structures may have the D/L view
  int NucleicMode;
  EntryStates Entries;
  std::span<const StockRow> Stock;
};

// clang-format off
//                            list                   key                    width title isomers nucleic
constexpr ListKind kAmino   = {&MainWindow::AA_Lst,  &Catalogue::AminoKey,  3,    5,    true,   0,
                               kNoEntries, kAminoStock};
constexpr ListKind kProtein = {&MainWindow::Pro_Lst, &Catalogue::ProKey,    4,    5,    false,  0,
                               kBeforeAProteinKey, kProteinStock};
constexpr ListKind kNucleic = {&MainWindow::Nuc_Lst, &Catalogue::NucKey,    2,    4,    false,  0,
                               kNoEntries, kNucleotideStock};
constexpr ListKind kDna     = {&MainWindow::DNA_Lst, &Catalogue::DnaKey,    5,    6,    false,  1,
                               kNoEntries, kDnaStock};
// clang-format on

// Plain capitals, whatever the locale.
std::string InCapitals(std::string text) {
  for (char& letter : text) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return text;
}

void Set(MenuEntry& entry, Entry state) {
  if (state != Entry::AsWas) entry.Enabled = state == Entry::Yes;
}

void SetEntries(MainWindow& main, const EntryStates& states) {
  Set(main.D_Ca, states.D_Ca);
  Set(main.M_Rbn, states.M_Rbn);
  Set(main.Ppt, states.Ppt);
  Set(main.OPB, states.OPB);
  Set(main.RCDP, states.RCDP);
}

// What comes before the row is read.
void OpenSelection(Orvane_Desk& desk, const ListKind& kind) {
  desk.main.Bt3_Isomers.Enabled = kind.HasIsomers;
  HidePanels(desk.main);
  desk.drawing.ChainPlanes = 0;
  desk.drawing.NucleicMode = kind.NucleicMode;
  desk.main.DWn.Enabled = true;
  SetEntries(desk.main, kind.Entries);
  desk.plot.Hide();
  PrepareSelection(desk);
}

void SetTitle(Orvane_Desk& desk, const ListKind& kind, std::string_view row) {
  const std::string_view name = Mid(row, kind.TitleFrom, std::numeric_limits<int>::max());
  desk.main.Caption = desk.stock.TitlePrefix + std::string(name);
}

// Leaves MolText as it is where the key fits no row.
bool TakeStockText(Orvane_Desk& desk, const ListKind& kind, std::string_view key) {
  const auto row = std::ranges::find(kind.Stock, key, &StockRow::Key);
  if (row == kind.Stock.end()) return false;
  desk.molecule.MolText =
      row->Constant != nullptr ? *row->Constant : std::string_view(desk.stock.*row->Assembled);
  SetEntries(desk.main, row->Entries);
  desk.drawing.ChainPlanes = row->ChainPlanes;
  return true;
}

// Keeps the key as it stands in the row, and returns it in capitals for the comparison.
std::string TakeKey(Orvane_Desk& desk, const ListKind& kind, const std::string& row) {
  desk.stock.*kind.Key = Mid(row, 1, kind.KeyWidth);
  return InCapitals(desk.stock.*kind.Key);
}

void SelectStock(Orvane_Desk& desk, const ListKind& kind) {
  OpenSelection(desk, kind);
  const std::string row = (desk.main.*kind.Rows).Text();
  TakeStockText(desk, kind, TakeKey(desk, kind, row));
  SetTitle(desk, kind, row);
  desk.molecule.MoleculeReady = 1;
  LoadMolecule(desk);
  Bt3_Reset_Click(desk);
}

}  // namespace

void AA_Lst_Click(Orvane_Desk& desk) {
  OpenSelection(desk, kAmino);
  const std::string row = desk.main.AA_Lst.Text();
  SetTitle(desk, kAmino, row);
  desk.molecule.MoleculeReady = 1;
  const std::string key = TakeKey(desk, kAmino, row);
  if (TakeStockText(desk, kAmino, key)) {
    LoadMolecule(desk);
  } else if (std::ranges::count(kGeneratedKeys, key) != 0) {
    desk.molecule.MolText = stock::TextFrame;
    LoadMolecule(desk);
    GenerateResidue(desk, key);
  }
  Bt3_Reset_Click(desk);
}

void Pro_Lst_Click(Orvane_Desk& desk) { SelectStock(desk, kProtein); }
void Nuc_Lst_Click(Orvane_Desk& desk) { SelectStock(desk, kNucleic); }
void DNA_Lst_Click(Orvane_Desk& desk) { SelectStock(desk, kDna); }

}  // namespace orvane
