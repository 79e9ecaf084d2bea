// The keys of the desk: each works one control or the walk over the atoms, through the same events
// as a pointer. The sheet behind F1 is made from this table.
#pragma once

#include <span>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

// Where the keyboard has to be for a key to work.
enum class KeyPlace {
  Picture,  // on the picture, or on the pair of views that takes its place
  Desk,     // anywhere in the main window
  Map,      // in the plot window
};

struct DeskKey {
  KeyPlace Where = KeyPlace::Picture;
  std::string_view Group;  // its heading on the sheet
  std::string_view Key;    // "Left", "Shift+Left", "+", "X", "F6"
  std::string_view Other;  // a second key that does the same; empty: none
  std::string_view Does;   // one clause, verb first
  bool Repeats = false;    // while it is held down
  void (*Do)(Orvane_Desk&) = nullptr;
};

std::span<const DeskKey> DeskKeys();

// The key of that name there; nullptr when there is none.
const DeskKey* FindDeskKey(KeyPlace where, std::string_view key);

}  // namespace orvane
