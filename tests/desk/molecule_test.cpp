#include "desk/molecule.h"

#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

TEST(Molecule, IsEmptyWhenTheProgramStarts) {
  DeskAtWork work;
  const Molecule& molecule = work.desk.molecule;

  EXPECT_EQ(molecule.AtomCount, 0);
  EXPECT_EQ(molecule.BondCount, 0);
  EXPECT_EQ(molecule.HBondCount, 0);
  EXPECT_EQ(molecule.MoleculeReady, 0);
  EXPECT_EQ(molecule.MolText, "");
}

TEST(Molecule, ClearingTheBondTablesReachesAsFarAsTheAtoms) {
  DeskAtWork work;
  Molecule& molecule = work.desk.molecule;
  for (int slot = 1; slot <= 4; ++slot) {
    molecule.BondA[slot] = molecule.BondB[slot] = 7;
    molecule.HBondA[slot] = molecule.HBondB[slot] = 7;
  }
  molecule.AtomCount = 3;
  ClearBondTables(molecule);

  for (int slot = 1; slot <= 4; ++slot) {
    const int expected = slot <= 3 ? 0 : 7;
    EXPECT_EQ(molecule.BondA[slot], expected);
    EXPECT_EQ(molecule.BondB[slot], expected);
    EXPECT_EQ(molecule.HBondA[slot], expected);
    EXPECT_EQ(molecule.HBondB[slot], expected);
  }
}

TEST(Molecule, TheCutsOfANameBeginAtItsThirdCharacterAndKeepBlanks) {
  const NameField name = "  O5*";
  EXPECT_EQ(ElementLetter(name), "O");
  EXPECT_EQ(ShortName(name), "O5");
  EXPECT_EQ(FullName(name), "O5*");
  EXPECT_EQ(ShortName(NameField("  O  ")), "O ");
  EXPECT_EQ(FullName(NameField()), "");
}

}  // namespace
}  // namespace orvane
