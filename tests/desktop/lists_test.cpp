#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "desktop/widgets/flyout.h"
#include "desktop/widgets/row_list.h"
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

TEST(Lists, AClickOnARowChoosesItAndIsReported) {
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
  const QPoint at = work.Rows().RowMiddle(1);

  work.TurnWheel(work.Rows(), at, -120);
  EXPECT_EQ(work.Rows().FirstRow(), 1);
  for (int part = 0; part < 4; ++part) work.TurnWheel(work.Rows(), at, -30);  // a touchpad

  EXPECT_EQ(work.Rows().FirstRow(), 2);
  EXPECT_EQ(clicks.Count, 0);
}

TEST(Lists, KeysGoByRowsByPagesAndToTheEnds) {
  ListsAtWork work;
  const Watched<int, Aspect::Value>& chosen = work.main.Pro_Lst.ListIndex;
  work.Rows().setFocus();

  QTest::keyClick(&work.Rows(), Qt::Key_Home);
  EXPECT_EQ(chosen, 0);
  QTest::keyClick(&work.Rows(), Qt::Key_PageDown);
  EXPECT_EQ(chosen, 5);  // five whole rows are shown
  QTest::keyClick(&work.Rows(), Qt::Key_PageDown);
  EXPECT_EQ(chosen, 6);  // the last of seven
  QTest::keyClick(&work.Rows(), Qt::Key_PageUp);
  EXPECT_EQ(chosen, 1);
  QTest::keyClick(&work.Rows(), Qt::Key_Up);
  EXPECT_EQ(chosen, 0);
}

// Five of seven rows are shown, so the thumb at the right edge can move by two rows.
TEST(Lists, ThePulledThumbScrollsAndChoosesNothing) {
  ListsAtWork work;
  Heard clicks(work.main.Pro_Lst, EventKind::Click);
  RowList& rows = work.Rows();
  const int right = static_cast<int>(rows.FaceInWidget().right()) - 5;
  const int top = rows.RowMiddle(0).y();

  QTest::mousePress(&rows, Qt::LeftButton, {}, {right, top});
  EXPECT_EQ(rows.FirstRow(), 0);
  QTest::mouseMove(&rows, {right, top + 200});
  EXPECT_EQ(rows.FirstRow(), 2);
  QTest::mouseMove(&rows, {right, top - 200});
  EXPECT_EQ(rows.FirstRow(), 0);
  QTest::mouseMove(&rows, {right, top + 200});
  QTest::mouseRelease(&rows, Qt::LeftButton, {}, {right, top + 200});
  QTest::mouseMove(&rows, {right, top});  // it is no longer held

  EXPECT_EQ(rows.FirstRow(), 2);
  EXPECT_EQ(clicks.Count, 0);
}

// The chosen folder is the last of many, so the thumb is beside its row, at the track's lower end.
TEST(Lists, OnlyTwoClicksOfTheLeftButtonOnARowOpenIt) {
  ListsAtWork work;
  QTemporaryDir folder;
  for (int i = 10; i < 40; ++i) ASSERT_TRUE(QDir(folder.path()).mkdir(QString::number(i)));
  work.main.P_Dir_Holder.Visible = true;
  const std::string path = folder.path().toStdString();
  OpenFolder(work.desk, work.main.Dir1, path);
  auto& rows = dynamic_cast<RowList&>(work.WidgetOf(work.main.Dir1));
  QTest::keyClick(&rows, Qt::Key_End);
  ASSERT_EQ(rows.ChosenRow(), rows.Rows().size() - 1);
  ASSERT_GT(rows.FirstRow(), 0);
  const QPoint row = rows.RowMiddle(rows.ChosenRow());
  const auto twice = [&](Qt::MouseButton button, QPoint at) {
    QTest::mouseDClick(&rows, button, {}, at);
    QTest::mouseRelease(&rows, button, {}, at);
  };

  twice(Qt::LeftButton, {static_cast<int>(rows.FaceInWidget().right()) - 5, row.y()});
  EXPECT_EQ(work.main.Dir1.Path.Get(), path) << "the bar";
  twice(Qt::RightButton, row);
  EXPECT_EQ(work.main.Dir1.Path.Get(), path) << "the right button";
  twice(Qt::LeftButton, row);
  EXPECT_EQ(work.main.Dir1.Path.Get(), path + "/39");
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

TEST(Lists, AChosenRowIsFilledWithTheAccentEvenWithoutTheKeyboard) {
  ListsAtWork work;
  work.main.Pro_Lst.ListIndex = 1;
  work.window.focusWidget()->clearFocus();
  const QRect row = work.Rows().RowFace(1);

  const QImage shot = work.Shot();

  EXPECT_EQ(QColor(shot.pixel(row.left() + 1, row.center().y())), QColor("#0B6E7F"));
}

TEST(Lists, AHiddenListHearsNoClick) {
  ListsAtWork work;
  work.main.Pro_Lst.Visible = false;

  work.ClickRow(1);

  EXPECT_EQ(work.main.Pro_Lst.ListIndex, -1);
}

}  // namespace
}  // namespace orvane
