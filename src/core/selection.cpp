#include "core/selection.h"

#include "core/loader.h"
#include "view/spin.h"

namespace orvane {
namespace {

void EndWithTheLastStructure(Orvane_Desk& desk) {
  ClearBondTables(desk.molecule);
  desk.main.Drive1.Visible = false;
  desk.main.Dir1.Visible = false;
  desk.main.File1.Visible = false;
  desk.view.AutoRotateOn = 0;
  desk.main.P_Auto_Rotate.Style = kSpinOffLook;
}

void AwaitTheNext(Orvane_Desk& desk) {
  MainWindow& main = desk.main;
  main.Bt_M_Ld.Visible = false;
  desk.selection.StockPending = 1;
  main.AA_Lst.Visible = true;
  main.Pro_Lst.Visible = true;
  main.Nuc_Lst.Visible = true;
  main.DNA_Lst.Visible = true;
  main.Panel3D1.Visible = true;
  main.Panel3D2.Visible = true;
  main.Panel3D3.Visible = true;
  main.Panel3D4.Visible = true;
  desk.selection.ListsShown = 1;
  desk.molecule.MoleculeReady = 0;
}

}  // namespace

void PrepareSelection(Orvane_Desk& desk) {
  EndWithTheLastStructure(desk);
  AwaitTheNext(desk);
}

void Bt_Blt_AA_Click(Orvane_Desk& desk) {
  EndWithTheLastStructure(desk);
  desk.main.Picture1.ResetSurface();  // sets MoleculeReady, which AwaitTheNext takes back
  AwaitTheNext(desk);
}

void Bt_M_Ld_Click(Orvane_Desk& desk) {
  desk.molecule.MoleculeReady = 1;
  if (desk.selection.StockPending != 0) LoadMolecule(desk);
  desk.selection.ListsShown = 0;
  desk.main.Bt_M_Ld.Visible = false;
}

}  // namespace orvane
