// Where the twenty amino acids, whose positions come from the generator's table, differ from the
// published means. Each length, angle and flat group of each is measured. A bend is more than three
// standard deviations off, or five degrees.
#pragma once

#include <string>
#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

// A bend is larger than this.
inline constexpr double kSpreads = 3;          // standard deviations
inline constexpr double kDegreesOff = 5;       // of any angle
inline constexpr double kOffPlane = 0.05;      // Angstrom, of an atom from the plane of its group
inline constexpr double kOverlap = 0.4;        // Angstrom, of two atoms that are not bonded
inline constexpr double kTetrahedral = 109.5;  // the true angle at hydrogens, which have no mean

enum class BendOf { Length, Angle, Sum, Height, Twist, Rings, Contact };

struct Bend {
  std::string Residue;
  BendOf Kind = BendOf::Length;
  std::string Atoms;  // "CD NE CZ"; for two rings their numbers of atoms: "5 6"
  double Measured = 0;
  double True = 0;
  double Deviation = 0;  // standard deviation; 0 if there is none

  double Off() const;  // in standard deviations if there is one, else in units of the limit
};

// Every length, angle and flat group that has a published value, bent or not.
std::vector<Bend> MeasuresOf(const StockRow& amino_acid);
bool IsBend(const Bend& measure);
std::vector<Bend> BendsOf(const StockRow& amino_acid);
// Two atoms more than three bonds apart that overlap by more than kOverlap; N, O and the hydrogens
// on nitrogen are left out, since they attract each other.
std::vector<Bend> ContactsTooNear(const StockRow& row);

// The mean distance from the published values, in standard deviations, of the ring of histidine
// with its hydrogen on ND1 ("HIS") or on NE2 ("HIE").
double RingOff(const StockRow& histidine, const std::string& form);

}  // namespace orvane::stock_check
