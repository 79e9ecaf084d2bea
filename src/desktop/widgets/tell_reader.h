// What a widget tells a screen reader when it happens.
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

// Says that another row was chosen, -1 for none.
void TellChosen(RowList& list, int before, int now);
// The list has got the keyboard: the reader goes on to the chosen row.
void TellKeyboardAtRow(RowList& list);

}  // namespace orvane
