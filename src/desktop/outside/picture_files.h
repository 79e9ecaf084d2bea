// Writes pictures to files: what is on the screen, in the screen's own pixels.
#pragma once

#include <string>

#include <QImage>

#include "controls/platform.h"

namespace orvane {

class Screen;

// Where pictures go: the folder of the program, or, where the user may not write there, a folder of
// its own among the user's pictures, which is made when it is first needed.
std::string PictureFolder(const std::string& program_folder);

// What `source` shows. A surface's strokes are rastered at the size that they have on the screen,
// even while it is hidden; anything else is taken as its widgets paint it.
QImage PictureOf(Screen& screen, Control& source);

// Writes the picture into that folder and nowhere else, or ends in FailPlatform.
void SavePictureFile(Screen& screen, const SaveRequest& request, const std::string& folder);

}  // namespace orvane
