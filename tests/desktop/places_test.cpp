#include <gtest/gtest.h>
#include <set>

#include "desktop/windows/menu_strip.h"
#include "look/dress.h"
#include "window_fixture.h"

namespace orvane {
namespace {

bool IsPlate(const Control& control) { return control.Row.Kind == ControlKind::Ornament; }
bool Floats(const Control& control) { return DressOf(control).Floats; }

TEST(Places, NoTwoControlsOfOneContainerOverlap) {
  WindowAtWork work;
  const auto& all = work.main.Controls;

  for (const Control* a : all) {
    for (const Control* b : all) {
      if (a >= b || a->Parent != b->Parent || IsPlate(*a) || IsPlate(*b)) continue;
      if (work.window.ViewOf(*a) == nullptr || work.window.ViewOf(*b) == nullptr) continue;
      if (Floats(*a) || Floats(*b) || (a->Parent == nullptr && (!a->Visible || !b->Visible))) {
        continue;
      }
      const QRect one = work.ViewOf(*a).Stand().Face, other = work.ViewOf(*b).Stand().Face;
      EXPECT_FALSE(one.intersects(other)) << a->FullName() << " and " << b->FullName();
    }
  }
}

TEST(Places, NoControlLeavesTheDeskOrItsContainer) {
  WindowAtWork work;
  const QRect desk = RectOf(work.window.scale.Device(Place{0, 0, 8505, 7275}));

  for (const Control* control : work.main.Controls) {
    if (work.window.ViewOf(*control) == nullptr) continue;
    const QRect face = work.ViewOf(*control).Stand().Face;
    EXPECT_TRUE(desk.contains(face)) << control->FullName();
    if (control->Parent != nullptr) {
      EXPECT_TRUE(work.ViewOf(*control->Parent).Stand().Face.contains(face)) << control->FullName();
    }
  }
}

TEST(Places, EveryControlIsFoundUnderItsOwnName) {
  WindowAtWork work;

  for (const Control* control : work.main.Controls) {
    const QString name = QString::fromStdString(control->FullName());
    if (control->Row.Kind == ControlKind::Timer) continue;
    EXPECT_NE(work.window.findChild<QObject*>(name), nullptr) << control->FullName();
  }
}

TEST(Places, EveryControlThatTakesTheKeyboardHasAWordForAScreenReader) {
  WindowAtWork work;

  for (const Control* control : work.main.Controls) {
    if (control->Row.TabStop == 0) continue;
    // Only its colour tells a swatch from the others, so its word is what it does.
    const QWidget& widget = work.WidgetOf(*control);
    EXPECT_FALSE(widget.accessibleDescription().isEmpty()) << control->FullName();
    if (control->Name != "P_Clr") {
      EXPECT_FALSE(widget.accessibleName().isEmpty()) << control->FullName();
    }
  }
}

TEST(Places, EdgesOfTheGroupsAreAligned) {
  WindowAtWork work;
  if (work.window.scale.Unit() != 1) GTEST_SKIP() << "told in pixels of 100 per cent";
  const auto left = [&](const Control& c) { return work.ViewOf(c).Stand().Face.left(); };
  const auto right = [&](const Control& c) {
    const QRect face = work.ViewOf(c).Stand().Face;
    return face.left() + face.width();
  };
  MainWindow& main = work.main;

  for (const Control* c : std::initializer_list<Control*>{&main.Bt_Blt_AA, &main.VScroll1,
                                                          &main.Bt3_Reset, &main.Bt3_Sterio}) {
    EXPECT_EQ(left(*c), 4) << c->Name;
  }
  EXPECT_EQ(left(main.P_Pic1), 48);
  EXPECT_EQ(right(main.P_Pic1), 417);
  EXPECT_EQ(right(main.ZoomBar), 417);
  for (const Control* c :
       std::initializer_list<Control*>{&main.AA_Lst, &main.Pro_Lst, &main.Nuc_Lst, &main.DNA_Lst}) {
    EXPECT_EQ(left(*c), 421) << c->Name;
    EXPECT_EQ(right(*c), 560) << c->Name;
  }
  EXPECT_EQ(right(main.P_Dst_Show), 560);
}

}  // namespace
}  // namespace orvane
