// The measures of those parts of the windows that no table places, in pixels at 100 per cent unless
// another unit is given.
#pragma once

#include "controls/control.h"
#include "look/type.h"

namespace orvane::measures {

// The menu strip and its drop-downs.
inline constexpr double kStripHeight = 20, kStripPad = 7;
inline constexpr double kEntryHeight = 22, kEntryPad = 14, kHairlineHeight = 9;
inline constexpr int kMenuPad = 4;
inline constexpr int kStripTwips = static_cast<int>(kStripHeight) * TwipsPerPixel;
inline constexpr Type kMenuType{11, 500};

// Tips. The delay is in milliseconds.
inline constexpr int kTipPad = 6, kTipCorner = 4, kTipDelay = 600;
inline constexpr Type kTipType{11, 400};

// Boxes, and everything without a type of its own.
inline constexpr Type kPlainType{11, 500};

// The thumb of a bar: its share of the track, its least length, and its distance from the bar's
// long edges. Steps repeat after so many milliseconds while a button is held.
inline constexpr double kThumbShare = 0.16, kThumbLeast = 22, kThumbIn = 3;
inline constexpr int kFirstRepeat = 400, kNextRepeat = 60;

// The rows of a list. The defaults are those of the four lists of structures, which are tightly
// set.
struct Rows {
  int Height = 15, FirstTop = 1;
  double TextLeft = 6;  // and on the right, where there is no bar
  double Inset = 2;     // of a chosen row from the list's edges
  Type Letters{11, 400};
};
// The chooser has room, and file names are slower to read.
inline constexpr Rows kWideRows{
    .Height = 17, .FirstTop = 3, .TextLeft = 8, .Inset = 3, .Letters = {11, 500}};
inline constexpr double kKeyGap = 4;  // between a row's key and the rest
inline constexpr Type kKeyType{11, 600};

// The slim bar of a list.
inline constexpr double kListBarZone = 7, kListThumbWidth = 4, kListThumbIn = 3,
                        kListThumbLeast = 12;

// A cut row, shown whole.
inline constexpr double kFlyoutPad = 6, kFlyoutPadRight = 7, kFlyoutGap = 8, kFlyoutShadow = 4;
inline constexpr Type kFlyoutType{11, 400};

// The caption of the tab at the desk's edge: twips, and the shadow around it.
inline constexpr int kTabOutWidth = 1035, kTabOutHeight = 300;
inline constexpr double kTabShadow = 4;

// The mark of a colour at the left of a text box, and the text after it.
inline constexpr double kMarkLeft = 4, kMarkWidth = 4, kMarkIn = 4, kMarkedTextLeft = 13;

// Around the face of a floating panel, and of a swatch.
inline constexpr double kPanelShadow = 6, kSwatchRing = 3;

}  // namespace orvane::measures
