// What the picture shows at a point, and what an atom is called in plain words.
#pragma once

#include <string>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

// "Carbon" for the third character of an atom's name, "C". "Atom" for one that is no element.
std::string_view ElementWord(char letter);

// "Carbon CA of alanine, atom 2". Where a structure has several residues, with the number of this
// one: "Carbon CA of alanine 3, atom 12". Empty for a number that no atom has.
std::string AtomWords(const Orvane_Desk& desk, int atom);

// The atom that the main picture shows at a point, in surface pixels; 0 for none. It looks at the
// strokes, so an atom counts only where it is drawn: as a ball, as the end of a line, by its label.
// Of the balls that cover the point, the one drawn last lies in front. Where no ball covers it, the
// nearest place within `reach` counts.
int AtomAt(const Orvane_Desk& desk, float x, float y, float reach);

// The same for a half of a split view, in pixels of the control: also 0 when it does not show what
// the main surface holds, turned about the vertical.
int AtomAt(const Orvane_Desk& desk, const ImageBox& half, float x, float y, float reach);

}  // namespace orvane
