#include "commands/colour_panel.h"

#include "draw/atom_painter.h"
#include "draw/plane_painter.h"
#include "draw/trace_painter.h"
#include "stereo/refresh_tail.h"
#include "stereo/repaint_all.h"

namespace orvane {
namespace {

constexpr int kElementSwatch = 0;

// The two differ in wording and in the full stop, each as users know it.
constexpr std::string_view kIsBackground =
    "This is already the background colour \n\nChoose a different colour";
constexpr std::string_view kIsInUse =
    "This is already the Molecule, the Labels and/or\nthe Peptide Plane colour\n\n\n"
    "Choose a different colour.";

Colour FaceOf(const Orvane_Desk& desk, int index) {
  return desk.main.P_Clr[static_cast<std::size_t>(index)].BackColor;
}

bool Refused(Orvane_Desk& desk, int index) {
  SwatchClash(desk, index);
  return desk.colours.ColourRefused == 1;
}

void ColourLabels(Orvane_Desk& desk, int index) {
  if (desk.drawing.LabelsOn != 1) return;
  if (Refused(desk, index)) return;
  desk.colours.LabelColour = FaceOf(desk, index);
  PaintAtomFamily(desk);
  RefreshTail(desk);
}

// PenColour takes the first swatch's own colour as well: a trace shows it later. A ribbon whose
// flag is still set is painted first, and the atoms wipe it.
void ColourMolecule(Orvane_Desk& desk, int index) {
  if (Refused(desk, index)) return;
  Drawing& drawing = desk.drawing;
  Colours& colours = desk.colours;
  colours.PenColour = FaceOf(desk, index);
  if (drawing.DrawFamily == 1 || drawing.RibbonOn == 1) {
    colours.ColourByElement = 1;
    PaintTraceFamily(desk);
  }
  if (drawing.DrawFamily == 0 && drawing.CartoonOn == 0) {
    colours.ColourByElement = 0;
    PaintAtomFamily(desk);
    if (index == kElementSwatch) {
      colours.ColourByElement = 1;
      PaintAtomFamily(desk);
    }
  }
  RefreshTail(desk);
  // After the compositions, so they do not show it.
  if (drawing.PeptideOn == 1 || drawing.PlanesOnly == 1) PaintPlanes(desk);
}

void ColourPlanes(Orvane_Desk& desk, int index) {
  if (desk.drawing.PlanesOnly != 1 && desk.drawing.PeptideOn != 1) return;
  if (Refused(desk, index)) return;
  desk.colours.PlaneColour = FaceOf(desk, index);
  PaintPlanes(desk);
  RefreshTail(desk);
}

// The colours of molecule and planes count even when nothing is shown in them.
void ColourBackground(Orvane_Desk& desk, int index) {
  Colours& colours = desk.colours;
  const Colour face = FaceOf(desk, index);
  if (face == colours.PlaneColour || face == colours.PenColour ||
      (desk.drawing.LabelsOn == 1 && face == colours.LabelColour)) {
    return desk.platform.MessageBox(kIsInUse);
  }
  desk.main.Picture1.ResetSurface();
  desk.main.Picture1.SetBackColor(face);
  colours.BackgroundIndex = -1;
  RepaintAll(desk);
}

void OpenPanel(Orvane_Desk& desk, int target) {
  desk.colours.ColourTarget = target;
  desk.main.P_Clr[kElementSwatch].Caption = target == kMoleculeTarget ? "CPK" : "";
  desk.main.P_Clr_Holder.BringToFront();
  desk.main.P_Clr_Holder.Visible = true;
}

}  // namespace

void SwatchClash(Orvane_Desk& desk, int index) {
  if (FaceOf(desk, index) == desk.main.Picture1.BackColor) {
    desk.platform.MessageBox(kIsBackground);
    desk.colours.ColourRefused = 1;
  } else {
    desk.colours.ColourRefused = 0;
  }
}

void ApplySwatch(Orvane_Desk& desk, int index) {
  switch (desk.colours.ColourTarget) {
    case kLabelTarget:
      return ColourLabels(desk, index);
    case kMoleculeTarget:
      return ColourMolecule(desk, index);
    case kPlaneTarget:
      return ColourPlanes(desk, index);
    case kBackgroundTarget:
      return ColourBackground(desk, index);
    default:
      return;
  }
}

void P_Clr_MouseDown(Orvane_Desk& desk, const Event& event) { ApplySwatch(desk, event.Index); }
void P_Clr_Click(Orvane_Desk& desk) { desk.main.P_Clr_Holder.Visible = false; }

void MlClr_Click(Orvane_Desk& desk) { OpenPanel(desk, kMoleculeTarget); }
void LbClr_Click(Orvane_Desk& desk) { OpenPanel(desk, kLabelTarget); }
void PbClr_Click(Orvane_Desk& desk) { OpenPanel(desk, kPlaneTarget); }
void ClPlt_Click(Orvane_Desk& desk) { OpenPanel(desk, kBackgroundTarget); }

}  // namespace orvane
