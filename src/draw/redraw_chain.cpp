#include "draw/redraw_chain.h"

namespace orvane {
namespace {

// A newly loaded structure fills half of the surface in its largest direction. MinX and MinY hold
// the centre of the box here; the sums keep this order.
void ProjectAtoms(Molecule& molecule, const View& view) {
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.ScrX[i] = (molecule.CurX[i] - molecule.MinX) * molecule.FitScale * view.HalfW +
                       view.HalfW + view.PanX + view.SurfOffX;
    molecule.ScrY[i] = (molecule.CurY[i] - molecule.MinY) * molecule.FitScale * view.HalfH +
                       view.HalfH + view.PanY + view.SurfOffY;
  }
}

}  // namespace

void RedrawView(Orvane_Desk& desk) {
  desk.main.Picture1.ScaleMode = 3;
  ProjectAtoms(desk.molecule, desk.view);
}

}  // namespace orvane
