#include "shell/wiring.h"

#include "commands/background_entries.h"
#include "commands/bars.h"
#include "commands/colour_panel.h"
#include "commands/export.h"
#include "commands/hydrogen_bond_button.h"
#include "commands/information.h"
#include "commands/label_button.h"
#include "commands/lists.h"
#include "commands/load_buttons.h"
#include "commands/measure_buttons.h"
#include "commands/music.h"
#include "commands/plot_window.h"
#include "commands/pointer.h"
#include "commands/print.h"
#include "commands/recording.h"
#include "commands/reset.h"
#include "commands/size_keys.h"
#include "commands/spin.h"
#include "commands/stereo_toggles.h"
#include "commands/ways_of_drawing.h"
#include "commands/window_events.h"

namespace orvane {
namespace {

using enum EventKind;

// By room, and within a room in the order of the window.
// clang-format off
constexpr Wire kWires[] = {
    // shell: panels and pointer
    {"Picture1",      Change,  Picture1_Change},
    {"Picture1",      Click,   HidePanels_Click},
    {"Panel3D1",      Click,   HidePanels_Click},
    {"Panel3D2",      Click,   HidePanels_Click},
    {"Panel3D3",      Click,   HidePanels_Click},
    {"Panel3D4",      Click,   HidePanels_Click},
    {"Panel3D5",      Click,   HidePanels_Click},
    {"BMusic",        Click,   HidePanels_Click},
    {"OpTs",          Click,   TopMenu_Click},
    {"DWn",           Click,   TopMenu_Click},
    {"Exp",           Click,   TopMenu_Click},
    {"AA_Lst",        Enter,   DropCross},
    {"Pro_Lst",       Enter,   DropCross},
    {"Nuc_Lst",       Enter,   DropCross},
    {"DNA_Lst",       Enter,   DropCross},
    {"Bt3_Ang",       Enter,   DropCross},
    {"Bt3_Dts",       Enter,   DropCross},
    {"Bt3_Trg",       Enter,   DropCross},
    {"Bt3_Reset",     Enter,   DropCross},
    {"R_G_Stereo",    Enter,   DropCross},
    {"Label1",        Enter,   DropCross},
    {"P_Auto_Rotate", Enter,   DropCross},
    {"P_Dst_Show",    Enter,   DropCross},
    {"P_Pic1",        Enter,   DropCross},
    {"Panel3D1",      Enter,   DropCross},
    {"Panel3D2",      Enter,   DropCross},
    {"Panel3D3",      Enter,   DropCross},
    {"Panel3D4",      Enter,   DropCross},
    {"Panel3D5",      Enter,   DropCross},
    {"Sz_Balls",      Enter,   DropCross},
    {"Orvane_Desk",   Enter,   DropCross},
    {"Orvane_Desk",   Resize,  Orvane_Desk_Resize},
    {"VScroll1",      Focus,   DropCross},
    {"X_TRANS",       Focus,   DropCross},
    {"Y_TRANS",       Focus,   DropCross},
    {"ZoomBar",       Focus,   DropCross},
    // core
    {"Bt_Blt_AA",     Click,   Bt_Blt_AA_Click},
    {"Bt_M_Ld",       Click,   Bt_M_Ld_Click},
    // stock
    {"AA_Lst",        Click,   AA_Lst_Click},
    {"Pro_Lst",       Click,   Pro_Lst_Click},
    {"Nuc_Lst",       Click,   Nuc_Lst_Click},
    {"DNA_Lst",       Click,   DNA_Lst_Click},

    // view
    {"Picture1",      Press,   Picture1_MouseDown},
    {"Picture1",      Move,    Picture1_MouseMove},
    {"Picture1",      Release, Picture1_MouseUp},
    {"X_Tag",         Click,   X_Tag_Click},
    {"VScroll1",      Scroll,  VScroll1_Scroll},
    {"VScroll1",      Change,  VScroll1_Change},
    {"ZoomBar",       Scroll,  ZoomBar_Scroll},
    {"ZoomBar",       Change,  ZoomBar_Change},
    {"X_TRANS",       Scroll,  X_TRANS_Scroll},
    {"X_TRANS",       Change,  X_TRANS_Change},
    {"Y_TRANS",       Scroll,  Y_TRANS_Scroll},
    {"Y_TRANS",       Change,  Y_TRANS_Change},
    {"P_Auto_Rotate", Click,   P_Auto_Rotate_Click},
    {"Rt_speed",      Change,  Rt_speed_Change},
    {"Timer1",        Tick,    Timer1_Tick},
    {"Timer1",        Failed,  Timer1_Failed},
    {"Bt3_Reset",     Click,   Bt3_Reset_Click},

    // measure
    {"Bt3_HBD",       Click,   Bt3_HBD_Click},
    {"Bt3_Dts",       Click,   Bt3_Dts_Click},
    {"Bt3_Ang",       Click,   Bt3_Ang_Click},
    {"Bt3_Trg",       Click,   Bt3_Trg_Click},
    {"P_Dst_Show",    Click,   P_Dst_Show_Click},

    // draw
    {"MlClr",         Click,   MlClr_Click},
    {"LbClr",         Click,   LbClr_Click},
    {"PbClr",         Click,   PbClr_Click},
    {"BkGd",          Click,   BkGd_Click},
    {"ClPlt",         Click,   ClPlt_Click},
    {"Bk_Cl",         Click,   Bk_Cl_Click},
    {"Wt_Cl",         Click,   Wt_Cl_Click},
    {"COL_RGB",       Click,   COL_RGB_Click},
    {"Bgr1",          Click,   [](Orvane_Desk& desk) { Bgr_Click(desk, 0); }},
    {"Bgr2",          Click,   [](Orvane_Desk& desk) { Bgr_Click(desk, 1); }},
    {"Bgr3",          Click,   [](Orvane_Desk& desk) { Bgr_Click(desk, 2); }},
    {"Bgr4",          Click,   [](Orvane_Desk& desk) { Bgr_Click(desk, 3); }},
    {"Bgr5",          Click,   [](Orvane_Desk& desk) { Bgr_Click(desk, 4); }},
    {"D_Wf",          Click,   D_Wf_Click},
    {"M_Stk",         Click,   M_Stk_Click},
    {"M_Rbn",         Click,   M_Rbn_Click},
    {"D_Ca",          Click,   D_Ca_Click},
    {"D_StB",         Click,   D_StB_Click},
    {"Cartn",         Click,   Cartn_Click},
    {"OPB",           Click,   OPB_Click},
    {"PPB_SB",        Click,   PPB_SB_Click},
    {"Bt_BlS",        Click,   Bt_BlS_Click},
    {"Bt_CA_Trace",   Click,   Bt_CA_Trace_Click},
    {"Bt3_Label",     Click,   Bt3_Label_Click},
    {"Sz_Balls",      Press,   Sz_Balls_MouseDown},
    {"P_Clr",         Press,   P_Clr_MouseDown},
    {"P_Clr",         Click,   P_Clr_Click},
    {"RGB_V",         Key,     RGB_V_KeyDown},
    {"Do_color",      Click,   Do_color_Click},

    // shell: information windows and sound
    {"WatN",       Click,   WatN_Click},
    {"Cprt",       Click,   Cprt_Click},
    {"ExitEntry",  Click,   ExitEntry_Click},
    {"Orvane_Front.Timer1", Tick,  Front_Timer1_Tick},
    {"Orvane_Front.Get_in", Click, Front_Get_in_Click},
    {"Orvane_Front.Author", Click, Front_Author_Click},
    {"Content.Get_in",      Click, Content_Get_in_Click},
    {"Author_frm.Get_in",   Click, Author_Get_in_Click},
    {"Orvane_Desk",         Close, EndProgram},
    {"Orvane_Front",        Close, EndProgram},
    {"Content",             Close, Content_Close},
    {"Author_frm",          Close, Author_Get_in_Click},
    {"PMSC1",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 1); }},
    {"PMSC2",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 2); }},
    {"PMSC3",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 3); }},
    {"PMSC4",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 4); }},
    {"PMSC5",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 5); }},
    {"PMSC6",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 6); }},
    {"PMSC7",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 7); }},
    {"PMSC8",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 8); }},
    {"PMSC9",      Click,   [](Orvane_Desk& desk) { PMSC_Click(desk, 9); }},
    {"OpMfL",      Click,   OpMfL_Click},
    {"StMsc",      Click,   StMsc_Click},
    {"Drive1",     Change,  Drive1_Change},
    {"Dir1",       Change,  Dir1_Change},
    {"File1",      DoubleClick, File1_DblClick},

    // stereo
    {"Bt3_Sterio",    Click,   Bt3_Sterio_Click},
    {"Bt3_Isomers",   Click,   Bt3_Isomers_Click},
    {"Bt3_D_L_Str",   Click,   Bt3_D_L_Str_Click},
    {"R_G_Stereo",    Click,   R_G_Stereo_Click},

    // ramachandran
    {"RCDP",          Click,   ShowRamachandran},
    {"Ramachandran.Area",     Move, Area_MouseMove},
    {"Ramachandran.RamPlt_H", Move, RamPlt_H_MouseMove},
    {"Ramachandran",          Close, Ramachandran_Close},

    // output
    {"P_Sterio",      Click,   P_Sterio_Click},
    {"S_bmp",         Click,   S_bmp_Click},
    {"S_JPG",         Click,   S_JPG_Click},
    {"S_Gif",         Click,   S_Gif_Click},
    {"S_AnGif",       Click,   S_AnGif_Click},
    {"PrImg",         Click,   PrImg_Click},
};
// clang-format on

void BindRow(Orvane_Desk& desk, Control& control, const Wire& wire) {
  control.Bind(wire.Kind, [&desk, handler = wire.Handler](const Event& event) {
    if (const auto* plain = std::get_if<void (*)(Orvane_Desk&)>(&handler)) {
      (*plain)(desk);
    } else {
      std::get<void (*)(Orvane_Desk&, const Event&)>(handler)(desk, event);
    }
  });
}

}  // namespace

std::span<const Wire> Wires() { return kWires; }

void WireControls(Orvane_Desk& desk) {
  for (const Wire& wire : kWires) {
    for (Window* window : desk.windows) {
      if (wire.Control == window->Name) BindRow(desk, *window, wire);
      if (!wire.Control.starts_with(window->Prefix)) continue;
      const std::string_view name = wire.Control.substr(window->Prefix.size());
      for (Control* control : window->Controls) {
        if (control->Name == name) BindRow(desk, *control, wire);
      }
    }
  }
}

}  // namespace orvane
