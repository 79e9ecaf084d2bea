// The tables of the look, walked.
#include "look/dress.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "desk/orvane_desk.h"
#include "fake_platform.h"
#include "look/information_dress.h"
#include "look/page_captions.h"
#include "look/plot_letters.h"
#include "look/window_dress.h"

namespace orvane {
namespace {

struct Look : testing::Test {
  FakePlatform platform;
  std::unique_ptr<Orvane_Desk> owned = std::make_unique<Orvane_Desk>(platform);
  Orvane_Desk& desk = *owned;

  std::vector<const Control*> AllControls() const {
    std::vector<const Control*> all;
    for (const Window* window : desk.windows) {
      all.insert(all.end(), window->Controls.begin(), window->Controls.end());
    }
    return all;
  }
};

// Its name with the window's prefix, alone or with its index.
bool Names(std::string_view row, const Control& control) {
  return row == control.FullName() || row == control.Owner.Prefix + control.Name;
}

TEST_F(Look, OfEachRowIsWornByAControl) {
  const auto all = AllControls();
  std::set<const Dress*> worn;
  for (const Control* control : all) worn.insert(&DressOf(*control));
  for (const Dress& dress : InformationDresses()) {
    EXPECT_TRUE(worn.contains(&dress)) << dress.Control;
  }
  for (const Dress* dress : worn) {
    if (dress->Control.empty()) continue;
    EXPECT_TRUE(std::ranges::any_of(all, [&](auto* c) { return Names(dress->Control, *c); }))
        << dress->Control;
  }
}

// A control of an array may have a row of its own before that of all of them.
TEST_F(Look, OfOneOfAnArrayComesBeforeThatOfTheArray) {
  const ContentWindow& content = desk.content;
  EXPECT_EQ(DressOf(content.Text[0]).Letters, (Type{13, 600}));
  EXPECT_EQ(DressOf(content.Text[1]).Letters, (Type{13, 500}));
}

TEST_F(Look, OfAControlWithoutARowIsThatOfItsKind) {
  EXPECT_EQ(DressOf(desk.main.Bt3_Reset).Shape, DressShape::Bevel);
  EXPECT_EQ(DressOf(desk.main.Picture1).Shape, DressShape::Plain);
  EXPECT_EQ(DressOf(desk.main.Picture1).Face, palette::kNone);
}

TEST_F(Look, LeavesNoColourHalfTransparent) {
  for (const Control* control : AllControls()) {
    const Dress& dress = DressOf(*control);
    for (const Argb colour : {dress.Face, dress.Edge, dress.Ink}) {
      EXPECT_TRUE(colour == palette::kNone || colour >> 24 == 0xFF) << control->FullName();
    }
  }
}

TEST_F(Look, TakesWeightsThatTheTypeHas) {
  const std::set<int> weights{400, 500, 600, 700};
  for (const Control* control : AllControls()) {
    EXPECT_TRUE(weights.contains(DressOf(*control).Letters.Weight)) << control->FullName();
  }
  for (const PageCaption& row : PageCaptions()) EXPECT_TRUE(weights.contains(row.Letters.Weight));
}

TEST_F(Look, OfThePageNamesLabelsOfThePage) {
  for (const PageCaption& row : PageCaptions()) {
    EXPECT_TRUE(std::ranges::any_of(desk.page.Controls, [&](const Control* control) {
      return control->Name == row.Control;
    })) << row.Control;
  }
}

TEST_F(Look, OfADarkWindowIsDarkAndOfAnyOtherTheGround) {
  EXPECT_EQ(WindowDressOf(desk.front.Name).Ground, palette::kBezel);
  EXPECT_EQ(WindowDressOf(desk.content.Name).Band, 780);
  EXPECT_EQ(WindowDressOf(desk.main.Name).Ground, palette::kGround);
  EXPECT_FALSE(WindowDressOf(desk.plot.Name).Centred);
}

TEST_F(Look, OfThePlotTurnsTheNamesOfTheUprightAxis) {
  EXPECT_TRUE(PlotLettersOf(desk.plot.Label8).Upwards);
  EXPECT_FALSE(PlotLettersOf(desk.plot.Label10).Upwards);
}

// The degree sign of a scale mark is the smaller one.
TEST_F(Look, OfThePlotSetsOneOfAnArrayByItsOwnRow) {
  EXPECT_EQ(PlotLettersOf(desk.plot.Degrs[0]).Size, 11);
  EXPECT_EQ(PlotLettersOf(desk.plot.Degrs[1]).Size, 8);
}

TEST(GreekLetters, ComeFromThoseOfTheSymbolType) {
  EXPECT_EQ(GreekOf("a"), "\u03B1");
  EXPECT_EQ(GreekOf("b"), "\u03B2");
  EXPECT_EQ(GreekOf("f"), "\u03C6");
  EXPECT_EQ(GreekOf("j"), "\u03D5");
  EXPECT_EQ(GreekOf("(i)"), "(i)");
}

}  // namespace
}  // namespace orvane
