// A student's first minutes: choose a residue, press on two of its atoms, read their distance.

#include <gtest/gtest.h>

#include "window_fixture.h"

namespace orvane {
namespace {

enum AminoRow { kGlycine = 1 };
enum DnaRow { kDoubleStrand = 2 };

struct Lesson : WindowAtWork, testing::Test {
  void ClickRow(const List& list, int row) {
    QWidget& rows = WidgetOf(list);
    QTest::mouseClick(&rows, Qt::LeftButton, {}, {40, 8 + 15 * row});  // rows are 15 pixels high
  }
  void PressOnAtom(int atom) {
    const Molecule& molecule = desk.molecule;
    QTest::mouseClick(&WidgetOf(main.Picture1), Qt::LeftButton, {},
                      QPointF(molecule.ScrX[atom], molecule.ScrY[atom]).toPoint());
  }
};

TEST_F(Lesson, TwoPressedAtomsAndTheDistanceButtonGiveTheirDistance) {
  ClickRow(main.AA_Lst, kGlycine);
  ASSERT_EQ(desk.molecule.AtomCount, 10);

  PressOnAtom(1);  // N
  PressOnAtom(2);  // CA
  ClickOn(main.Bt3_Dts);

  // N at (11.140, 8.020, 1.544), CA at (10.466, 6.872, 2.145): the square root of 0.674 squared +
  // 1.148 squared + 0.601 squared is 1.4609.
  EXPECT_EQ(main.P_Dst_Show.Caption, "  N   -  CA : 01.46 Angs \n   GLY 1 - GLY 1");
}

TEST_F(Lesson, APressBesideTheAtomsAndAMeasureOfNothingHarmNothing) {
  ClickRow(main.AA_Lst, kGlycine);
  QTest::mouseClick(&WidgetOf(main.Picture1), Qt::LeftButton, {}, {2, 2});
  ClickOn(main.Bt3_Ang);
  ClickOn(main.Bt3_Trg);
  ClickOn(main.Bt3_Dts);
  EXPECT_EQ(desk.measure.MeasureOn, 0);
  EXPECT_EQ(desk.molecule.AtomCount, 10);
}

TEST_F(Lesson, TheDoubleStrandSpinsWhileEventsGoOn) {
  ClickRow(main.DNA_Lst, kDoubleStrand);
  ClickOn(main.P_Auto_Rotate);
  StepBar(desk, main.VScroll1, 11);
  StepBar(desk, main.Rt_speed, 1);
  Heard ticks(main.Timer1, EventKind::Tick);

  for (int wait = 0; wait < 3000 && ticks.Count < 20; ++wait) QTest::qWait(10);
  ASSERT_GE(ticks.Count, 20);

  ClickOn(main.P_Auto_Rotate);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  const int stopped = ticks.Count;
  QTest::qWait(20);
  EXPECT_EQ(ticks.Count, stopped);
}

}  // namespace
}  // namespace orvane
