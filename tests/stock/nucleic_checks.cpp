#include "stock/nucleic_checks.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace orvane {

namespace {

constexpr double kRadians = std::numbers::pi / 180;

// A. Gelbin et al. (1996): means of crystals; Angstrom and degrees.
struct Mean {
  const char* Atoms;  // two for a length, three for an angle
  double Value;
};
constexpr Mean kMeans[] = {
    {"O5* C5*", 1.440},     {"C5* C4*", 1.511},     {"C4* O4*", 1.446},     {"O4* C1*", 1.420},
    {"C4* C3*", 1.528},     {"C3* C2*", 1.518},     {"C2* C1*", 1.521},     {"C3* O3*", 1.433},
    {"O5* C5* C4*", 109.4}, {"C5* C4* C3*", 114.7}, {"C5* C4* O4*", 109.4}, {"C3* C4* O4*", 105.6},
    {"C4* O4* C1*", 109.7}, {"O4* C1* C2*", 106.1}, {"C1* C2* C3*", 102.7}, {"C2* C3* C4*", 103.2},
    {"C2* C3* O3*", 110.6}, {"C4* C3* O3*", 110.3}, {"N C1* O4*", 107.8},   {"N C1* C2*", 114.2},
};
// One unit serves every residue, so it stands a little off each mean; far within one deviation of
// the crystals, 0.010 to 0.020 and 1 to 2 degrees.
constexpr double kLengthOffMean = 0.004;
constexpr double kAngleOffMean = 1.0;

bool IsPurine(char base) { return base == 'A' || base == 'G'; }

}  // namespace

Pucker PuckerOf(const Structure& structure, const std::string& residue, const char* ring) {
  std::vector<int> at;
  for (const std::string& name : WordsOf(ring)) at.push_back(structure.Atom(residue + name));
  const auto torsion = [&](int a, int b, int c, int d) {
    return structure.Torsion(at[static_cast<std::size_t>(a)], at[static_cast<std::size_t>(b)],
                             at[static_cast<std::size_t>(c)], at[static_cast<std::size_t>(d)]);
  };
  // Torsion k is about the k-th bond of the ring, counted from the one between oxygen and C1.
  const double t0 = torsion(4, 0, 1, 2), t1 = torsion(0, 1, 2, 3), t2 = torsion(1, 2, 3, 4),
               t3 = torsion(2, 3, 4, 0), t4 = torsion(3, 4, 0, 1);
  double phase =
      std::atan2(t4 + t1 - t3 - t0, 2 * t2 * (std::sin(36 * kRadians) + std::sin(72 * kRadians))) /
      kRadians;
  if (phase < 0) phase += 360;
  return {phase, t2 / std::cos(phase * kRadians)};
}

std::vector<std::string> BondsOfBase(char base) {
  switch (base) {
    case 'A':
      return WordsOf("C2-N1 C2-N3 C4-C5 C4-N3 C4-N9 C5-C6 C5-N7 C6-N1 C6-N6 C8-N7 C8-N9");
    case 'C':
      return WordsOf("C2-N1 C2-N3 C2-O2 C4-C5 C4-N3 C4-N4 C5-C6 C6-N1");
    case 'G':
      return WordsOf("C2-N1 C2-N2 C2-N3 C4-C5 C4-N3 C4-N9 C5-C6 C5-N7 C6-N1 C6-O6 C8-N7 C8-N9");
    default:
      return WordsOf("C2-N1 C2-N3 C2-O2 C4-C5 C4-N3 C4-O4 C5-C5M C5-C6 C6-N1");
  }
}

std::vector<std::string> BondsOfSugar(char base) {
  std::vector<std::string> names =
      WordsOf("C1*-C2* C1*-O4* C2*-C3* C3*-C4* C3*-O3* C4*-C5* C4*-O4* C5*-O5*");
  names.emplace_back(IsPurine(base) ? "C1*-N9" : "C1*-N1");
  return names;
}

void ExpectDeoxyribose(Structure& structure, int residue, char base) {
  const std::string number = std::to_string(residue) + " ";
  const auto atom = [&](const std::string& name) {
    return structure.Atom(number + (name != "N" ? name : IsPurine(base) ? "N9" : "N1"));
  };
  for (const Mean& mean : kMeans) {
    const std::vector<std::string> names = WordsOf(mean.Atoms);
    if (names.size() == 2) {
      EXPECT_NEAR(structure.Length(atom(names[0]), atom(names[1])), mean.Value, kLengthOffMean)
          << base << " " << mean.Atoms;
    } else {
      EXPECT_NEAR(structure.Angle(atom(names[0]), atom(names[1]), atom(names[2])), mean.Value,
                  kAngleOffMean)
          << base << " " << mean.Atoms;
    }
  }
  // Purines hold their sugar a little closer (1.460) than pyrimidines (1.470); the mean is of both.
  EXPECT_NEAR(structure.Length(atom("C1*"), atom("N")), 1.474, 0.020) << base;
  EXPECT_NEAR(structure.Length(atom("C1*"), atom("N")), IsPurine(base) ? 1.460 : 1.470, 0.002);
  // The base stands away from the sugar (anti), the ring is C2'-endo.
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
