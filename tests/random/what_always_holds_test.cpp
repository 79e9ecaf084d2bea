// Each check after an action sees the damage that it is meant to see.
#include <gtest/gtest.h>

#include "controls/surface.h"
#include "random/desk/always.h"

namespace orvane {
namespace {

// So that a check that sees nothing is not mistaken for a desk without faults.
struct Damage {
  const char* Name;
  const char* Wrong;  // what the check says about it
  void (*Do)(Orvane_Desk& desk);
};

class WhatAlwaysHolds : public ::testing::TestWithParam<Damage> {};

TEST_P(WhatAlwaysHolds, IsReportedByNameWhenItDoesNot) {
  Sitting session;
  LastSeen last;
  for (const char* line : {"enter", "select Pro_Lst 1", "click Bt3_Sterio"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  ASSERT_EQ(WhatIsWrong(session, last, true), "");
  GetParam().Do(session.Desk());
  EXPECT_EQ(WhatIsWrong(session, last, true), GetParam().Wrong);
}

INSTANTIATE_TEST_SUITE_P(
    ARandomDesk, WhatAlwaysHolds,
    ::testing::Values(Damage{"ACount", "BondCount is -1",
                             [](Orvane_Desk& desk) { desk.molecule.BondCount = -1; }},
                      Damage{"AFlag", "BallsOn is 2",
                             [](Orvane_Desk& desk) { desk.drawing.BallsOn = 2; }},
                      Damage{"AWidth", "BondWidth is 7",
                             [](Orvane_Desk& desk) { desk.drawing.BondWidth = 7; }},
                      Damage{"TheOverdraw", "OverdrawPass is 1",
                             [](Orvane_Desk& desk) { desk.drawing.OverdrawPass = 1; }},
                      Damage{"ACaption", "Bt3_Label reads \"Label\"",
                             [](Orvane_Desk& desk) { desk.main.Bt3_Label.Caption = "Label"; }},
                      Damage{"ABond", "bond 1 joins 2 and 2",
                             [](Orvane_Desk& desk) {
                               desk.molecule.BondB[1] = desk.molecule.BondA[1];
                             }},
                      Damage{"TheCoordinatesAsRead",
                             "the coordinates as read have changed without a load",
                             [](Orvane_Desk& desk) { desk.molecule.AtomX[1] += 1; }},
                      Damage{"ACoordinate", "a coordinate is no number",
                             [](Orvane_Desk& desk) { desk.molecule.CurX[1] = 0.0 / 0.0; }},
                      Damage{"TheAxis", "the axis was lost",
                             [](Orvane_Desk& desk) { desk.view.AxisY = 0; }},
                      Damage{"ASecondAxis", "the axis is no selector",
                             [](Orvane_Desk& desk) { desk.view.AxisX = 1; }},
                      Damage{"ATag", "not just one tag of an axis is pressed",
                             [](Orvane_Desk& desk) {
                               desk.main.X_Tag[0].Style = {1, 4};
                             }},
                      Damage{"TheTagOfAnotherAxis", "the tag of another axis is pressed",
                             [](Orvane_Desk& desk) {
                               desk.view.AxisX = 1;
                               desk.view.AxisY = 0;
                             }},
                      Damage{"ASavedAxis", "the saved axis is no selector",
                             [](Orvane_Desk& desk) {
                               desk.view.SavedAxisX = desk.view.SavedAxisZ = 1;
                             }},
                      Damage{"TheCellsOfThePair", "the cells of the pair hold an axis",
                             [](Orvane_Desk& desk) { desk.stereo.PairCells.Y = 1; }},
                      Damage{"TheCellsOfRedAndGreen", "the cells of red and green hold an axis",
                             [](Orvane_Desk& desk) { desk.stereo.RedGreenCells.X = 1; }},
                      Damage{"TheCellsOfTheMirror",
                             "the cells of the mirrored pair are no selector",
                             [](Orvane_Desk& desk) {
                               desk.stereo.EnantiomerCells = {1, 1, 0};
                             }},
                      Damage{"TheCellsOfTheSecondPair",
                             "the cells of the second pair are no selector",
                             [](Orvane_Desk& desk) {
                               desk.stereo.PairBCells = {0, 2, 0};
                             }},
                      Damage{"TheAtomOfTheWalk", "the atom of the walk is 61",
                             [](Orvane_Desk& desk) {
                               desk.walk = {.Number = desk.molecule.AtomCount + 1,
                                            .Load = desk.molecule.Loads};
                             }},
                      Damage{"ThePickOfNoWalk", "the pick of the walk is 1",
                             [](Orvane_Desk& desk) { desk.walk.Picked = 1; }},
                      Damage{"AnAtomOfThePair", "BondAtomA is 61",
                             [](Orvane_Desk& desk) {
                               desk.molecule.BondAtomA = desk.molecule.AtomCount + 1;
                             }},
                      Damage{"APick", "PickAtomC is -1",
                             [](Orvane_Desk& desk) { desk.measure.PickAtomC = -1; }},
                      Damage{"TheSurvey", "SurveyAtom is 597",
                             [](Orvane_Desk& desk) { desk.survey.SurveyAtom = 597; }},
                      Damage{"AMarkOfAPlane", "PlaneCA2 is 597",
                             [](Orvane_Desk& desk) { desk.drawing.PlaneCA2 = 597; }},
                      Damage{"ASerial", "an atom has another number than its place",
                             [](Orvane_Desk& desk) { desk.molecule.AtomSerial[3] = 4; }},
                      Damage{"ABondsSerial", "a bond has another number than its place",
                             [](Orvane_Desk& desk) { desk.molecule.BondSerial[3] = 4; }},
                      Damage{"AHydrogenBond", "hydrogen bond 1 joins 5 and 5",
                             [](Orvane_Desk& desk) {
                               desk.molecule.HBondCount = 1;
                               desk.molecule.HBondA[1] = desk.molecule.HBondB[1] = 5;
                             }},
                      Damage{"TheLabels", "Bt3_Label says another thing than its field",
                             [](Orvane_Desk& desk) { desk.drawing.LabelsOn = 1; }},
                      Damage{"TheHydrogenBonds", "Bt3_HBD says another thing than its field",
                             [](Orvane_Desk& desk) { desk.drawing.HBondShown = 1; }},
                      Damage{
                          "ThePair", "Bt3_Sterio says another thing than its field",
                          [](Orvane_Desk& desk) { desk.main.Bt3_Sterio.Caption = "Stereo Off"; }},
                      Damage{"RedAndGreen", "R_G_Stereo says another thing than its field",
                             [](Orvane_Desk& desk) { desk.stereo.RedGreenOn = 1; }},
                      Damage{"TheMirror", "Bt3_Isomers says another thing than its field",
                             [](Orvane_Desk& desk) { desk.main.Bt3_Isomers.Caption = "D / L On"; }},
                      Damage{"TheSecondPair", "Bt3_D_L_Str says another thing than its field",
                             [](Orvane_Desk& desk) { desk.main.Bt3_D_L_Str.Caption = "D/L Str"; }},
                      Damage{"TwoPairs", "two pairs are on at once",
                             [](Orvane_Desk& desk) { desk.stereo.EnantiomerOn = 1; }},
                      Damage{"TheSpin", "P_Auto_Rotate says another thing than its field",
                             [](Orvane_Desk& desk) { desk.view.AutoRotateOn = 1; }},
                      Damage{"AKeptPicture", "a picture that R_Img showed has changed",
                             [](Orvane_Desk& desk) {
                               const_cast<Picture&>(*desk.main.R_Img.Shown()).Strokes[0].X1 += 1;
                             }},
                      Damage{"TheHourglass", "the hourglass of Orvane_Desk",
                             [](Orvane_Desk& desk) { desk.main.MousePointer = kPointerHourglass; }},
                      Damage{"ABar", "the value of ZoomBar",
                             [](Orvane_Desk& desk) { desk.main.ZoomBar.Value = 101; }},
                      Damage{"ARow", "the row of AA_Lst",
                             [](Orvane_Desk& desk) { desk.main.AA_Lst.ListIndex = 99; }},
                      Damage{"APicture", "L_Img holds a stroke without its text",
                             [](Orvane_Desk& desk) {
                               auto picture = std::make_shared<Picture>();
                               picture->Strokes.push_back({.Kind = StrokeKind::Print, .Text = 3});
                               desk.main.L_Img.SetPicture(picture);
                             }}),
    [](const auto& damage) { return damage.param.Name; });

}  // namespace
}  // namespace orvane
