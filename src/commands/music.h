// The music commands. No menu reaches them in this version; they are complete.
#pragma once

#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

// Where the stock tunes are looked for: below this folder, which ends in a separator.
std::string StockSoundFolder(const Orvane_Desk& desk);

void PlayStockSound(Orvane_Desk& desk);  // SoundFile below the stock folder; then Timer1 is enabled
// Opens and plays SoundPath, closing what was open; gives the length in whole seconds, 0 after an
// error.
int PlayWave(Orvane_Desk& desk);
void ReportSoundError(Orvane_Desk& desk, int error_number);

void PMSC_Click(Orvane_Desk& desk, int tune);  // 1 to 9
void OpMfL_Click(Orvane_Desk& desk);           // opens the music chooser
void StMsc_Click(Orvane_Desk& desk);           // stops and closes, whether anything plays or not
void Drive1_Change(Orvane_Desk& desk);         // puts its folders into Dir1
void Dir1_Change(Orvane_Desk& desk);           // puts its sound files into File1
void File1_DblClick(Orvane_Desk& desk);        // plays the chosen file and closes the chooser

}  // namespace orvane
