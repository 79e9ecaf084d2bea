// Three small windows: the splash, the overview and the window about the program. They set the
// order in which the user reaches the desk and hold nothing of the model.
#pragma once

#include "controls/kinds.h"
#include "windows/information_tables.h"

namespace orvane {

inline constexpr int kFrontFrames = 10;  // of each animation

struct FrontWindow : Window {
  FrontWindow() : Window(FrontTable(), "Orvane_Front.") {}

  Ornament Image2{*this, "Image2"};
  Panel Panel3D1{*this, "Panel3D1"}, Panel3D2{*this, "Panel3D2"}, Panel3D3{*this, "Panel3D3"};
  ControlArray<ImageBox, 2> Image1{*this, "Image1"};  // show the animation
  ImageBox OVN_Icon{*this, "OVN_Icon"};
  Panel Panel3D5{*this, "Panel3D5"}, Title{*this, "Title"}, Host{*this, "Host"};
  Panel Panel3D4{*this, "Panel3D4"}, By{*this, "By"};
  Button Author{*this, "Author"};
  Button Get_in{*this, "Get_in"};
  Timer Timer1{*this, "Timer1"};

  // The frames, never shown themselves.
  ControlArray<ImageBox, kFrontFrames> Pro_Image{*this, "Pro_Image"};
  ControlArray<ImageBox, kFrontFrames> DNA_Image{*this, "DNA_Image"};
};

struct ContentWindow : Window {
  ContentWindow() : Window(ContentTable(), "Content.") {}

  Ornament Line5{*this, "Line5"};
  ImageBox OVN_Icon{*this, "OVN_Icon"};
  Panel WtNew{*this, "WtNew"};
  ControlArray<Panel, 3> Card{*this, "Card"};  // below what lies on them
  ControlArray<Panel, 5> Text{*this, "Text"};
  Ornament Line2{*this, "Line2"}, Line3{*this, "Line3"}, Line4{*this, "Line4"};
  Panel Greek{*this, "Greek"};  // the letter over the gap of "C  -trace"
  ControlArray<ImageBox, 2> Image1{*this, "Image1"};
  Ornament Line1{*this, "Line1"}, Line6{*this, "Line6"}, Line7{*this, "Line7"};
  Ornament Line8{*this, "Line8"}, Line9{*this, "Line9"};
  Button Get_in{*this, "Get_in"};
};

struct AuthorWindow : Window {
  AuthorWindow() : Window(AuthorTable(), "Author_frm.") {}

  ImageBox OVN_Icon{*this, "OVN_Icon"};
  Panel Title{*this, "Title"}, Panel3D1{*this, "Panel3D1"};
  ImageBox Image1{*this, "Image1"};
  Panel Author{*this, "Author"}, Panel3D2{*this, "Panel3D2"};
  Ornament Line1{*this, "Line1"};
  Button Get_in{*this, "Get_in"};
};

}  // namespace orvane
