// What every regular peptide chain of the stock has in common.
#pragma once

#include <span>

#include "stock/structure.h"

namespace orvane {

// The published peptide group in Angstrom and degrees, and how close to it the chain must be.
struct PeptideGeometry {
  double NCAC, CACN, CACO, OCN;  // angles that differ between helix and strand
};
// R. A. Engh & R. Huber (1991): the lengths are the same in all chains.
inline constexpr double kNCA = 1.458, kCAC = 1.525, kCN = 1.329, kCO = 1.231, kCACB = 1.521,
                        kCAR = 1.530, kCNCA = 121.7;
inline constexpr double kLengthSlack = 0.002;  // three decimals move a length by up to 0.001
inline constexpr double kAngleSlack = 0.15;
inline constexpr double kTorsionSlack = 0.2;

// Lengths, angles, planar trans peptide bonds and L residues from the first residue to the last,
// which follow one another in one run; `side` is R or CB.
void ExpectPeptide(Structure& structure, int first, int last, const char* side,
                   const PeptideGeometry& geometry);

// Phi and psi between all neighbours of a run.
void ExpectTorsions(const Structure& structure, int first, int last, double phi, double psi,
                    double slack);

// The hydrogen bonds as "5 N-1 O", sorted by residue.
std::vector<std::string> HydrogenBondNames(const Structure& structure);

}  // namespace orvane
