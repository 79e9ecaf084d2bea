#include "stock/generator.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "core/record.h"
#include "core/records.h"
#include "desk_fixture.h"
#include "stock/catalogue_tables.h"
#include "stock/residue_table.h"

namespace orvane {
namespace {

// Records are cut off after the third decimal or, below 10, after the fourth, and the expected
// values are rounded. So they are less than one step of the third decimal apart.
constexpr double kOneStep = 0.001 + 1e-9;

void SelectResidue(DeskAtWork& work, std::string_view key) {
  const auto& rows = work.desk.main.AA_Lst.Rows.Get();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].starts_with(key)) SelectRow(work.desk, work.desk.main.AA_Lst, int(row));
  }
}

void ExpectAtom(const Molecule& molecule, int i, std::string_view name, Point at) {
  EXPECT_EQ(FullName(molecule.AtomName[i]).substr(0, name.size()), name);
  EXPECT_NEAR(molecule.AtomX[i], at.X, kOneStep) << name;
  EXPECT_NEAR(molecule.AtomY[i], at.Y, kOneStep) << name;
  EXPECT_NEAR(molecule.AtomZ[i], at.Z, kOneStep) << name;
}

struct LastAtom {
  const char* Residue;
  int AtomCount;  // with the five of the frame
  const char* Name;
  Point At;
};

constexpr LastAtom kLastAtoms[] = {
    {"GLY", 10, "H5", {11.163, 6.530, 2.775}},  {"ALA", 13, "H7", {12.153, 5.734, 2.512}},
    {"SER", 11, "OG", {11.961, 6.705, 3.970}},  {"CYS", 11, "SG", {12.185, 6.812, 4.338}},
    {"THR", 12, "CG2", {12.472, 5.357, 2.178}}, {"VAL", 12, "CG2", {12.564, 5.433, 2.315}},
    {"LEU", 13, "CD2", {11.187, 3.893, 1.531}}, {"ILE", 13, "CD1", {13.010, 4.085, 2.793}},
    {"MET", 13, "CE", {10.244, 2.874, 3.501}},  {"PRO", 11, "CD", {12.387, 7.418, 1.264}},
    {"ASP", 13, "OD2", {11.637, 3.711, 2.329}}, {"ASN", 13, "ND2", {11.624, 3.667, 2.335}},
    {"GLU", 14, "OE2", {11.780, 2.755, 3.810}}, {"GLN", 14, "NE2", {11.785, 2.729, 3.855}},
    {"LYS", 14, "NZ", {12.373, 2.073, 3.821}},  {"ARG", 16, "NH2", {13.949, 1.425, 4.461}},
    {"TYR", 17, "OH", {8.652, 1.093, 4.015}},   {"PHE", 16, "CE2", {10.036, 2.462, 2.608}},
    {"TRP", 19, "CE3", {10.300, 5.777, 6.156}}, {"HIS", 15, "NE2", {9.203, 3.785, 5.232}},
};

class GeneratedResidue : public testing::TestWithParam<LastAtom> {};

TEST_P(GeneratedResidue, HasAllItsAtomsAndEndsWhereItsTableSays) {
  DeskAtWork work;
  SelectResidue(work, GetParam().Residue);

  EXPECT_TRUE(work.platform.Effects.empty());
  ASSERT_EQ(work.desk.molecule.AtomCount, GetParam().AtomCount);
  ExpectAtom(work.desk.molecule, GetParam().AtomCount, GetParam().Name, GetParam().At);
}

INSTANTIATE_TEST_SUITE_P(Residues, GeneratedResidue, testing::ValuesIn(kLastAtoms),
                         [](const auto& residue) { return std::string(residue.param.Residue); });

TEST(Generator, TheFirstAtomsLieOnTheFrame) {
  DeskAtWork work;
  SelectResidue(work, "ALA");

  const Molecule& molecule = work.desk.molecule;
  ExpectAtom(molecule, 6, "H2", {11.944, 7.700, 1.043});
  ExpectAtom(molecule, 7, "H1", {11.419, 8.650, 2.269});
  ExpectAtom(molecule, 8, "H3", {10.508, 8.478, 0.919});
  ExpectAtom(molecule, 9, "H4", {10.178, 6.335, 1.352});
  ExpectAtom(molecule, 10, "CB", {11.292, 5.937, 2.978});
}

TEST(Generator, CbIsWhereTheGeneralAminoAcidHasItsSideChain) {
  DeskAtWork work;
  SelectResidue(work, "Gen");
  ASSERT_EQ(work.desk.molecule.AtomName[5], "  R  ");
  const Point side_chain = {work.desk.molecule.AtomX[5], work.desk.molecule.AtomY[5],
                            work.desk.molecule.AtomZ[5]};
  SelectResidue(work, "VAL");

  ExpectAtom(work.desk.molecule, 10, "CB", side_chain);
}

TEST(Generator, EveryAtomIsAttachedToItsReferenceAtTheTablesLength) {
  DeskAtWork work;
  for (const std::string_view key : catalogue::kGeneratedKeys) {
    SelectResidue(work, key);
    const auto& placed = work.desk.generator.Placed;
    const auto at = [&](std::string_view name) {
      for (const PlacedAtom& atom : placed) {
        if (atom.Name == name) return atom.At;
      }
      ADD_FAILURE() << name << " of " << key;
      return Point{};
    };
    for (const Placement& row : kResiduePlacements) {
      if (row.Residue != key) continue;
      const Point a = at(row.Atom), b = at(row.BondedTo);
      EXPECT_NEAR(std::hypot(a.X - b.X, a.Y - b.Y, a.Z - b.Z), row.Length, 1e-9)
          << row.Atom << " of " << key;
    }
  }
}

TEST(Generator, TheAngleAtCaIsTheSupplementOfItsArgument) {
  DeskAtWork work;
  SelectResidue(work, "SER");
  const auto& placed = work.desk.generator.Placed;
  Point c, ca, cb;
  for (const PlacedAtom& atom : placed) {
    if (atom.Name == "C") c = atom.At;
    if (atom.Name == "CA") ca = atom.At;
    if (atom.Name == "CB") cb = atom.At;
  }
  const double dot =
      (c.X - ca.X) * (cb.X - ca.X) + (c.Y - ca.Y) * (cb.Y - ca.Y) + (c.Z - ca.Z) * (cb.Z - ca.Z);
  const double lengths = std::hypot(c.X - ca.X, c.Y - ca.Y, c.Z - ca.Z) *
                         std::hypot(cb.X - ca.X, cb.Y - ca.Y, cb.Z - ca.Z);
  // C lies below CA in z, so 69.98 becomes 180 - 69.98.
  EXPECT_NEAR(std::acos(dot / lengths) * 180 / std::acos(-1.0), 110.02, 1e-6);
}

TEST(Generator, ProlineKeepsTwoAmineHydrogensAndClosesItsRing) {
  DeskAtWork work;
  SelectResidue(work, "PRO");

  const Molecule& molecule = work.desk.molecule;
  std::set<std::string> names;
  for (int i = 1; i <= molecule.AtomCount; ++i) names.emplace(FullName(molecule.AtomName[i]));
  EXPECT_EQ(names.count("H2 "), 0u);
  EXPECT_EQ(names.count("H1 "), 1u);
  EXPECT_EQ(names.count("H3 "), 1u);
  bool closed = false;
  for (int b = 1; b <= molecule.BondCount; ++b) {
    closed |= molecule.BondA[b] == molecule.AtomCount && molecule.BondB[b] == 1;  // CD on N
  }
  EXPECT_TRUE(closed);
}

TEST(Generator, EveryRecordNamesGlycineAndSerial13) {
  DeskAtWork work;
  SelectResidue(work, "TRP");

  const Molecule& molecule = work.desk.molecule;
  const std::string_view text = molecule.MolText;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    EXPECT_EQ(molecule.ResName[i], "GLY");
    EXPECT_EQ(molecule.ResSeq[i], 1);
    if (i <= 5) continue;
    EXPECT_EQ(Mid(text, 1 + kRecordWidth * (i - 1), 11), "ATOM     13");
  }
}

TEST(Generator, ARecordHasItsFieldsInTheirColumns) {
  DeskAtWork work;
  SelectResidue(work, "GLY");

  // H2, the sixth atom: (11.944, 7.700, 1.043) to three decimals. x has 6 characters, y 6 and z 5,
  // so y, which is below 10, keeps a fourth decimal. The test compares its digits up to the third.
  const std::string_view record = Mid(work.desk.molecule.MolText, 1 + 5 * kRecordWidth, 55);
  EXPECT_EQ(record.substr(0, 34), "ATOM     13  H2  GLY     1      11");
  EXPECT_EQ(record.substr(34, 1), ".");
  EXPECT_EQ(record.substr(38, 3), "  7");
  EXPECT_EQ(record.substr(46, 4), "   1");
  EXPECT_EQ(record.substr(54), " ");  // closes it for the next one
}

TEST(Generator, CoordinatesAreCutAndNotRounded) {
  DeskAtWork work;
  work.desk.molecule.MolText = stock::TextFrame;
  LoadMolecule(work.desk);
  // The references are on the axes: 1 above the angle point on z, the torsion point on x. At 90
  // degrees the new atom is at x = origin + length, y = origin, z = origin + 1.
  work.desk.generator.RefAngle = {10, 20, 30};
  work.desk.generator.RefBonded = {10, 20, 31};
  work.desk.generator.RefTorsion = {11, 20, 30};
  PlaceAtom(work.desk, 0, 90, 1.0019, "XX ");

  const Molecule& molecule = work.desk.molecule;
  EXPECT_EQ(molecule.AtomCount, 6);
  EXPECT_NEAR(work.desk.generator.NewAtom.X, 11.0019, 1e-9);
  EXPECT_EQ(molecule.AtomX[6], 11.001);
  EXPECT_EQ(molecule.AtomY[6], 20.0);
  EXPECT_EQ(molecule.AtomZ[6], 31.0);  // five characters, "31.00"
}

TEST(Generator, PlaceAtomLeavesTheReferencesInItsOwnFrame) {
  DeskAtWork work;
  work.desk.molecule.MolText = stock::TextFrame;
  LoadMolecule(work.desk);
  Generator& g = work.desk.generator;
  g.RefAngle = {1, 1, 1};
  g.RefBonded = {1, 4, 5};
  g.RefTorsion = {3, 1, 1};
  PlaceAtom(work.desk, 0, 90, 1, "XX ");

  // The angle point is at the origin, the bonded point on the z axis at its distance, 5.
  EXPECT_EQ(g.RefAngle.X, 0);
  EXPECT_NEAR(g.RefBonded.X, 0, 1e-12);
  EXPECT_NEAR(g.RefBonded.Y, 0, 1e-12);
  EXPECT_NEAR(g.RefBonded.Z, 5, 1e-12);
  EXPECT_EQ(g.PlaceOrigin.X, 1);
}

TEST(Generator, ATorsionPointOnTheAxisIsADivisionByZero) {
  DeskAtWork work;
  Generator& g = work.desk.generator;
  g.RefAngle = {0, 0, 0};
  g.RefBonded = {0, 0, 1};
  g.RefTorsion = {0, 0, 2};
  EXPECT_THROW(PlaceAtom(work.desk, 0, 90, 1, "XX "), Failure);
}

TEST(Generator, AnEmptyKeyChangesNothing) {
  DeskAtWork work;
  SelectResidue(work, "ALA");
  const std::string text = work.desk.molecule.MolText;
  const std::size_t placed = work.desk.generator.Placed.size();
  GenerateResidue(work.desk, "");

  EXPECT_EQ(work.desk.molecule.MolText, text);
  EXPECT_EQ(work.desk.generator.Placed.size(), placed);
}

TEST(Generator, TheNextSelectionReplacesTheTextWhole) {
  DeskAtWork work;
  SelectResidue(work, "TRP");
  EXPECT_EQ(work.desk.molecule.MolText.size(), 19u * kRecordWidth - 1);  // no closing blank
  SelectResidue(work, "GLY");
  EXPECT_EQ(work.desk.molecule.MolText.size(), 10u * kRecordWidth - 1);
}

TEST(Generator, TheResidueGrowsOnTheScreenAtomByAtom) {
  DeskAtWork work;
  std::set<int> shown;
  work.desk.main.Picture1.Bind(EventKind::Change,
                               [&](const Event&) { shown.insert(work.desk.molecule.AtomCount); });
  SelectResidue(work, "ALA");

  for (int atoms = 6; atoms <= 13; ++atoms) EXPECT_TRUE(shown.contains(atoms)) << atoms;
}

TEST(ResidueTable, EveryReferenceIsOnTheFrameOrPlacedBefore) {
  for (const std::string_view key : catalogue::kGeneratedKeys) {
    std::set<std::string_view> known = {"N", "CA", "C", "O"};
    const auto check = [&](const Placement& row) {
      for (const std::string_view name : {row.BondedTo, row.AngleRef, row.TorsionRef}) {
        EXPECT_TRUE(known.contains(name)) << name << " for " << row.Atom << " of " << key;
      }
      EXPECT_NE(row.BondedTo, row.AngleRef);
      EXPECT_NE(row.AngleRef, row.TorsionRef);
      EXPECT_TRUE(known.insert(row.Atom).second) << row.Atom << " of " << key << " twice";
      EXPECT_LE(row.Atom.size(), 3u);
      EXPECT_GT(row.Length, 0);
    };
    for (const Placement& row : kCommonPlacements) {
      if (row.Residue != key) check(row);
    }
    for (const Placement& row : kResiduePlacements) {
      if (row.Residue == key) check(row);
    }
  }
}

TEST(ResidueTable, EveryRowBelongsToAKeyOfTheList) {
  const std::set<std::string_view> keys(catalogue::kGeneratedKeys.begin(),
                                        catalogue::kGeneratedKeys.end());
  EXPECT_EQ(keys.size(), 20u);
  std::set<std::string_view> with_rows;
  for (const Placement& row : kResiduePlacements) {
    EXPECT_TRUE(keys.contains(row.Residue)) << row.Residue;
    with_rows.insert(row.Residue);
  }
  EXPECT_EQ(with_rows, keys);
}

}  // namespace
}  // namespace orvane
