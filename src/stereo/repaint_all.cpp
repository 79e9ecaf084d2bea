#include "stereo/repaint_all.h"

#include "draw/atom_painter.h"
#include "draw/plane_painter.h"
#include "draw/trace_painter.h"
#include "stereo/refresh_tail.h"

namespace orvane {

void RepaintAll(Orvane_Desk& desk) {
  const bool red_green_off = desk.stereo.RedGreenOn == 0;
  if (desk.drawing.DrawFamily == 0 && red_green_off) PaintAtomFamily(desk);
  if (desk.drawing.DrawFamily == 1 && red_green_off) PaintTraceFamily(desk);
  if (desk.drawing.PeptideOn == 1) PaintPlanes(desk);
  RefreshTail(desk);
}

}  // namespace orvane
