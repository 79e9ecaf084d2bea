#include <gtest/gtest.h>

#include <QMenu>

#include "desktop/windows/menu_strip.h"
#include "window_fixture.h"

namespace orvane {
namespace {

QAction& ActionOf(WindowAtWork& work, const Control& entry) {
  return *work.window.strip->ActionOf(entry);
}

TEST(Menus, TheTreeIsTheTablesAndUnavailableEntriesAreNotShown) {
  WindowAtWork work;
  QStringList top;
  for (const QAction* action : work.window.strip->actions()) {
    if (action->isVisible()) top.append(action->text());
  }

  EXPECT_EQ(top, QStringList({"&Options", "&Draw in", "&Ramachandran", "&Export", "&What's New",
                              "&Author in brief"}));
  EXPECT_FALSE(ActionOf(work, work.main.BMusic).isVisible());
  EXPECT_FALSE(ActionOf(work, work.main.Bk_Cl).isVisible());
  EXPECT_FALSE(ActionOf(work, work.main.DWn).isEnabled());
}

TEST(Menus, AnEntryIsAClick) {
  WindowAtWork work;
  Heard clicks(work.main.COL_RGB, EventKind::Click);

  ActionOf(work, work.main.COL_RGB).trigger();

  EXPECT_EQ(clicks.Count, 1);
}

TEST(Menus, OpeningATopMenuClosesTheFloatingPanels) {
  WindowAtWork work;
  work.main.P_Clr_Holder.Visible = true;
  QMenu* menu = ActionOf(work, work.main.OpTs).menu();

  menu->popup(QPoint(10, 30));
  QApplication::processEvents();
  menu->hide();

  EXPECT_FALSE(work.main.P_Clr_Holder.Visible);
}

TEST(Menus, AnEntrySwitchedOffInTheLogicIsOffInTheMenu) {
  WindowAtWork work;

  work.main.DWn.Enabled = true;
  work.main.M_Rbn.Enabled = false;

  EXPECT_TRUE(ActionOf(work, work.main.DWn).isEnabled());
  EXPECT_FALSE(ActionOf(work, work.main.M_Rbn).isEnabled());
}

TEST(Menus, ExitFollowsAHairline) {
  WindowAtWork work;
  const auto entries = ActionOf(work, work.main.OpTs).menu()->actions();
  const auto exit = entries.indexOf(&ActionOf(work, work.main.ExitEntry));

  ASSERT_GT(exit, 0);
  EXPECT_TRUE(entries[exit - 1]->isSeparator());
}

TEST(Menus, TheStripIsTwentyPixelsHighAndItsDropDownHasItsMeasures) {
  WindowAtWork work;
  QMenu* menu = ActionOf(work, work.main.OpTs).menu();

  EXPECT_EQ(work.window.strip->geometry(), QRect(0, 0, 567, 20));
  // Six entries of 22, a hairline of 9, and at both ends a padding of 4 and an edge of 1.
  EXPECT_EQ(menu->sizeHint().height(), 6 * 22 + 9 + 2 * 5);
}

}  // namespace
}  // namespace orvane
