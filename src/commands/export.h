// Picture files: the three save commands, and the click on the pair of views. They work alike; what
// is written depends on what is on the screen.
#pragma once

#include <functional>

#include "desk/orvane_desk.h"

namespace orvane {

void S_bmp_Click(Orvane_Desk& desk);
void S_JPG_Click(Orvane_Desk& desk);  // ends a recording's state first
void S_Gif_Click(Orvane_Desk& desk);

// Writes one GIF, or one more frame of a recording: frame 0 and a plain save ask for the name,
// later frames reuse it. Goes on with `then`, which waits for the answer as the save does. A save
// that fails ends without it.
void SaveGif(Orvane_Desk& desk, Control& asking, std::function<void()> then);

// Restores the pointer and says that a name was not accepted. Nothing calls it: a save command
// would do so only after its work is done, so a save that fails ends in its own failure.
void ReportRefusedName(Orvane_Desk& desk, std::string_view name);

// Writes the pair of views as test.gif without asking; each click overwrites the same file.
void P_Sterio_Click(Orvane_Desk& desk);

}  // namespace orvane
