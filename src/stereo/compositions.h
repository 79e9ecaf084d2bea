// The composed views: a second eye or a mirror form is made by really turning every atom about the
// vertical axis, painting, keeping the picture and turning back. Nothing is reflected and no pixel
// is read. Each leaves the axis selector as it found it, and PickState at 0, since it turns.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

inline constexpr double kEyeAngle = 9.0;       // degrees between the two eyes
inline constexpr double kMirrorAngle = 180.0;  // a half turn shows the mirrored outline

// L_Img: the view as it stands; R_Img: the view turned by the angle between the eyes. Three
// repaints.
void ComposeStereoPair(Orvane_Desk& desk);

// The same for the second pair of images, without the repaint before the first picture. Nothing
// calls it; it is kept ready for a second pair.
void ComposeStereoPairB(Orvane_Desk& desk);

// L_Img: the view as it stands; R_Img: its half turn. While D/L Str is on, the turns and repaints
// run but the images keep what they hold. Each half is a red-green picture while that view is on.
void ComposeEnantiomerPair(Orvane_Desk& desk);

// Paints the view turned by the angle between the eyes in red, then the unturned view in green over
// it, on what the surface holds. Leaves PenColour green: the next repaint is green, and the tail
// adds red and green again. The trace painter always wipes, so the trace family ends in green
// alone.
void ComposeRedGreen(Orvane_Desk& desk);

}  // namespace orvane
