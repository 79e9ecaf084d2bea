#include "commands/label_button.h"

#include "draw/redraw_chain.h"
#include "stereo/refresh_tail.h"
#include "windows/panels.h"

namespace orvane {
namespace {

// Shown whatever LabelColour is: labels start white, and few users change them first.
constexpr std::string_view kLabelsOnWhite =
    "To see the labels, you need to change the colour\n"
    "of either the Labels or the background.\n"
    "Use the Options menu";

}  // namespace

void Bt3_Label_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  if (desk.drawing.LabelsOn == 0) {
    desk.drawing.LabelsOn = 1;
    desk.main.Bt3_Label.Caption = "Label On";
    if (desk.main.Picture1.BackColor == kPalette15) desk.platform.MessageBox(kLabelsOnWhite);
  } else {
    desk.drawing.LabelsOn = 0;
    desk.main.Bt3_Label.Caption = "Label Off";
  }
  RepaintPasses(desk);
  RefreshTail(desk, Tail::PairsOnly);
}

}  // namespace orvane
