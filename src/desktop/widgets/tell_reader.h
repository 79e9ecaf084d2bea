// What a widget tells whoever reads the screen aloud, when it happens.
#pragma once

#include "controls/spoken.h"

namespace orvane {

class ControlView;
class RowList;

// On or off, or one of a few.
bool IsSwitch(SpokenRole role);

// The state of a switch has changed; a result has come.
void TellState(ControlView& view);
void Announce(ControlView& view);

// Another row was chosen, -1 for none.
void TellChosen(RowList& list, int before, int now);
// The keyboard has come to the list: the reader goes on to its row.
void TellKeyboardAtRow(RowList& list);

}  // namespace orvane
