#include "narration/atom_walk.h"

#include <array>
#include <gtest/gtest.h>

#include "core/loader.h"
#include "draw/placed_atoms.h"
#include "measure/picks.h"
#include "narration/atom_words.h"

namespace orvane {
namespace {

// Counts what a skin is told about the walk.
struct WalkHeard : ControlWatcher {
  int Count = 0;
  void Changed(Control& control, Aspect aspect) override {
    if (aspect == Aspect::Walk && control.Name == "Picture1") ++Count;
  }
};

struct AtomWalkTest : testing::Test, PlacedAtoms {
  WalkHeard heard;
  AtomWalkTest() { desk.main.Watcher = &heard; }
  ~AtomWalkTest() override { desk.main.Watcher = nullptr; }

  void ThreeAtomsApart() {
    for (int i = 0; i < 3; ++i) Atom("  CA ", 100.25 + 50 * i, 80.5);
  }
};

enum DnaRow { kDoubleStrand = 2 };

TEST_F(AtomWalkTest, GoesThroughTheStoreAndStaysAtItsEnds) {
  ThreeAtomsApart();
  EXPECT_EQ(AtomOfWalk(desk), 0);

  for (const int expected : {1, 2, 3, 3}) {
    WalkToNext(desk);
    EXPECT_EQ(AtomOfWalk(desk), expected);
  }
  for (const int expected : {2, 1, 1}) {
    WalkToPrevious(desk);
    EXPECT_EQ(AtomOfWalk(desk), expected);
  }
  WalkToLast(desk);
  EXPECT_EQ(AtomOfWalk(desk), 3);
  WalkToFirst(desk);
  EXPECT_EQ(AtomOfWalk(desk), 1);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(AtomWalkTest, BeginsBackwardsAtTheLastAtom) {
  ThreeAtomsApart();
  WalkToPrevious(desk);
  EXPECT_EQ(AtomOfWalk(desk), 3);
}

TEST_F(AtomWalkTest, TellsThePicturesWatcherOfEachStep) {
  ThreeAtomsApart();
  WalkToNext(desk);
  WalkToNext(desk);
  EXPECT_EQ(heard.Count, 2);
  PickWalked(desk);
  EXPECT_EQ(heard.Count, 3);
  desk.molecule.MolText.clear();
  EXPECT_THROW(LoadMolecule(desk), Failure);  // no atoms; the walk ends all the same
  EXPECT_EQ(heard.Count, 4);
  EXPECT_EQ(AtomOfWalk(desk), 0);
}

TEST_F(AtomWalkTest, BeepsWhereThereIsNothingToWalkOn) {
  const std::vector<std::string> beep{"beep"};
  using Step = void (*)(Orvane_Desk&);
  constexpr std::array<Step, 5> kSteps{WalkToNext, WalkToPrevious, WalkToFirst, WalkToLast,
                                       PickWalked};
  for (const Step step : kSteps) {
    platform.Effects.clear();
    step(desk);
    EXPECT_EQ(platform.Effects, beep);
  }
  EXPECT_EQ(desk.walk.Number, 0);
}

TEST_F(AtomWalkTest, IsOnNoAtomWhileThePictureIsClearedOrCovered) {
  ThreeAtomsApart();
  WalkToNext(desk);

  desk.molecule.MoleculeReady = 0;
  EXPECT_EQ(AtomOfWalk(desk), 0);
  desk.molecule.MoleculeReady = 1;
  EXPECT_EQ(AtomOfWalk(desk), 1);
  desk.main.P_Pic1.Visible = false;
  EXPECT_EQ(AtomOfWalk(desk), 0);
}

// The events that a pointer makes there, in its order.
TEST_F(AtomWalkTest, PicksByThePressTheReleaseAndTheClickOfAPointerOnTheAtom) {
  ThreeAtomsApart();
  std::vector<std::string> events;
  const auto keep = [&](EventKind kind, const char* name) {
    desk.main.Picture1.Bind(kind, [&events, name](const Event& event) {
      events.push_back(name + std::to_string(event.Button));
      if (event.Button == 0) return;
      EXPECT_EQ(event.X, 150.25F);
      EXPECT_EQ(event.Y, 80.5F);
    });
  };
  keep(EventKind::Press, "press ");
  keep(EventKind::Release, "release ");
  keep(EventKind::Click, "click ");
  WalkToNext(desk);
  WalkToNext(desk);

  PickWalked(desk);

  EXPECT_EQ(events, (std::vector<std::string>{"press 1", "release 1", "click 0"}));
}

TEST_F(AtomWalkTest, ReadsBackWhatThePressTook) {
  ThreeAtomsApart();
  for (int picked = 1; picked <= 3; ++picked) {
    WalkToNext(desk);
    PickWalked(desk);
    EXPECT_EQ(desk.walk.Picked, picked);
    EXPECT_EQ(desk.walk.Taken, 1);
  }
  WalkToFirst(desk);
  EXPECT_EQ(desk.walk.Picked, 0) << "a step is no press";
  PickWalked(desk);
  EXPECT_EQ(desk.walk.Picked, 1);
  EXPECT_EQ(desk.measure.PickAtomD, 1);
  EXPECT_EQ(desk.measure.PickState, 0);
}

// If two atoms are five pixels apart, a press on one does not reach the other. If they are two
// apart it does, except from outside the pair: at 98 the atom at 100 is in reach, that at 102 is
// not.
TEST_F(AtomWalkTest, PressesWhereItTakesNoNeighbour) {
  Atom("  N  ", 100, 100);
  Atom("  CA ", 102, 100);
  WalkToFirst(desk);

  PickWalked(desk);

  EXPECT_EQ(desk.measure.PickState, 1);
  EXPECT_EQ(desk.walk.Picked, 1);
  EXPECT_EQ(desk.view.PressX, 98.0F);
  EXPECT_EQ(desk.view.PressY, 100.0F);
}

TEST_F(AtomWalkTest, SaysWhichAtomAPressTookLastIfTwoAreInOnePlace) {
  Atom("  N  ", 100, 100);
  Atom("  CA ", 100, 100);
  WalkToFirst(desk);

  PickWalked(desk);

  EXPECT_EQ(desk.measure.PickState, 2);
  EXPECT_EQ(desk.walk.Picked, 2);
  EXPECT_EQ(desk.walk.Taken, 2);
}

TEST_F(AtomWalkTest, AnAtomOutsideThePictureCannotBePressedOn) {
  Atom("  N  ", -40, 100);
  WalkToFirst(desk);

  PickWalked(desk);

  EXPECT_EQ(platform.Effects, (std::vector<std::string>{"beep"}));
  EXPECT_EQ(desk.measure.PickState, 0);
  EXPECT_EQ(desk.walk.Picked, 0);
}

TEST_F(AtomWalkTest, EveryLoadForgetsIt) {
  SelectRow(desk, desk.main.DNA_Lst, kDoubleStrand);
  WalkToLast(desk);
  ASSERT_EQ(AtomOfWalk(desk), desk.molecule.AtomCount);
  PickWalked(desk);

  SelectRow(desk, desk.main.AA_Lst, 1);

  EXPECT_EQ(AtomOfWalk(desk), 0);
  EXPECT_EQ(WalkWords(desk), "");
}

TEST_F(AtomWalkTest, ALoadThatFailsForgetsItToo) {
  SelectRow(desk, desk.main.AA_Lst, 1);
  WalkToNext(desk);
  ASSERT_EQ(AtomOfWalk(desk), 1);

  desk.molecule.MolText = "";  // no atom, no extent: the fit divides by zero
  EXPECT_THROW(LoadMolecule(desk), Failure);

  EXPECT_EQ(AtomOfWalk(desk), 0);
  WalkToNext(desk);  // no atom is left to walk on
  EXPECT_EQ(platform.Effects, (std::vector<std::string>{"beep"}));
}

TEST_F(AtomWalkTest, FourPicksByThePointerEndWhatItSaysOfItsOwn) {
  ThreeAtomsApart();
  WalkToFirst(desk);
  PickWalked(desk);
  ASSERT_EQ(WalkWords(desk), AtomWords(desk, 1) + ", picked as the first");

  for (const int atom : {2, 3, 2, 3}) TakePick(desk, atom);

  ASSERT_EQ(desk.measure.PickState, 1);  // as after the walk's pick
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 1));
}

TEST_F(AtomWalkTest, ATurnEndsTheFourthPickToo) {
  SelectRow(desk, desk.main.AA_Lst, 1);
  WalkToNext(desk);
  for (int pick = 1; pick <= 4; ++pick) PickWalked(desk);
  ASSERT_EQ(WalkWords(desk), AtomWords(desk, 1) + ", picked as the fourth");

  StepBar(desk, desk.main.VScroll1, 11);

  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 1));
}

TEST_F(AtomWalkTest, IsDescribedInWords) {
  SelectRow(desk, desk.main.AA_Lst, 1);  // glycine: N, CA, ...
  EXPECT_EQ(WalkWords(desk), "");
  WalkToNext(desk);
  WalkToNext(desk);
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 2));
  PickWalked(desk);
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 2) + ", picked as the first");
  WalkToNext(desk);
  PickWalked(desk);
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 3) + ", picked as the second");

  // A turn begins the cycle again, and what was said about it is no longer true.
  StepBar(desk, desk.main.VScroll1, 11);
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 3));
}

TEST_F(AtomWalkTest, TheWordsMentionAtomsTooCloseAndOneOutside) {
  Atom("  N  ", 100, 100);
  Atom("  CA ", 100, 100);
  Atom("  C  ", -40, 100);
  WalkToFirst(desk);
  PickWalked(desk);
  EXPECT_EQ(WalkWords(desk),
            AtomWords(desk, 1) + ", picked with 1 more close by; the second pick is atom 2");
  WalkToLast(desk);
  EXPECT_EQ(WalkWords(desk), AtomWords(desk, 3) + ", outside the picture");
}

// The steps leave alone what a command reads.
TEST_F(AtomWalkTest, AStepTouchesNoPickAndDrawsNothing) {
  SelectRow(desk, desk.main.AA_Lst, 1);
  const auto picture = desk.main.Picture1.Image();
  const int pick_state = desk.measure.PickState, atom_b = desk.molecule.BondAtomB;

  WalkToNext(desk);
  WalkToNext(desk);

  EXPECT_EQ(desk.main.Picture1.Image(), picture);
  EXPECT_EQ(desk.measure.PickState, pick_state);
  EXPECT_EQ(desk.molecule.BondAtomB, atom_b);
}

// N at (11.140, 8.020, 1.544) and CA at (10.466, 6.872, 2.145): the square root of 0.674 squared +
// 1.148 squared + 0.601 squared is 1.4609.
TEST_F(AtomWalkTest, TwoPickedAtomsGiveTheirDistance) {
  SelectRow(desk, desk.main.AA_Lst, 1);
  for (int i = 0; i < 2; ++i) {
    WalkToNext(desk);
    PickWalked(desk);
  }
  Click(desk, desk.main.Bt3_Dts);
  EXPECT_EQ(desk.main.P_Dst_Show.Caption, "  N   -  CA : 01.46 Angs \n   GLY 1 - GLY 1");
}

}  // namespace
}  // namespace orvane
