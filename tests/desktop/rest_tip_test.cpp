// The tip that appears when the pointer rests on an atom or on a circle of the map.
#include <cmath>
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "window_fixture.h"

namespace orvane {
namespace {

struct RestTipTest : testing::Test, WindowAtWork {
  Molecule& molecule = desk.molecule;

  ~RestTipTest() override { QToolTip::hideText(); }

  void Choose(List& list, std::string_view start) {
    const auto& rows = list.Rows.Get();
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (rows[row].starts_with(start)) SelectRow(desk, list, static_cast<int>(row));
    }
  }
  // Turns a point in a control's pixels into one in its widget's pixels.
  static QPoint InWidget(const ControlView& view, double x, double y) {
    return (view.FaceInWidget().topLeft() + QPointF(x, y) * view.host.scale.Factor).toPoint();
  }
  QPoint AtAtom(int i) {
    return InWidget(ViewOf(main.Picture1), molecule.ScrX[i], molecule.ScrY[i]);
  }
  // The message that the toolkit sends to a widget when the pointer rests over it.
  static void Rest(QWidget& widget, QPoint at) {
    QHelpEvent rest(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &rest);
  }
  QString TipAtAtom(int i) {
    QToolTip::hideText();
    Rest(WidgetOf(main.Picture1), AtAtom(i));
    return QToolTip::text();
  }
};

TEST_F(RestTipTest, APointerThatRestsOnAnAtomGetsItsName) {
  Choose(main.AA_Lst, "SER");
  PointAt(WidgetOf(main.Picture1), AtAtom(11) + QPoint(20, 0));
  PointAt(WidgetOf(main.Picture1), AtAtom(11));

  ASSERT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }, 10000));
  EXPECT_EQ(QToolTip::text(),
            "Oxygen OG of serine, atom 11\n"
            "1.422 Å from CB, angle OG–CB–CA 108.1°, torsion OG–CB–CA–N 53.7°");
}

TEST_F(RestTipTest, BesideTheAtomsTheControlsOwnTipAppears) {
  Choose(main.AA_Lst, "SER");
  Rest(WidgetOf(main.Picture1), {3, 3});
  EXPECT_EQ(QToolTip::text(), WidgetOf(main.Picture1).toolTip());
  EXPECT_FALSE(QToolTip::text().isEmpty());
}

TEST_F(RestTipTest, WhileAButtonIsHeldNoTipAppears) {
  Choose(main.Nuc_Lst, "PHS");
  const QPoint at = AtAtom(3);
  QWidget& picture = WidgetOf(main.Picture1);
  QTest::mousePress(window.windowHandle(), Qt::RightButton, {}, picture.mapTo(&window, at));
  EXPECT_EQ(TipAtAtom(3), "");
  QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, picture.mapTo(&window, at));
  EXPECT_EQ(TipAtAtom(3), "Phosphorus P of Phosphate, atom 3");
}

TEST_F(RestTipTest, TheTipGoesWhenThePictureChanges) {
  Choose(main.Nuc_Lst, "PHS");
  ASSERT_NE(TipAtAtom(3), "");
  Click(desk, main.D_StB);
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 10000));
}

// The tip of a button, which has nothing to do with the picture, has replaced that of the atom.
TEST_F(RestTipTest, ATipOfAnotherControlStaysWhenThePictureChanges) {
  Choose(main.Nuc_Lst, "PHS");
  ASSERT_NE(TipAtAtom(3), "");
  QWidget& button = WidgetOf(main.Bt3_Reset);
  Rest(button, Middle(main.Bt3_Reset));
  ASSERT_EQ(QToolTip::text(), button.toolTip());
  ASSERT_NE(button.toolTip(), "");

  Click(desk, main.D_StB);

  EXPECT_FALSE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 1000));
  EXPECT_EQ(QToolTip::text(), button.toolTip());
}

TEST_F(RestTipTest, AnAtomIsFoundInAMaximisedWindowToo) {
  Choose(main.Nuc_Lst, "PHS");
  window.showMaximized();
  (void)QTest::qWaitFor([this] { return window.scale.Factor > 1; }, 10000);
  ASSERT_GT(window.scale.Factor, 1);
  EXPECT_EQ(TipAtAtom(3), "Phosphorus P of Phosphate, atom 3");
  EXPECT_EQ(TipAtAtom(5), "Oxygen OP2 of Phosphate, atom 5");
}

// The tips of a desk on a projector can be read from the back row.
TEST_F(RestTipTest, TipsGrowWithTheDeskAndShrinkAgain) {
  EXPECT_EQ(QToolTip::font().pixelSize(), 11);
  window.showMaximized();
  (void)QTest::qWaitFor([this] { return window.scale.Factor > 1; }, 10000);
  ASSERT_GT(window.scale.Factor, 1.1);
  EXPECT_EQ(QToolTip::font().pixelSize(), std::lround(11 * window.scale.Factor));
  window.showNormal();
  EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::font().pixelSize() == 11; }, 10000));
}

TEST_F(RestTipTest, AHalfOfASplitViewNamesItsAtoms) {
  Choose(main.Nuc_Lst, "PHS");
  Click(desk, main.Bt3_Sterio);
  const ControlView& half = ViewOf(main.L_Img);
  const double scale = half.control.At.Get().Width / 5400.0;
  QToolTip::hideText();
  Rest(half.widget, InWidget(half, molecule.ScrX[3] * scale, molecule.ScrY[3] * scale));
  EXPECT_EQ(QToolTip::text(), "Phosphorus P of Phosphate, atom 3");
}

TEST_F(RestTipTest, RestingDrawsNothingAndRaisesNothing) {
  Choose(main.AA_Lst, "ALA");
  const std::vector<Stroke> before = main.Picture1.Image()->Strokes;
  Heard presses(main.Picture1, EventKind::Press);
  Heard moves(main.Picture1, EventKind::Move);
  Heard comings(main.Picture1, EventKind::Enter);

  ASSERT_NE(TipAtAtom(2), "");

  EXPECT_TRUE(main.Picture1.Image()->Strokes == before);
  EXPECT_EQ(presses.Count + moves.Count + comings.Count, 0);
  EXPECT_EQ(desk.measure.PickState, 0);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(RestTipTest, ACircleOfTheMapNamesItsResidue) {
  Choose(main.Pro_Lst, "Beta");
  Click(desk, main.RCDP);
  WindowWidget& plot = skin.WindowOf(desk.plot);
  (void)QTest::qWaitForWindowExposed(&plot);
  const ControlView& area = *plot.ViewOf(desk.plot.Area[0]);
  const std::vector<Stroke> before = desk.plot.Area[0].Image()->Strokes;
  const Stroke circle = before.front();

  Rest(area.widget, InWidget(area, circle.X1, circle.Y1));
  EXPECT_TRUE(QToolTip::text().startsWith("Alanine ")) << QToolTip::text().toStdString();
  EXPECT_TRUE(QToolTip::text().contains("phi −"));
  Rest(area.widget, {2, 2});
  EXPECT_EQ(QToolTip::text(), area.widget.toolTip());
  EXPECT_TRUE(desk.plot.Area[0].Image()->Strokes == before);
}

}  // namespace
}  // namespace orvane
