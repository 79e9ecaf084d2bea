#include "commands/load_buttons.h"

#include "core/loader.h"
#include "core/selection.h"

namespace orvane {

void Bt_Blt_AA_Click(Orvane_Desk& desk) {
  EndWithTheLastStructure(desk);
  desk.main.Picture1.ResetSurface();  // sets MoleculeReady, which AwaitTheNext clears again
  AwaitTheNext(desk);
}

void Bt_M_Ld_Click(Orvane_Desk& desk) {
  desk.molecule.MoleculeReady = 1;
  if (desk.selection.StockPending != 0) LoadMolecule(desk);
  desk.selection.ListsShown = 0;
  desk.main.Bt_M_Ld.Visible = false;
}

}  // namespace orvane
