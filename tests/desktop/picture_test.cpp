#include <gtest/gtest.h>

#include "desktop/look/fonts.h"
#include "desktop/widgets/row_list.h"
#include "draw/elements.h"
#include "window_fixture.h"

namespace orvane {
namespace {

QRgb InkOf(char letter) {
  const std::string_view name(&letter, 1);
  const Colour ink = FindElement(name)->Ink;
  return qRgb(Red(ink), Green(ink), Blue(ink));
}

struct PictureAtWork : WindowAtWork {
  void ClickRow(List& list, int row) {
    auto& rows = dynamic_cast<RowList&>(WidgetOf(list));
    QTest::mouseClick(&rows, Qt::LeftButton, {}, rows.RowMiddle(row));
  }
  // What the screen shows at the place of an atom.
  QRgb PixelAt(std::size_t atom) {
    const QImage shot = WidgetOf(main.Picture1).grab().toImage();
    const double ratio = window.devicePixelRatioF();
    return shot.pixel(static_cast<int>(desk.molecule.ScrX[atom] * ratio),
                      static_cast<int>(desk.molecule.ScrY[atom] * ratio));
  }
};

TEST(ThePicture, AClickOnARowShowsTheElementsInTheirColours) {
  PictureAtWork work;
  work.ClickRow(work.main.AA_Lst, 1);
  ASSERT_EQ(work.desk.molecule.MoleculeReady, 1);
  work.ClickOn(work.main.Bt_BlS);

  // The last atom is painted last, so nothing lies over its ball.
  const auto last = static_cast<std::size_t>(static_cast<int>(work.desk.molecule.AtomCount));
  const std::string_view name = work.desk.molecule.AtomName[last];
  const char letter = name[2];
  EXPECT_EQ(work.PixelAt(last), InkOf(letter));
}

TEST(ThePicture, TheTitleTakesTheNameOfTheStructure) {
  PictureAtWork work;

  work.ClickRow(work.main.AA_Lst, 1);

  EXPECT_TRUE(work.window.windowTitle().contains("GLYCINE"))
      << work.window.windowTitle().toStdString();
}

TEST(ThePicture, IsRasteredAtTheDensityOfTheScreen) {
  PictureAtWork work;
  work.ClickRow(work.main.AA_Lst, 1);
  const QImage shot = work.WidgetOf(work.main.Picture1).grab().toImage();

  const double ratio = work.window.devicePixelRatioF();
  EXPECT_EQ(shot.width(), static_cast<int>(360 * ratio));
}

TEST(ThePicture, IsPaintedOnceNoMatterHowOftenItWasDrawnOn) {
  PictureAtWork work;
  Paints paints;
  const auto painted = [&] { return paints.Count >= 1; };
  work.WidgetOf(work.main.Picture1).installEventFilter(&paints);
  work.ClickRow(work.main.AA_Lst, 1);
  ASSERT_TRUE(QTest::qWaitFor(painted));
  QTest::qWait(50);
  paints.Count = 0;

  for (int i = 0; i < 20; ++i) work.main.ZoomBar.SetValue(i * 5);
  ASSERT_TRUE(QTest::qWaitFor(painted));
  QTest::qWait(50);

  EXPECT_EQ(paints.Count, 1);
}

TEST(ThePicture, APairShowsTheSameStructureInBothViews) {
  PictureAtWork work;
  work.ClickRow(work.main.Pro_Lst, 1);

  work.ClickOn(work.main.Bt3_Sterio);

  EXPECT_FALSE(work.WidgetOf(work.main.P_Pic1).isVisible());
  for (const Control* image : std::initializer_list<Control*>{&work.main.L_Img, &work.main.R_Img}) {
    const QImage shot = work.WidgetOf(*image).grab().toImage();
    int lit = 0;
    for (int y = 0; y < shot.height(); ++y) {
      for (int x = 0; x < shot.width(); ++x) lit += qGreen(shot.pixel(x, y)) > 200 ? 1 : 0;
    }
    EXPECT_GT(lit, 50) << image->Name;
  }
}

TEST(ThePicture, TheNameUnderAPairGrowsToTheRight) {
  PictureAtWork work;
  const int before = work.ViewOf(work.main.AA_name).Stand().Face.width();

  work.main.AA_name.Caption = "OVN V3.0: Alpha helix structure (polypeptide)";
  const int grown = work.ViewOf(work.main.AA_name).Stand().Face.width();
  work.main.AA_name.Caption = std::string(200, 'W');

  EXPECT_EQ(before, 62);  // 930 twips
  EXPECT_GE(grown, WidthOf({11, 600}, "OVN V3.0: Alpha helix structure (polypeptide)"));
  EXPECT_EQ(work.ViewOf(work.main.AA_name).Stand().Face.width(), 354);  // 5310 twips
}

}  // namespace
}  // namespace orvane
