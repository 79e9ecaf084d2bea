// What the structure on the desk and its residues are called. The names are those of the four
// lists; there is no second list of them.
#pragma once

#include <string>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

// The name as the window's title has it, without a bracket that only repeats the list's key:
// "Alanine", "Alpha helix structure (polypeptide)". Empty where the title names none.
std::string StructureName(const Orvane_Desk& desk);

// The name of the residue that an atom belongs to, for the middle of a sentence: "alanine",
// "DeoxyAdenosine". A residue that is in no list keeps the name in its records.
std::string ResidueName(const Orvane_Desk& desk, int atom);

bool HasSeveralResidues(const Molecule& molecule);

// The key of the amino acid that was built on the frame, if that is what is loaded; else empty. Its
// records name glycine whatever it is.
std::string_view GeneratedKey(const Orvane_Desk& desk);

std::string WithCapital(std::string text);         // the first letter, and no other
std::string_view Trimmed(std::string_view field);  // a field of a record without its blanks

}  // namespace orvane
