// The printed page: a window that is never shown, filled from the main window and printed as it
// stands. Its table is in print_page.cpp.
#pragma once

#include "controls/kinds.h"

namespace orvane {

struct PrintPage : Window {
  PrintPage();

  Panel Mol_Name{*this, "Mol_Name"}, Str_Entm{*this, "Str_Entm"};
  Panel L_Form{*this, "L_Form"}, R_Form{*this, "R_Form"};
  ImageBox L_Img{*this, "L_Img"}, R_Img{*this, "R_Img"};
  Panel AA_name{*this, "AA_name"};
  ImageBox Image1{*this, "Image1"};
  Panel Panel3D4{*this, "Panel3D4"};
  ImageBox OVN_Icon{*this, "OVN_Icon"};
  Ornament MMControl1{*this, "MMControl1"};  // the media control stands here
};

}  // namespace orvane
