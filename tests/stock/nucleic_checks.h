// What is alike in sugars, bases and strands.
#pragma once

#include "stock/structure.h"

namespace orvane {

// How a five-membered ring is bent: the phase in degrees from 0 to 360, near 18 for C3'-endo and
// near 162 for C2'-endo, and the largest torsion (C. Altona & M. Sundaralingam, 1972).
struct Pucker {
  double Phase = 0;
  double Amplitude = 0;
};
// `ring` names the oxygen and then the carbons from the one that bears the base; `residue` stands
// before each name ("3 ").
Pucker PuckerOf(const Structure& structure, const std::string& residue, const char* ring);

// Names of the bonds of a base, of the sugar, and of the bond between them.
std::vector<std::string> BondsOfBase(char base);
std::vector<std::string> BondsOfSugar(char base);

// Lengths, angles, torsion of the glycosidic bond, pucker and hands of a deoxyribose with its base,
// against the published means.
void ExpectDeoxyribose(Structure& structure, int residue, char base);

}  // namespace orvane
