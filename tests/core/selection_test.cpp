#include "core/selection.h"

#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

std::string Pair() { return Record("C", 0, 0, 0) + Record("O", 1.2, 0, 0); }

std::vector<Control*> ListsAndHeads(MainWindow& main) {
  return {&main.AA_Lst,   &main.Pro_Lst,  &main.Nuc_Lst,  &main.DNA_Lst,
          &main.Panel3D1, &main.Panel3D2, &main.Panel3D3, &main.Panel3D4};
}

void ExpectListsOnView(MainWindow& main) {
  for (const Control* control : ListsAndHeads(main)) EXPECT_TRUE(control->Visible) << control->Name;
}

TEST(Selection, PreparationClearsTheBondsAndStopsTheSpin) {
  DeskAtWork work;
  Load(work.desk, Pair());
  work.desk.view.AutoRotateOn = 1;
  work.desk.main.P_Auto_Rotate.Style = Look{1, 2};
  PrepareSelection(work.desk);

  EXPECT_EQ(work.desk.molecule.BondA[1], 0);
  EXPECT_EQ(work.desk.molecule.BondB[1], 0);
  EXPECT_EQ(work.desk.view.AutoRotateOn, 0);
  EXPECT_EQ(work.desk.main.P_Auto_Rotate.Style.Get(), (Look{0, 3}));
}

TEST(Selection, PreparationShowsTheListsAndHidesTheRest) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  for (Control* control : ListsAndHeads(main)) control->Visible = false;
  main.Drive1.Visible = true;
  main.Dir1.Visible = true;
  main.File1.Visible = true;
  work.desk.molecule.MoleculeReady = 1;
  PrepareSelection(work.desk);

  ExpectListsOnView(main);
  EXPECT_FALSE(main.Drive1.Visible);
  EXPECT_FALSE(main.Dir1.Visible);
  EXPECT_FALSE(main.File1.Visible);
  EXPECT_FALSE(main.Bt_M_Ld.Visible);
  EXPECT_EQ(work.desk.selection.StockPending, 1);
  EXPECT_EQ(work.desk.selection.ListsShown, 1);
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 0);
}

TEST(Selection, PreparationLeavesThePicture) {
  DeskAtWork work;
  Load(work.desk, Pair());
  PrepareSelection(work.desk);

  EXPECT_FALSE(work.desk.main.Picture1.Image()->Strokes.empty());
}

TEST(Selection, NothingIsPendingAtTheStart) {
  DeskAtWork work;
  EXPECT_EQ(work.desk.selection.StockPending, 0);
  EXPECT_EQ(work.desk.selection.ListsShown, 0);
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 0);
}

TEST(Selection, GetMoleculeWithNothingLoadedIsHarmless) {
  DeskAtWork work;
  Click(work.desk, work.desk.main.Bt_Blt_AA);

  EXPECT_TRUE(work.platform.Effects.empty());
  EXPECT_TRUE(work.desk.main.Picture1.Image()->Strokes.empty());
  ExpectListsOnView(work.desk.main);
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 0);
}

TEST(Selection, GetMoleculeEmptiesTheSurfaceAndKeepsTheAtoms) {
  DeskAtWork work;
  Load(work.desk, Pair());
  Click(work.desk, work.desk.main.Bt_Blt_AA);

  EXPECT_TRUE(work.desk.main.Picture1.Image()->Strokes.empty());
  EXPECT_EQ(work.desk.molecule.AtomCount, 2);
  EXPECT_EQ(work.desk.molecule.AtomX[2], 1.2);
  EXPECT_EQ(work.desk.molecule.BondA[1], 0);
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 0);
  EXPECT_EQ(work.desk.selection.ListsShown, 1);
}

TEST(Selection, AfterGetMoleculeTheScrollBarsBeep) {
  DeskAtWork work;
  Load(work.desk, Pair());
  Click(work.desk, work.desk.main.Bt_Blt_AA);
  StepBar(work.desk, work.desk.main.ZoomBar, 5);
  StepBar(work.desk, work.desk.main.X_TRANS, 5);

  EXPECT_EQ(work.platform.Effects, (std::vector<std::string>{"beep", "beep"}));
  EXPECT_EQ(work.desk.molecule.CurX[2], 1.2);
}

TEST(Selection, LoadAaLoadsTheLastTextAgainWithTheOldView) {
  DeskAtWork work;
  Load(work.desk, Pair());
  work.desk.view.PanX = 40;
  Click(work.desk, work.desk.main.Bt_Blt_AA);
  Click(work.desk, work.desk.main.Bt_M_Ld, Reach::Forced);  // every selection hides the button

  EXPECT_EQ(work.desk.molecule.MoleculeReady, 1);
  EXPECT_EQ(work.desk.molecule.BondCount, 1);
  EXPECT_EQ(work.desk.view.PanX, 40);
  // The pair is 1.2 long and lies along x: a quarter of 360 left of the middle, plus the pan.
  EXPECT_DOUBLE_EQ(work.desk.molecule.ScrX[1], 180 - 90 + 40);
  EXPECT_EQ(work.desk.selection.ListsShown, 0);
  EXPECT_FALSE(work.desk.main.Bt_M_Ld.Visible);
}

TEST(Selection, LoadAaWithNothingPendingLoadsNothing) {
  DeskAtWork work;
  Click(work.desk, work.desk.main.Bt_M_Ld);

  EXPECT_TRUE(work.platform.Effects.empty());
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 1);
  EXPECT_EQ(work.desk.molecule.AtomCount, 0);
  EXPECT_FALSE(work.desk.main.Bt_M_Ld.Visible);
}

TEST(Selection, LoadAaWithAnEmptyPendingTextFailsInABoxAndStaysReady) {
  DeskAtWork work;
  Click(work.desk, work.desk.main.Bt_Blt_AA);
  Click(work.desk, work.desk.main.Bt_M_Ld, Reach::Forced);

  EXPECT_EQ(work.platform.Effects,
            (std::vector<std::string>{
                "failure Load AA could not be finished: a number was divided by zero."}));
  // What comes after the load was not reached.
  EXPECT_EQ(work.desk.molecule.MoleculeReady, 1);
  EXPECT_EQ(work.desk.selection.ListsShown, 1);
}

TEST(Selection, ASelectionStopsARunningSpin) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Nuc_Lst, 0);
  StepBar(work.desk, work.desk.main.VScroll1, 11);
  Click(work.desk, work.desk.main.P_Auto_Rotate);
  ASSERT_EQ(work.desk.view.AutoRotateOn, 1);
  SelectRow(work.desk, work.desk.main.Nuc_Lst, 1);

  EXPECT_EQ(work.desk.view.AutoRotateOn, 0);
  EXPECT_TRUE(work.desk.main.Timer1.Enabled);  // the tick finds nothing to do
  const double before = work.desk.molecule.CurX[1];
  Tick(work.desk, work.desk.main.Timer1);
  EXPECT_EQ(work.desk.molecule.CurX[1], before);
}

}  // namespace
}  // namespace orvane
