// The one work window: its controls under their names. main_window_table.cpp says what each is, and
// its handler under commands/ what it does.
#pragma once

#include "controls/kinds.h"
#include "controls/scroll_bar.h"
#include "controls/surface.h"
#include "windows/swatches.h"

namespace orvane {

inline constexpr int kSurfacePixels = 360;  // Picture1's inner side, 5400 twips

struct MainWindow : Window {
  MainWindow();

  // Menus.
  MenuEntry OpTs{*this, "OpTs"}, MlClr{*this, "MlClr"}, LbClr{*this, "LbClr"},
      PbClr{*this, "PbClr"};
  MenuEntry BkGd{*this, "BkGd"}, ClPlt{*this, "ClPlt"}, Bk_Cl{*this, "Bk_Cl"},
      Wt_Cl{*this, "Wt_Cl"};
  MenuEntry COL_RGB{*this, "COL_RGB"}, Bgr1{*this, "Bgr1"}, Bgr2{*this, "Bgr2"};
  MenuEntry Bgr3{*this, "Bgr3"}, Bgr4{*this, "Bgr4"}, Bgr5{*this, "Bgr5"};
  MenuEntry PrImg{*this, "PrImg"}, ExitEntry{*this, "ExitEntry"};
  MenuEntry DWn{*this, "DWn"}, D_Wf{*this, "D_Wf"}, M_Stk{*this, "M_Stk"}, M_Rbn{*this, "M_Rbn"};
  MenuEntry D_Ca{*this, "D_Ca"}, D_StB{*this, "D_StB"}, Cartn{*this, "Cartn"}, Ppt{*this, "Ppt"};
  MenuEntry OPB{*this, "OPB"}, PPB_SB{*this, "PPB_SB"}, RCDP{*this, "RCDP"};
  MenuEntry Exp{*this, "Exp"}, S_bmp{*this, "S_bmp"}, S_JPG{*this, "S_JPG"}, S_Gif{*this, "S_Gif"};
  MenuEntry S_AnGif{*this, "S_AnGif"};
  MenuEntry BMusic{*this, "BMusic"}, PMSC1{*this, "PMSC1"}, PMSC2{*this, "PMSC2"};
  MenuEntry PMSC3{*this, "PMSC3"}, PMSC4{*this, "PMSC4"}, PMSC5{*this, "PMSC5"};
  MenuEntry PMSC6{*this, "PMSC6"}, PMSC7{*this, "PMSC7"}, PMSC8{*this, "PMSC8"};
  MenuEntry PMSC9{*this, "PMSC9"}, OpMfL{*this, "OpMfL"}, StMsc{*this, "StMsc"};
  MenuEntry WatN{*this, "WatN"}, Cprt{*this, "Cprt"};
  Panel Panel3D5{*this, "Panel3D5"};

  // Top row.
  Button Bt_Blt_AA{*this, "Bt_Blt_AA"}, Bt_BlS{*this, "Bt_BlS"}, Bt_CA_Trace{*this, "Bt_CA_Trace"};
  Ornament Line1{*this, "Line1"};
  Button Bt3_Label{*this, "Bt3_Label"}, Bt3_HBD{*this, "Bt3_HBD"};
  Ornament Line2{*this, "Line2"};
  Panel P_Auto_Rotate{*this, "P_Auto_Rotate"};
  ScrollBar Rt_speed{*this, "Rt_speed"};

  // Left.
  ControlArray<Panel, 3> X_Tag{*this, "X_Tag"};
  ScrollBar VScroll1{*this, "VScroll1"};
  Label Label2{*this, "Label2"};
  ScrollBar Y_TRANS{*this, "Y_TRANS"};
  Ornament Line6{*this, "Line6"};
  ControlArray<Button, 6> Sz_Balls{*this, "Sz_Balls"};
  Button Bt3_Reset{*this, "Bt3_Reset"};

  // The picture and the split views.
  Ornament Box{*this, "Box"};
  Panel P_Pic1{*this, "P_Pic1"};
  PictureBox Picture1{*this, "Picture1", kSurfacePixels, kSurfacePixels};
  PictureBox PC{*this, "PC", kSurfacePixels, kSurfacePixels};
  Panel P_Sterio{*this, "P_Sterio"};
  Panel Str_Entm{*this, "Str_Entm"}, L_Form{*this, "L_Form"}, R_Form{*this, "R_Form"};
  ImageBox L_Img{*this, "L_Img"}, R_Img{*this, "R_Img"};
  Panel AA_name{*this, "AA_name"};
  Panel P_Sterio_b{*this, "P_Sterio_b"};
  ImageBox L_Img_b{*this, "L_Img_b"}, R_Img_b{*this, "R_Img_b"};

  // Below the picture.
  Label Label1{*this, "Label1"};
  ScrollBar X_TRANS{*this, "X_TRANS"};
  Label Label3{*this, "Label3"};
  ScrollBar ZoomBar{*this, "ZoomBar"};

  // Bottom.
  Button Bt3_Sterio{*this, "Bt3_Sterio"}, R_G_Stereo{*this, "R_G_Stereo"};
  Button Bt3_Isomers{*this, "Bt3_Isomers"}, Bt3_D_L_Str{*this, "Bt3_D_L_Str"};
  Ornament Line5{*this, "Line5"};
  Button Bt3_Dts{*this, "Bt3_Dts"}, Bt3_Ang{*this, "Bt3_Ang"}, Bt3_Trg{*this, "Bt3_Trg"};
  Ornament Text1{*this, "Text1"};
  Panel P_Dst_Show{*this, "P_Dst_Show"};

  // Right.
  Panel Panel3D4{*this, "Panel3D4"};
  List AA_Lst{*this, "AA_Lst"};
  Panel Panel3D3{*this, "Panel3D3"};
  List Pro_Lst{*this, "Pro_Lst"};
  Panel Panel3D2{*this, "Panel3D2"};
  List Nuc_Lst{*this, "Nuc_Lst"};
  Panel Panel3D1{*this, "Panel3D1"};
  List DNA_Lst{*this, "DNA_Lst"};
  Button Bt_M_Ld{*this, "Bt_M_Ld"};

  // Floating panels.
  Panel P_Clr_Holder{*this, "P_Clr_Holder"};
  Panel V_RGB_H{*this, "V_RGB_H"};
  ControlArray<TextBox, 3> RGB_V{*this, "RGB_V"};
  Button Do_color{*this, "Do_color"};
  Panel P_Dir_Holder{*this, "P_Dir_Holder"};
  FileList Drive1{*this, "Drive1"}, Dir1{*this, "Dir1"}, File1{*this, "File1"};
  ControlArray<Panel, kSwatchCount> P_Clr{*this, "P_Clr"};

  Timer Timer1{*this, "Timer1"};
};

}  // namespace orvane
