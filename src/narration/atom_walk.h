// A walk over the atoms by keys, in the order of the store, and a press of the pointer on the atom
// that it stands on. The watcher of `Picture1` is told of each step as `Aspect::Walk`.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// The atom that the walk stands on; 0 when it stands on none, after another load, and while there
// is no structure in the picture.
int AtomOfWalk(const Orvane_Desk& desk);

// The atom it stands on, in plain words, and what the last press there took: "Carbon CA of glycine,
// atom 2, picked as the first". Empty when it stands on none.
std::string WalkWords(const Orvane_Desk& desk);

// The same, and for an atom of a built amino acid, on lines of its own, how it was placed.
std::string WalkWordsAndRecipe(const Orvane_Desk& desk);

// Each stops at the ends of the store and beeps where there is nothing to walk on. The first step
// goes to the first atom, or backwards to the last.
void WalkToNext(Orvane_Desk& desk);
void WalkToPrevious(Orvane_Desk& desk);
void WalkToFirst(Orvane_Desk& desk);
void WalkToLast(Orvane_Desk& desk);

// Presses, releases and clicks the left button where the atom lies. A press takes every atom within
// its reach, so it is made where it takes the fewest others; what it took is read back into the
// walk. An atom outside the picture cannot be pressed on; then it beeps.
void PickWalked(Orvane_Desk& desk);

}  // namespace orvane
