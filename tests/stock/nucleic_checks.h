// What sugars, bases and strands have in common.
#pragma once

#include "stock/structure.h"
#include "stock_check/constitution.h"

namespace orvane {

// `ring` names the oxygen and then the carbons, beginning with the one that carries the base;
// `residue` is put before each name ("3 ").
Pucker PuckerOf(const Structure& structure, const std::string& residue, const char* ring);

using stock_check::BondsOfBase;
using stock_check::BondsOfSugar;

// Lengths, angles, torsion of the glycosidic bond, pucker and hands of a deoxyribose with its base,
// against the published means.
void ExpectDeoxyribose(Structure& structure, int residue, char base);

}  // namespace orvane
