// The map under a real pointer.
#include <gtest/gtest.h>

#include <QScreen>

#include "desktop/widgets/plot_label.h"
#include "program_fixture.h"

namespace orvane {
namespace {

struct Map : testing::Test {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  PlotWindow& plot = desk.plot;

  Map() {
    program.GoToTheDesk();
    Click(desk, desk.main.RCDP, Reach::Forced);
    desk.main.P_Clr_Holder.Visible = false;
    program.WaitFor(plot);
  }
  // The pointer, at pixels of an area.
  void PointAt(std::size_t area, double x, double y) { PointAt(plot.Area[area], x, y); }
  void PointAt(const Control& control, double x, double y) {
    QWidget& widget = program.WidgetOf(control);
    WindowWidget& window = program.WindowOf(plot);
    const QPointF face = program.ViewOf(control).FaceInWidget().topLeft();
    const QPointF at = widget.mapTo(&window, face + QPointF(x, y));
    QMouseEvent move(QEvent::MouseMove, widget.mapFrom(&window, at), at, window.mapToGlobal(at),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  }
  bool Shows(const Control& control) { return program.WidgetOf(control).isVisible(); }
};

TEST_F(Map, HasItsPlaceAndSizeAndLeavesTheDeskUsable) {
  WindowWidget& window = program.WindowOf(plot);

  EXPECT_EQ(window.size(), QSize(409, 475));
  EXPECT_EQ(window.pos(), window.screen()->availableGeometry().topLeft() + QPoint(112, 4));
  EXPECT_FALSE(window.isModal());
  EXPECT_EQ(window.windowTitle(), "Ramachandran");
}

TEST_F(Map, NoNameShowsAtFirst) {
  for (const Label& label : plot.b_sheet) EXPECT_FALSE(Shows(label));
  for (const Label& label : plot.R_Alf) EXPECT_FALSE(Shows(label));
  for (const Label& label : plot.L_Alf) EXPECT_FALSE(Shows(label));
  EXPECT_FALSE(Shows(plot.FEC));
  EXPECT_FALSE(Shows(plot.Collag));
}

TEST_F(Map, ThePointerOnAMarkShowsItsNameAndBesideItHidesIt) {
  PointAt(0, 115, 24);
  EXPECT_TRUE(Shows(plot.Collag));
  EXPECT_TRUE(Shows(plot.CoLn));

  PointAt(0, 115.5, 24);
  EXPECT_FALSE(Shows(plot.Collag));
  EXPECT_FALSE(Shows(plot.CoLn));
}

TEST_F(Map, TheExtendedChainIsInTheLowestLeftCorner) {
  PointAt(1, 0, 138);
  EXPECT_TRUE(Shows(plot.FEC));

  PointAt(plot.RamPlt_H, 20, 100);
  EXPECT_FALSE(Shows(plot.FEC));
}

TEST_F(Map, TheRightHandedHelixIsHiddenByTheQuarterBesideItAndNotByTheOneAbove) {
  PointAt(1, 90, 45);
  EXPECT_TRUE(Shows(plot.R_Alf[0]));
  EXPECT_TRUE(Shows(plot.R_Alf[1]));
  PointAt(0, 90, 130);
  EXPECT_TRUE(Shows(plot.R_Alf[0]));

  PointAt(2, 10, 45);
  EXPECT_FALSE(Shows(plot.R_Alf[0]));
}

TEST_F(Map, TheLeftHandedHelixAndTheSheetsHaveTheirMarks) {
  PointAt(3, 38, 77);
  EXPECT_TRUE(Shows(plot.L_Alf[0]));
  PointAt(0, 48, 38);
  EXPECT_TRUE(Shows(plot.b_sheet[5]));
  PointAt(0, 63, 53);
  EXPECT_TRUE(Shows(plot.b_sheet[2]));
  EXPECT_FALSE(Shows(plot.b_sheet[5]));
}

TEST_F(Map, ANameUnderThePointerDoesNotTakeItFromTheMap) {
  PointAt(0, 48, 38);
  ASSERT_TRUE(Shows(plot.b_sheet[3]));
  QWidget& area = program.WidgetOf(plot.Area[0]);
  const QPoint on_name = program.WidgetOf(plot.b_sheet[3]).geometry().center();

  EXPECT_EQ(program.WindowOf(plot).childAt(area.mapTo(&program.WindowOf(plot), on_name)), &area);
}

TEST_F(Map, TheQuartersShowTheirPicturesWithAnEdge) {
  const QImage shot = program.WindowOf(plot).grab().toImage();
  const auto at = [&](std::size_t area, double x, double y) {
    const QRect face = program.ViewOf(plot.Area[area]).Stand().Face;
    const double ratio = program.WindowOf(plot).scale.Ratio;
    return QColor(shot.pixel(face.topLeft() + (QPointF(x, y) * ratio).toPoint()));
  };

  EXPECT_EQ(at(2, 70, 70), QColor(255, 206, 206));  // forbidden everywhere
  EXPECT_EQ(at(0, 70, 30), QColor(255, 117, 117));  // the normal values of the sheets
  EXPECT_EQ(at(3, 41, 60), QColor(254, 143, 149));  // the outer limits of the left-handed helix
  for (const std::size_t area : {0, 1, 2, 3}) {
    EXPECT_EQ(at(area, 0, 70), QColor("#A65A5F"));
    EXPECT_EQ(at(area, 70, 0), QColor("#A65A5F"));
  }
}

TEST_F(Map, ASurveyedResidueIsYellow) {
  Orvane_Desk& d = desk;
  SelectRow(d, d.main.Pro_Lst, 1);
  Click(d, d.main.RCDP);
  ASSERT_TRUE(plot.Visible);

  const QImage shot = program.WidgetOf(plot.Area[1]).grab().toImage();
  int yellow = 0;
  for (int y = 0; y < shot.height(); ++y) {
    for (int x = 0; x < shot.width(); ++x) {
      const QColor pixel(shot.pixel(x, y));
      yellow += pixel.red() > 240 && pixel.green() > 220 && pixel.blue() < 140;
    }
  }
  EXPECT_GT(yellow, 0);
}

TEST_F(Map, LettersInSymbolReadAsWords) {
  const auto name = [&](const Control& control) {
    return program.WidgetOf(control).accessibleName();
  };
  EXPECT_EQ(name(plot.b_sheet[0]), "beta");
  EXPECT_EQ(name(plot.R_Alf[1]), "alpha");
  EXPECT_EQ(name(plot.Label5[0]), "phi");
  EXPECT_EQ(name(plot.Label6[0]), "psi");
  EXPECT_EQ(name(plot.Label6[2]), "psi");
}

TEST_F(Map, EveryTextHasItsOwnLetters) {
  for (const Control* control : plot.Controls) {
    const bool has_text =
        !control->Caption.Get().empty() && control->Row.Kind != ControlKind::Frame;
    if (!has_text) continue;
    EXPECT_NE(PlotLettersOf(*control).Control, "") << control->Row.Name;
  }
}

}  // namespace
}  // namespace orvane
