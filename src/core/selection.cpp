#include "core/selection.h"

#include "view/spin.h"

namespace orvane {
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

void PrepareSelection(Orvane_Desk& desk) {
  EndWithTheLastStructure(desk);
  AwaitTheNext(desk);
}

}  // namespace orvane
