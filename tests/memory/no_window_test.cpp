// A window that is asked for when there is no memory for it.
#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/program_fixture.h"
#include "desktop/windows/key_sheet_window.h"
#include "memory/little_room.h"

namespace orvane {
namespace {

struct Coming {
  const char* Name;
  Window& (*Comes)(Orvane_Desk& desk);
  std::vector<Control*> (*Clicks)(Orvane_Desk& desk);  // from the start; the last asks for it
};

const Coming kComing[] = {
    {"Content", [](Orvane_Desk& desk) -> Window& { return desk.content; },
     [](Orvane_Desk& desk) -> std::vector<Control*> { return {&desk.front.Get_in}; }},
    {"Author", [](Orvane_Desk& desk) -> Window& { return desk.author; },
     [](Orvane_Desk& desk) -> std::vector<Control*> { return {&desk.front.Author}; }},
    {"Desk", [](Orvane_Desk& desk) -> Window& { return desk.main; },
     [](Orvane_Desk& desk) -> std::vector<Control*> {
       return {&desk.front.Get_in, &desk.content.Get_in};
     }},
    {"AuthorFromTheDesk", [](Orvane_Desk& desk) -> Window& { return desk.author; },
     [](Orvane_Desk& desk) -> std::vector<Control*> {
       return {&desk.front.Get_in, &desk.content.Get_in, &desk.main.Cprt};
     }},
    {"Plot", [](Orvane_Desk& desk) -> Window& { return desk.plot; },
     [](Orvane_Desk& desk) -> std::vector<Control*> {
       return {&desk.front.Get_in, &desk.content.Get_in, &desk.main.RCDP};
     }},
};

struct NoWindow : testing::TestWithParam<Coming>, ProgramAtWork {
  // By the pointer, but for entries of menus.
  void Use(Control& control) {
    if (control.Row.Kind == ControlKind::MenuEntry) return Click(desk, control);
    ClickOn(control);
  }
};

TEST_P(NoWindow, IsToldAndTheNextTryWorks) {
  const std::vector<Control*> clicks = GetParam().Clicks(desk);
  for (std::size_t i = 0; i + 1 < clicks.size(); ++i) Use(*clicks[i]);
  SelectRow(desk, desk.main.Pro_Lst, 1);  // where the desk shows
  Window& window = GetParam().Comes(desk);
  Control& asks = *clicks.back();
  {
    const LittleRoom room;
    Use(asks);
  }

  ASSERT_EQ(platform.Effects.size(), 1U);
  EXPECT_TRUE(platform.Effects[0].ends_with(" could not be finished: there is not enough memory."))
      << platform.Effects[0];
  EXPECT_FALSE(window.Visible);
  EXPECT_FALSE(window.WasShown);
  // The window that was left for it is back, so there is something to click on.
  ASSERT_TRUE(asks.IsOpenToUser());
  EXPECT_TRUE(IsOnView(asks.Owner));
  // What changes meanwhile has nobody to show it.
  for (Control* control : window.Controls) control->Caption = control->Caption.Get() + " ";

  Use(asks);
  QTest::qWait(1);
  EXPECT_EQ(platform.Effects.size(), 1U);
  EXPECT_TRUE(window.Visible);
  EXPECT_TRUE(IsOnView(window));
}

INSTANTIATE_TEST_SUITE_P(EveryWindow, NoWindow, testing::ValuesIn(kComing),
                         [](const auto& coming) { return std::string(coming.param.Name); });

KeySheetWindow* Sheet() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* sheet = dynamic_cast<KeySheetWindow*>(widget)) return sheet;
  }
  return nullptr;
}

TEST(NoKeySheet, IsToldAndTheNextTryWorks) {
  WindowAtWork work;
  {
    const LittleRoom room;
    QTest::keyClick(&work.window, Qt::Key_F1);
  }

  EXPECT_EQ(
      work.platform.Effects,
      std::vector<std::string>{"failure The keys could not be shown: there is not enough memory."});
  EXPECT_EQ(Sheet(), nullptr);

  QTest::keyClick(&work.window, Qt::Key_F1);
  EXPECT_EQ(work.platform.Effects.size(), 1U);
  ASSERT_NE(Sheet(), nullptr);
  EXPECT_TRUE(Sheet()->isVisible());
}

}  // namespace
}  // namespace orvane
