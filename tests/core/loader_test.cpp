#include "core/loader.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"
#include "draw/redraw_chain.h"
#include "measure/hydrogen_bonds.h"

namespace orvane {
namespace {

// A row of atoms along x, too far apart for bonds.
std::string ChainOf(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += Record("N", 2.0 * i, 0, 0);
  return text;
}

// Two carbons this far apart along x, placed without the eight columns of a record.
void PlacePair(Orvane_Desk& desk, double length) {
  Load(desk, Record("C", 0, 0, 0) + Record("C", 5, 0, 0));
  desk.molecule.AtomX[2] = length;
  FindBonds(desk);
}

// Loads a text that fails; returns the clause of the failure.
std::string LoadFails(Orvane_Desk& desk, const std::string& text) {
  try {
    Load(desk, text);
  } catch (const Failure& failure) {
    return failure.what();
  }
  return "";
}

TEST(Loader, ReadsEveryFieldOfARecordByItsColumns) {
  DeskAtWork work;
  Load(work.desk, Record("O5*", 1.5, -2.25, 30.125, {.Residue = "A", .Seq = 18, .Chain = 'B'}) +
                      Record("CA", 0, 0, 0, {.Residue = "ALA", .Seq = -3}));

  const Molecule& molecule = work.desk.molecule;
  EXPECT_EQ(molecule.AtomCount, 2);
  EXPECT_EQ(molecule.AtomName[1], "  O5*");
  EXPECT_EQ(molecule.AtomName[2], "  CA ");
  EXPECT_EQ(molecule.ResName[1], "  A");
  EXPECT_EQ(molecule.ResName[2], "ALA");
  EXPECT_EQ(molecule.ResSeq[1], 18);
  EXPECT_EQ(molecule.ResSeq[2], -3);
  EXPECT_EQ(molecule.AtomX[1], 1.5);
  EXPECT_EQ(molecule.AtomY[1], -2.25);
  EXPECT_EQ(molecule.AtomZ[1], 30.125);
  EXPECT_EQ(molecule.CurX[1], 1.5);
  EXPECT_EQ(molecule.CurY[1], -2.25);
  EXPECT_EQ(molecule.CurZ[1], 30.125);
}

TEST(Loader, AtomsAreNumberedByPositionNotBySerial) {
  DeskAtWork work;
  Load(work.desk, Record("N", 0, 0, 0, {.Serial = 9}) + Record("C", 5, 0, 0, {.Serial = 9}) +
                      Record("O", 9, 0, 0, {.Serial = 2}));

  for (int i = 1; i <= 3; ++i) EXPECT_EQ(work.desk.molecule.AtomSerial[i], i);
  EXPECT_EQ(work.desk.molecule.AtomName[3], "  O  ");
}

TEST(Loader, TheLastRecordMayLackItsClosingBlank) {
  DeskAtWork work;
  std::string text = ChainOf(2);
  text.pop_back();
  Load(work.desk, text);

  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
  EXPECT_EQ(work.desk.molecule.AtomX[2], 4.0);
}

TEST(Loader, StopsAtTheFirstRecordThatIsNotAnAtom) {
  DeskAtWork work;
  const std::string other = "TER" + std::string(52, ' ');
  Load(work.desk, ChainOf(2) + other + ChainOf(3));

  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
}

TEST(Loader, OnlyTheFirstTwoLettersOfARecordTypeCount) {
  DeskAtWork work;
  std::string text = ChainOf(2);
  text.replace(0, 4, "ATxx");
  Load(work.desk, text);

  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
}

TEST(Loader, ACoordinateEndsAtTheFirstCharacterThatIsNotPartOfANumber) {
  DeskAtWork work;
  std::string text = ChainOf(2);
  text.replace(30, 8, "  1.5x99");
  text.replace(38, 8, "   1,5  ");
  text.replace(46, 8, "   what ");
  Load(work.desk, text);

  EXPECT_EQ(work.desk.molecule.AtomX[1], 1.5);
  EXPECT_EQ(work.desk.molecule.AtomY[1], 1.0);
  EXPECT_EQ(work.desk.molecule.AtomZ[1], 0.0);
}

TEST(Loader, AResidueNumberIsBlanksASignAndDigits) {
  DeskAtWork work;
  const std::pair<const char*, int> rows[] = {{"   7", 7},    {"7   ", 7}, {" 12 ", 12},
                                              {"-345", -345}, {"  +8", 8}, {"0012", 12}};
  for (const auto& [field, number] : rows) {
    std::string text = ChainOf(2);
    text.replace(22, 4, field);
    Load(work.desk, text);
    EXPECT_EQ(work.desk.molecule.ResSeq[1], number) << field;
  }
}

TEST(Loader, AResidueNumberThatIsNotAnIntegerEndsTheLoad) {
  DeskAtWork work;
  for (const std::string field : {"  1A", "    ", "1 2 ", " 1.5", "1e1 ", "12.5", " 1. ", "- 1 "}) {
    std::string text = ChainOf(2);
    text.replace(22, 4, field);
    EXPECT_EQ(LoadFails(work.desk, text), "\"" + field + "\" is not a number that fits here");
  }
}

TEST(Loader, AnEmptyTextGivesNoAtomsAndThenFailsOnTheBox) {
  DeskAtWork work;
  Load(work.desk, ChainOf(2));

  EXPECT_EQ(LoadFails(work.desk, ""), "a number was divided by zero");
  EXPECT_EQ(work.desk.molecule.AtomCount, 0);
  EXPECT_EQ(work.desk.molecule.BondCount, 0);
}

TEST(Loader, ATextOfAnotherTypeGivesNoAtomsAndThenFailsOnTheBox) {
  DeskAtWork work;
  EXPECT_EQ(LoadFails(work.desk, "HETATM" + ChainOf(1)), "a number was divided by zero");
  EXPECT_EQ(work.desk.molecule.AtomCount, 0);
}

TEST(Loader, OneAtomOrSeveralInOnePlaceHaveNoExtentToFit) {
  DeskAtWork work;
  EXPECT_EQ(LoadFails(work.desk, ChainOf(1)), "a number was divided by zero");
  EXPECT_EQ(LoadFails(work.desk, ChainOf(1) + ChainOf(1)), "a number was divided by zero");
  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
}

TEST(Loader, Record596LoadsAndRecord597Fails) {
  DeskAtWork work;
  Load(work.desk, ChainOf(596));
  EXPECT_EQ(work.desk.molecule.AtomCount, 596);

  // The 597th would begin at character 1 + 55 * 596 = 32781, beyond 32767.
  EXPECT_EQ(LoadFails(work.desk, ChainOf(597)), "a whole number grew beyond what it can hold");
  EXPECT_EQ(work.desk.molecule.AtomCount, 596);
}

TEST(Loader, HidesTheDriveListAndLeaves2InBondAtomB) {
  DeskAtWork work;
  work.desk.main.Drive1.Visible = true;
  Load(work.desk, ChainOf(9));

  EXPECT_FALSE(work.desk.main.Drive1.Visible);
  EXPECT_EQ(work.desk.molecule.BondAtomA, 9);
  EXPECT_EQ(work.desk.molecule.BondAtomB, 2);
}

TEST(Loader, LeavesTheViewAsItIs) {
  DeskAtWork work;
  work.desk.view.PanX = 30;
  Load(work.desk, ChainOf(3));

  EXPECT_EQ(work.desk.view.PanX, 30);
  // Atom 2 is the centre of the box, so it is in the middle of the 360 pixels, plus the pan.
  EXPECT_EQ(work.desk.molecule.ScrX[2], 180 + 30);
  EXPECT_EQ(work.desk.molecule.ScrY[2], 180);
}

TEST(Loader, ANewStructureFillsHalfOfTheSurface) {
  DeskAtWork work;
  Load(work.desk, Record("C", 0, 0, 0) + Record("C", 10, 5, 0));

  // Largest extent 10; x runs from 180 - 90 to 180 + 90, y half of that, downward.
  EXPECT_DOUBLE_EQ(work.desk.molecule.ScrX[1], 90);
  EXPECT_DOUBLE_EQ(work.desk.molecule.ScrX[2], 270);
  EXPECT_DOUBLE_EQ(work.desk.molecule.ScrY[1], 135);
  EXPECT_DOUBLE_EQ(work.desk.molecule.ScrY[2], 225);
}

TEST(Loader, SlotsAboveTheCountKeepWhatALargerStructureLeft) {
  DeskAtWork work;
  Load(work.desk, ChainOf(5));
  Load(work.desk, ChainOf(2));

  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
  EXPECT_EQ(work.desk.molecule.AtomX[5], 10.0);
}

TEST(Loader, NoStaleAtomOfALargerStructureIsPaintedOrPicked) {
  DeskAtWork work, fresh;
  const auto bonded = [](int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) text += Record("N", 1.5 * i, 0, 0);
    return text;
  };
  Load(work.desk, bonded(5));
  Load(work.desk, bonded(2));
  Load(fresh.desk, bonded(2));
  for (Orvane_Desk* desk : {&work.desk, &fresh.desk}) {
    desk->molecule.MoleculeReady = 1;
    Click(*desk, desk->main.D_StB, Reach::Forced);
    Click(*desk, desk->main.Bt3_Label);
  }
  EXPECT_EQ(work.desk.main.Picture1.Image()->Strokes, fresh.desk.main.Picture1.Image()->Strokes);

  // Atom 4 of the larger structure lay a quarter to the right of the middle. No atom is there now.
  const double x = work.desk.molecule.ScrX[4], y = work.desk.molecule.ScrY[4];
  Press(work.desk, work.desk.main.Picture1, kLeftButton, static_cast<float>(x),
        static_cast<float>(y));
  EXPECT_EQ(work.desk.measure.PickState, 0);
}

TEST(Loader, ABondScanClearsTheReadout) {
  DeskAtWork work;
  work.desk.main.P_Dst_Show.Caption = "  N  -  O  : 02.90 Angs ";
  Load(work.desk, ChainOf(2));

  EXPECT_EQ(work.desk.main.P_Dst_Show.Caption, "");
}

TEST(Loader, TheTextStaysAfterTheLoad) {
  DeskAtWork work;
  Load(work.desk, ChainOf(2));

  EXPECT_EQ(work.desk.molecule.MolText, ChainOf(2));
}

TEST(Loader, DistanceIsTheEuclideanOne) {
  DeskAtWork work;
  Load(work.desk, Record("C", 1, 1, 1) + Record("C", 3, 4, 7));

  EXPECT_DOUBLE_EQ(work.desk.molecule.DistResult, 7.0);  // 2, 3, 6
}

TEST(FindBonds, AtExactlyTheLimitAtomsAreBonded) {
  DeskAtWork work;
  PlacePair(work.desk, 1.85);
  EXPECT_EQ(work.desk.molecule.BondCount, 1);
}

TEST(FindBonds, ComparesIn32Bits) {
  DeskAtWork work;
  // 32-bit values near 1.85 are 2^-23 = 1.19e-7 apart. A twentieth of a step above the limit rounds
  // down to the limit; a whole step does not.
  const double limit = kBondLimit;
  PlacePair(work.desk, limit + std::ldexp(1.0, -23) / 20);
  EXPECT_EQ(work.desk.molecule.BondCount, 1);
  PlacePair(work.desk, limit + std::ldexp(1.0, -23));
  EXPECT_EQ(work.desk.molecule.BondCount, 0);
}

TEST(FindBonds, KnowsNoElementAndNoResidue) {
  DeskAtWork work;
  PlacePair(work.desk, 2.05);  // a disulphide bridge
  EXPECT_EQ(work.desk.molecule.BondCount, 0);
  PlacePair(work.desk, 1.09);  // a hydrogen and its carbon
  EXPECT_EQ(work.desk.molecule.BondCount, 1);

  Load(work.desk, Record("H1", 0, 0, 0, {.Seq = 1}) + Record("H2", 1.6, 0, 0, {.Seq = 7}));
  EXPECT_EQ(work.desk.molecule.BondCount, 1);
}

TEST(FindBonds, AtomsInOnePlaceAreNotBonded) {
  DeskAtWork work;
  PlacePair(work.desk, 0.0);
  EXPECT_EQ(work.desk.molecule.BondCount, 0);
}

TEST(FindBonds, PairsComeInOrderWithTheHigherAtomFirst) {
  DeskAtWork work;
  // Four atoms of a square of side 1, all within 1.42 of each other.
  Load(work.desk,
       Record("C", 0, 0, 0) + Record("C", 1, 0, 0) + Record("C", 1, 1, 0) + Record("C", 0, 1, 0));

  const int expected[][2] = {{2, 1}, {3, 1}, {3, 2}, {4, 1}, {4, 2}, {4, 3}};
  ASSERT_EQ(work.desk.molecule.BondCount, 6);
  for (int b = 1; b <= 6; ++b) {
    EXPECT_EQ(work.desk.molecule.BondA[b], expected[b - 1][0]);
    EXPECT_EQ(work.desk.molecule.BondB[b], expected[b - 1][1]);
    EXPECT_EQ(work.desk.molecule.BondSerial[b], b);
  }
}

TEST(FindBonds, AFoundBondLeavesNoDistanceBehind) {
  DeskAtWork work;
  PlacePair(work.desk, 1.5);
  EXPECT_EQ(work.desk.molecule.DistResult, 0.0);
  PlacePair(work.desk, 2.5);
  EXPECT_EQ(work.desk.molecule.DistResult, 2.5);
}

TEST(FindBonds, DoesNotDependOnTheView) {
  DeskAtWork work;
  PlacePair(work.desk, 1.5);
  work.desk.molecule.CurX[2] = 100;
  FindBonds(work.desk);

  EXPECT_EQ(work.desk.molecule.BondCount, 1);
}

TEST(FindBonds, CountsOnlyTheNewAtomsAfterALargerStructure) {
  DeskAtWork work;
  Load(work.desk, Record("C", 0, 0, 0) + Record("C", 1, 0, 0) + Record("C", 1, 1, 0));
  EXPECT_EQ(work.desk.molecule.BondCount, 3);
  Load(work.desk, Record("C", 0, 0, 0) + Record("C", 1.5, 0, 0));
  EXPECT_EQ(work.desk.molecule.BondCount, 1);
}

TEST(FindBonds, Bond30001HasNoSlot) {
  DeskAtWork work;
  Load(work.desk, Record("C", 0, 0, 0) + Record("C", 1, 0, 0));
  Molecule& molecule = work.desk.molecule;
  molecule.BondCount = kLastSlot - 1;
  molecule.BondAtomA = 2;
  molecule.BondAtomB = 1;

  AppendBond(molecule);
  EXPECT_EQ(molecule.BondA[kLastSlot], 2);
  EXPECT_THROW(AppendBond(molecule), Failure);
  EXPECT_EQ(molecule.BondCount, kLastSlot);
}

// 246 atoms within a bond's length of each other, no two in one place, have 246 * 245 / 2 = 30135
// pairs. The desk goes on with the bonds that there was room for.
TEST(FindBonds, AHeapOfAtomsEndsAtTheLastSlotAndCanBeDrawn) {
  DeskAtWork work;
  std::string text;
  for (int i = 0; i < 246; ++i) {
    const int layer = i / 42, row = i / 7 % 6, column = i % 7;
    text += Record("C", column * 0.1, row * 0.1, layer * 0.1);
  }
  work.desk.molecule.MolText = text;

  EXPECT_THROW(LoadMolecule(work.desk), Failure);

  EXPECT_EQ(work.desk.molecule.BondCount, kLastSlot);
  EXPECT_NO_THROW(RedrawView(work.desk));
}

TEST(FitBox, TheCentreIsThatOfTheBoxAndNotTheMean) {
  DeskAtWork work;
  // Three atoms near one end: the mean of x is 3.5, the centre 5.
  Load(work.desk,
       Record("C", 0, -4, 1) + Record("C", 0, 0, 1) + Record("C", 4, 2, 1) + Record("C", 10, 2, 2));

  const Molecule& molecule = work.desk.molecule;
  EXPECT_EQ(molecule.BoxCentreX, 5);
  EXPECT_EQ(molecule.BoxCentreY, -1);
  EXPECT_EQ(molecule.BoxCentreZ, 1.5);
  EXPECT_EQ(molecule.PivotX, 5);
  EXPECT_EQ(molecule.PivotY, -1);
  EXPECT_EQ(molecule.PivotZ, 1.5);
  EXPECT_EQ(molecule.FitScale, 0.1);
}

TEST(FitBox, TheSmallestCoordinatesBecomeTheCentreAndTheLargestStay) {
  DeskAtWork work;
  Load(work.desk, Record("C", 2, -4, 1) + Record("C", 10, 2, 2));

  const Molecule& molecule = work.desk.molecule;
  EXPECT_EQ(molecule.MinX, 6);
  EXPECT_EQ(molecule.MinY, -1);
  EXPECT_EQ(molecule.MinZ, 1.5);
  EXPECT_EQ(molecule.MaxX, 10);
  EXPECT_EQ(molecule.MaxY, 2);
  EXPECT_EQ(molecule.MaxZ, 2);
}

}  // namespace
}  // namespace orvane
