#include "stereo/reset_view.h"

#include "draw/redraw_chain.h"
#include "stereo/compositions.h"

namespace orvane {

void ResetView(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.CurX[i] = molecule.AtomX[i];
    molecule.CurY[i] = molecule.AtomY[i];
    molecule.CurZ[i] = molecule.AtomZ[i];
  }
  desk.main.ZoomBar.SetValue(0);
  desk.main.VScroll1.SetValue(1);
  desk.main.X_TRANS.SetValue(0);
  desk.main.Y_TRANS.SetValue(0);
  RedrawView(desk);
  if (desk.stereo.RedGreenOn == 1) ComposeRedGreen(desk);
}

}  // namespace orvane
