#include "commands/stereo_toggles.h"

#include <algorithm>

#include "draw/atom_painter.h"
#include "draw/redraw_chain.h"
#include "stereo/compositions.h"
#include "windows/panels.h"

namespace orvane {
namespace {

constexpr int kPairTop = 1920;      // of P_Sterio alone, twips
constexpr int kUpperPairTop = 480;  // of P_Sterio above P_Sterio_b

// Lines of width 1 vanish when the picture is shrunk to the small square.
constexpr int kLeastWidth = 2;

void SaveAndRaiseWidths(Orvane_Desk& desk) {
  desk.stereo.SavedBondWidth = desk.drawing.BondWidth;
  desk.stereo.SavedPlaneWidth = desk.drawing.PlaneWidth;
  desk.drawing.BondWidth = std::max<int>(desk.drawing.BondWidth, kLeastWidth);
  desk.drawing.PlaneWidth = std::max<int>(desk.drawing.PlaneWidth, kLeastWidth);
}

void RestoreWidths(Orvane_Desk& desk) {
  desk.drawing.BondWidth = desk.stereo.SavedBondWidth;
  desk.drawing.PlaneWidth = desk.stereo.SavedPlaneWidth;
}

void HidePairs(Orvane_Desk& desk) {
  desk.main.P_Sterio.Visible = false;
  desk.main.P_Sterio_b.Visible = false;
}

void ShowForms(Orvane_Desk& desk, bool shown) {
  desk.main.R_Form.Visible = shown;
  desk.main.L_Form.Visible = shown;
}

// The title without its prefix, after the program's own name.
std::string NameLine(const Orvane_Desk& desk) {
  const std::string& title = desk.main.Caption;
  const std::size_t prefix = std::min(desk.stock.TitlePrefix.size(), title.size());
  return "OVN V3.0: " + title.substr(prefix);
}

void SwitchStereoOn(Orvane_Desk& desk) {
  desk.main.Bt3_Sterio.Caption = "Stereo On";
  desk.main.Bt3_Reset.Enabled = false;
  desk.main.R_G_Stereo.Enabled = false;
  SaveAndRaiseWidths(desk);
  desk.stereo.StereoOn = 1;
  desk.stereo.SplitViewOn = 1;
  ShowForms(desk, false);
  desk.main.Str_Entm.Caption = "Stereo Pair";
  desk.main.AA_name.Caption = NameLine(desk);
  ComposeStereoPair(desk);
  desk.main.P_Pic1.Visible = false;
  desk.main.P_Sterio.SetTop(kPairTop);
  desk.main.P_Sterio.Visible = true;
  desk.main.P_Sterio.BringToFront();
}

void SwitchStereoOff(Orvane_Desk& desk) {
  desk.main.Bt3_Reset.Enabled = true;
  desk.main.R_G_Stereo.Enabled = true;
  RestoreWidths(desk);
  RedrawView(desk);
  desk.stereo.StereoOn = 0;
  desk.stereo.SplitViewOn = 0;
  desk.main.Bt3_Sterio.Caption = "Stereo Off";
  desk.main.P_Sterio.Visible = false;
  desk.main.P_Pic1.Visible = true;
}

void SwitchIsomersOn(Orvane_Desk& desk) {
  desk.main.Bt3_Isomers.Caption = "D / L On";
  desk.main.Bt3_Reset.Enabled = false;
  SaveAndRaiseWidths(desk);
  desk.stereo.EnantiomerOn = 1;
  desk.stereo.SplitViewOn = 1;
  ShowForms(desk, true);
  desk.main.Str_Entm.Caption = "Enantiomers";
  desk.main.AA_name.Caption = NameLine(desk);
  ComposeEnantiomerPair(desk);
  desk.main.P_Pic1.Visible = false;
  desk.main.P_Sterio.SetTop(kPairTop);
  desk.main.P_Sterio.Visible = true;
  desk.main.P_Sterio_b.Visible = false;
}

void SwitchIsomersOff(Orvane_Desk& desk) {
  desk.main.Bt3_Isomers.Caption = "D / L Off";
  desk.main.Bt3_Reset.Enabled = true;
  RestoreWidths(desk);
  RedrawView(desk);
  desk.stereo.EnantiomerOn = 0;
  desk.stereo.SplitViewOn = 0;
  if (desk.stereo.RedGreenOn == 1) ComposeRedGreen(desk);
  HidePairs(desk);
  desk.main.P_Pic1.Visible = true;
}

}  // namespace

void Bt3_Sterio_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  PaintAtomFamily(desk);
  desk.molecule.MoleculeReady = 1;  // this command alone makes the others work
  desk.stereo.EnantiomerOn = 0;
  desk.stereo.EnantiomerPairOn = 0;
  if (desk.main.Bt3_Isomers.Caption == "D / L On") RestoreWidths(desk);
  desk.main.Bt3_Isomers.Caption = "D / L Off";
  desk.main.Bt3_D_L_Str.Caption = "D/L Nst";
  HidePairs(desk);
  if (desk.main.Bt3_Sterio.Caption == "Stereo On") {
    SwitchStereoOff(desk);
  } else {
    SwitchStereoOn(desk);
  }
}

void Bt3_Isomers_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  desk.main.R_G_Stereo.Enabled = true;
  desk.stereo.StereoOn = 0;
  desk.stereo.EnantiomerPairOn = 0;
  if (desk.main.Bt3_Sterio.Caption == "Stereo On") RestoreWidths(desk);
  desk.main.Bt3_Sterio.Caption = "Stereo Off";
  desk.main.Bt3_D_L_Str.Caption = "D / L Nst";
  HidePairs(desk);
  if (desk.main.Bt3_Isomers.Caption == "D / L Off") {
    SwitchIsomersOn(desk);
  } else {
    SwitchIsomersOff(desk);
  }
}

void Bt3_D_L_Str_Click(Orvane_Desk& desk) {
  desk.drawing.BondWidth = 2;  // the current width is not saved
  PaintAtomFamily(desk);
  desk.stereo.StereoOn = 0;
  desk.main.Bt3_Sterio.Caption = "Sterio Off";
  desk.main.Bt3_Isomers.Caption = "D/L Off";
  HidePairs(desk);
  if (desk.main.Bt3_D_L_Str.Caption == "D/L Nst") {
    desk.main.Bt3_D_L_Str.Caption = "D/L Str";
    desk.stereo.EnantiomerPairOn = 1;
    desk.stereo.EnantiomerOn = 1;
    ComposeEnantiomerPair(desk);
    desk.main.P_Pic1.Visible = false;
    desk.main.P_Sterio.SetTop(kUpperPairTop);
    desk.main.P_Sterio.Visible = true;
    desk.main.P_Sterio_b.Visible = true;
    desk.main.P_Sterio.BringToFront();
    desk.main.P_Sterio_b.BringToFront();
  } else {
    desk.main.Bt3_D_L_Str.Caption = "D/L Nst";
    desk.stereo.EnantiomerPairOn = 0;
    desk.stereo.EnantiomerOn = 0;
    HidePairs(desk);
    desk.main.P_Pic1.Visible = true;
  }
}

void R_G_Stereo_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  if (desk.stereo.RedGreenOn == 1) {
    desk.stereo.RedGreenOn = 0;
    desk.drawing.OverdrawPass = 0;
    desk.colours.PenColour = desk.stereo.SavedPenColour;
    desk.colours.ColourByElement = desk.stereo.SavedColourMode;
    desk.main.R_G_Stereo.Caption = "Red-Green Stereo Off";
    desk.main.Bt3_Sterio.Enabled = true;
    PaintAtomFamily(desk);
  } else {
    desk.stereo.SavedPenColour = desk.colours.PenColour;
    desk.stereo.SavedColourMode = desk.colours.ColourByElement;
    desk.colours.ColourByElement = 0;
    desk.stereo.RedGreenOn = 1;
    desk.main.R_G_Stereo.Caption = "Red-Green Stereo On";
    ComposeRedGreen(desk);
    desk.main.Bt3_Sterio.Enabled = false;
  }
  if (desk.main.Bt3_Isomers.Caption == "D / L On") ComposeEnantiomerPair(desk);
}

}  // namespace orvane
