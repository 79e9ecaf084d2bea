#include <gtest/gtest.h>

#include "desktop/flyout.h"
#include "desktop/row_list.h"
#include "window_fixture.h"

namespace orvane {
namespace {

struct ListsAtWork : WindowAtWork {
  ListsAtWork() {
    main.Pro_Lst.Rows = std::vector<std::string>{
        "PEP Dipeptide",
        "Alfa Alpha helix structure (polypeptide)",
        "Alfb Alpha helix structure (polyalanine)",
        "Beta Beta strand structure (polypeptide)",
        "Betb Beta strand structure (polyalanine)",
        "PBS Parallel Beta Sheet structure",
        "APBS Anti-Parallel Beta Sheet structure",
    };
    main.Pro_Lst.ListIndex = -1;
    QApplication::processEvents();
  }
  RowList& Shown(List& list) { return dynamic_cast<RowList&>(WidgetOf(list)); }
  RowList& Rows() { return Shown(main.Pro_Lst); }
  void ClickRow(int row) { QTest::mouseClick(&Rows(), Qt::LeftButton, {}, Rows().RowMiddle(row)); }
  void PointAtRow(int row) { PointAt(Rows(), Rows().RowMiddle(row)); }
};

TEST(Lists, ShowSixFiveSixAndThreeRowsNoneCutInHeight) {
  ListsAtWork work;

  for (const auto& [list, rows] :
       std::initializer_list<std::pair<List*, int>>{{&work.main.AA_Lst, 6},
                                                    {&work.main.Pro_Lst, 5},
                                                    {&work.main.Nuc_Lst, 6},
                                                    {&work.main.DNA_Lst, 3}}) {
    RowList& shown = work.Shown(*list);
    EXPECT_EQ(shown.WholeRows(), rows) << list->Name;
    EXPECT_LT(shown.RowFace(rows - 1).bottom(), shown.Stand().Face.bottom()) << list->Name;
  }
}

TEST(Lists, AClickOnARowChoosesItAndIsTold) {
  ListsAtWork work;
  Heard clicks(work.main.Pro_Lst, EventKind::Click);

  work.ClickRow(2);

  EXPECT_EQ(work.main.Pro_Lst.ListIndex, 2);
  EXPECT_EQ(clicks.Count, 1);
}

TEST(Lists, AClickOnTheChosenRowIsAClickAgain) {
  ListsAtWork work;
  work.ClickRow(0);
  Heard clicks(work.main.Pro_Lst, EventKind::Click);

  QTest::qWait(QApplication::doubleClickInterval() + 50);
  work.ClickRow(0);

  EXPECT_EQ(clicks.Count, 1);
}

TEST(Lists, AnArrowKeyChoosesLikeAClick) {
  ListsAtWork work;
  Heard clicks(work.main.Pro_Lst, EventKind::Click);
  work.Rows().setFocus();

  QTest::keyClick(&work.Rows(), Qt::Key_Down);
  QTest::keyClick(&work.Rows(), Qt::Key_Down);
  EXPECT_EQ(work.main.Pro_Lst.ListIndex, 1);
  QTest::keyClick(&work.Rows(), Qt::Key_End);

  EXPECT_EQ(work.main.Pro_Lst.ListIndex, 6);
  EXPECT_EQ(clicks.Count, 3);
}

TEST(Lists, TheRowChosenByAKeyIsScrolledIntoView) {
  ListsAtWork work;
  work.Rows().setFocus();

  QTest::keyClick(&work.Rows(), Qt::Key_End);

  EXPECT_EQ(work.Rows().FirstRow(), 2);  // rows 2 to 6 of seven
}

TEST(Lists, TheWheelScrollsAndChoosesNothing) {
  ListsAtWork work;
  Heard clicks(work.main.Pro_Lst, EventKind::Click);
  const QPointF at = work.Rows().RowMiddle(1);
  QWheelEvent down(at, work.Rows().mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, {},
                   Qt::NoScrollPhase, false);

  QApplication::sendEvent(&work.Rows(), &down);

  EXPECT_EQ(work.Rows().FirstRow(), 1);
  EXPECT_EQ(clicks.Count, 0);
}

TEST(Lists, ALongRowEndsInAnEllipsis) {
  ListsAtWork work;

  EXPECT_TRUE(work.Rows().RowAsDrawn(1).endsWith(u'\u2026'));
  EXPECT_EQ(work.Rows().RowAsDrawn(0), "PEP Dipeptide");
}

TEST(Lists, ACutRowShowsWholeUnderThePointer) {
  ListsAtWork work;
  Flyout& flyout = *work.window.flyout;

  work.PointAtRow(1);
  EXPECT_TRUE(flyout.isVisible());
  EXPECT_EQ(flyout.Text(), "Alfa Alpha helix structure (polypeptide)");

  work.PointAtRow(0);
  EXPECT_FALSE(flyout.isVisible());  // this one is not cut
}

TEST(Lists, ACutRowShowsWholeWhenKeysChooseIt) {
  ListsAtWork work;
  work.Rows().setFocus();

  QTest::keyClick(&work.Rows(), Qt::Key_Down);
  QTest::keyClick(&work.Rows(), Qt::Key_Down);
  EXPECT_TRUE(work.window.flyout->isVisible());
  work.Rows().clearFocus();

  EXPECT_FALSE(work.window.flyout->isVisible());
}

TEST(Lists, AChosenRowIsFilledWithTheAccentAlsoWithoutTheKeyboard) {
  ListsAtWork work;
  work.main.Pro_Lst.ListIndex = 1;
  work.window.focusWidget()->clearFocus();
  const QRect row = work.Rows().RowFace(1);

  const QImage shot = work.Shot();

  EXPECT_EQ(QColor(shot.pixel(row.left() + 1, row.center().y())), QColor("#0B6E7F"));
}

TEST(Lists, AListThatIsNotVisibleHearsNoClick) {
  ListsAtWork work;
  work.main.Pro_Lst.Visible = false;

  work.ClickRow(1);

  EXPECT_EQ(work.main.Pro_Lst.ListIndex, -1);
}

}  // namespace
}  // namespace orvane
