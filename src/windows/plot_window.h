// The window of the Ramachandran map: four areas side by side make the phi-psi plane.
// plot_window_table.cpp has its places and captions, ramachandran/map_names.h the names that show
// under the pointer.
#pragma once

#include "controls/kinds.h"
#include "controls/surface.h"

namespace orvane {

// One quarter of the map. Its inner size follows from its place in twips, so a fraction of a pixel
// counts.
class MapArea : public PictureBox {
 public:
  MapArea(Window& window, std::string_view name) : PictureBox(window, name, 141, 139) {}
  double InnerWidth() const { return static_cast<double>(At.Get().Width) / TwipsPerPixel; }
  double InnerHeight() const { return static_cast<double>(At.Get().Height) / TwipsPerPixel; }
};

struct PlotWindow : Window {
  PlotWindow();

  Panel RamPlt_H{*this, "RamPlt_H"};
  ControlArray<MapArea, 4> Area{*this,
                                "Area"};  // 0 top left, 1 bottom left, 2 bottom right, 3 top right

  // Names on the map. A letter "a", "b", "f" or "j" in a control of its own stands for a Greek one.
  ControlArray<Label, 6> b_sheet{*this, "b_sheet"};
  Ornament CoLn{*this, "CoLn"};
  ControlArray<Label, 4> R_Alf{*this, "R_Alf"};
  Label FEC{*this, "FEC"};
  ControlArray<Label, 3> L_Alf{*this, "L_Alf"};
  Label Collag{*this, "Collag"};

  // Legend, scale marks, axis names, ornaments.
  ControlArray<Label, 3> Label1{*this, "Label1"};
  ControlArray<Label, 3> Label5{*this, "Label5"};
  ControlArray<Label, 4> Label6{*this, "Label6"};
  Label Label4{*this, "Label4(3)"};
  ControlArray<Panel, 10> Degrs{*this, "Degrs"};
  Label Label10{*this, "Label10"}, Label11{*this, "Label11"};
  Label Label8{*this, "Label8"}, Label9{*this, "Label9"};
  Ornament RamPlt_ArP{*this, "RamPlt_ArP"}, Line1{*this, "Line1"}, Line2{*this, "Line2"};
  ImageBox OVN_Icon{*this, "OVN_Icon"};
};

}  // namespace orvane
