#include "draw/redraw_chain.h"

#include "draw/atom_painter.h"
#include "draw/fast_wire.h"
#include "draw/plane_painter.h"
#include "draw/trace_painter.h"

namespace orvane {
namespace {

// After FitBox the fields MinX, MinY hold the centre of the box, and FitScale is 1 / its largest
// extent: a structure just loaded fills half of the surface.
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
  if (desk.drawing.FastWire == 1) {
    desk.main.Picture1.Cls();
    PaintFastWire(desk);
  }
  RepaintPasses(desk);
}

void RepaintPasses(Orvane_Desk& desk) {
  if (desk.drawing.DrawFamily == 0) PaintAtomFamily(desk);
  if (desk.drawing.DrawFamily == 1) PaintTraceFamily(desk);
  if (desk.drawing.PeptideOn == 1) PaintPlanes(desk);
}

}  // namespace orvane
