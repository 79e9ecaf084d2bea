#include "stock/nucleic_checks.h"

#include <array>
#include <gtest/gtest.h>

#include "stock_check/published.h"

namespace orvane {

using stock_check::IsPurine;

namespace {

// One unit serves every residue, so it is a little off each mean, but well within one standard
// deviation of the crystals, 0.010 to 0.020 and 1 to 2 degrees.
constexpr double kLengthOffMean = 0.004;
constexpr double kAngleOffMean = 1.0;

}  // namespace

Pucker PuckerOf(const Structure& structure, const std::string& residue, const char* ring) {
  std::array<Point, 5> at;
  const std::vector<std::string> names = WordsOf(ring);
  for (std::size_t i = 0; i < at.size(); ++i) {
    at[i] = structure.At(structure.Atom(residue + names.at(i)));
  }
  return orvane::PuckerOf(at);
}

void ExpectDeoxyribose(Structure& structure, int residue, char base) {
  const std::string number = std::to_string(residue) + " ";
  const auto atom = [&](const std::string& name) {
    return structure.Atom(number + (name != "N" ? name : IsPurine(base) ? "N9" : "N1"));
  };
  for (const stock_check::Published& mean : stock_check::Backbones()) {
    if (mean.Unit != "sugar") continue;
    const std::vector<std::string> names = WordsOf(mean.Atoms);
    if (mean.Atoms == "C1* N") continue;  // below: the two kinds of base differ
    if (names.size() == 2) {
      EXPECT_NEAR(structure.Length(atom(names[0]), atom(names[1])), mean.Mean, kLengthOffMean)
          << base << " " << mean.Atoms;
    } else {
      EXPECT_NEAR(structure.Angle(atom(names[0]), atom(names[1]), atom(names[2])), mean.Mean,
                  kAngleOffMean)
          << base << " " << mean.Atoms;
    }
  }
  // Purines hold their sugar a little closer (1.460) than pyrimidines (1.470); the mean is of both.
  EXPECT_NEAR(structure.Length(atom("C1*"), atom("N")), 1.474, 0.020) << base;
  EXPECT_NEAR(structure.Length(atom("C1*"), atom("N")), IsPurine(base) ? 1.460 : 1.470, 0.002);
  // The base points away from the sugar (anti), the ring is C2'-endo.
  EXPECT_NEAR(
      structure.Torsion(atom("O4*"), atom("C1*"), atom("N"), atom(IsPurine(base) ? "C4" : "C2")),
      -116, 2.0);
  EXPECT_NEAR(structure.Torsion(atom("O5*"), atom("C5*"), atom("C4*"), atom("C3*")), 48, 1.0);
  EXPECT_NEAR(structure.Torsion(atom("C5*"), atom("C4*"), atom("C3*"), atom("O3*")), 138, 1.0);
  const Pucker pucker = PuckerOf(structure, number, "O4* C1* C2* C3* C4*");
  EXPECT_NEAR(pucker.Phase, 155, 1.5);
  EXPECT_NEAR(pucker.Amplitude, 35, 1.0);
  // The hand of each carbon that has one: beta-D-deoxyribose.
  EXPECT_GT(structure.Hand(atom("C1*"), atom("O4*"), atom("C2*"), atom("N")), 1.0);
  EXPECT_LT(structure.Hand(atom("C3*"), atom("C2*"), atom("C4*"), atom("O3*")), -1.0);
  EXPECT_GT(structure.Hand(atom("C4*"), atom("C3*"), atom("O4*"), atom("C5*")), 1.0);
}

}  // namespace orvane
