#include "commands/background_entries.h"

#include <gtest/gtest.h>
#include <utility>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

using Calls = std::vector<std::string>;

struct BackgroundCommandsTest : testing::Test, PlacedAtoms, SurfaceTrace, ControlWatcher {
  MainWindow& main = desk.main;
  Calls calls;
  const Control* focus = nullptr;

  BackgroundCommandsTest() {
    main.Picture1.Trace = this;
    main.Watcher = this;
  }
  ~BackgroundCommandsTest() override { main.Watcher = nullptr; }

  void PictureSet(int background) override {
    calls.push_back("wipe " + std::to_string(background));
  }
  void BackColorSet(Colour colour) override { calls.push_back("back " + ColourAsText(colour)); }
  void Drawn(const Stroke&, std::string_view) override {}
  void Changed(Control& control, Aspect aspect) override {
    if (aspect == Aspect::Focus) focus = &control;
  }

  Calls After(Control& control) {
    calls.clear();
    Click(desk, control, Reach::Forced);
    return std::exchange(calls, {});
  }

  // Opens the frame, types three values, and accepts the colour.
  Calls Mix(const char* red, const char* green, const char* blue) {
    Click(desk, main.COL_RGB);
    TypeText(desk, main.RGB_V[0], red);
    TypeText(desk, main.RGB_V[1], green);
    TypeText(desk, main.RGB_V[2], blue);
    return After(main.Do_color);
  }
};

TEST_F(BackgroundCommandsTest, OpeningTheMenuClosesTheColourPanelAlone) {
  main.P_Clr_Holder.Visible = true;
  main.V_RGB_H.Visible = true;
  Click(desk, main.BkGd);
  EXPECT_FALSE(main.P_Clr_Holder.Visible);
  EXPECT_TRUE(main.V_RGB_H.Visible);
}

TEST_F(BackgroundCommandsTest, BlackAndWhiteArePlain) {
  desk.colours.BackgroundIndex = 3;
  EXPECT_EQ(After(main.Wt_Cl), (Calls{"wipe -1", "back #ffffff", "wipe -1"}));
  EXPECT_EQ(desk.colours.BackgroundIndex, -1);

  desk.colours.BackgroundIndex = 3;
  EXPECT_EQ(After(main.Bk_Cl), (Calls{"wipe -1", "back #000000", "wipe -1"}));
  EXPECT_EQ(desk.colours.BackgroundIndex, -1);
}

TEST_F(BackgroundCommandsTest, EachPictureHasItsEntry) {
  MenuEntry* entries[] = {&main.Bgr1, &main.Bgr2, &main.Bgr3, &main.Bgr4, &main.Bgr5};
  for (int n = 0; n < 5; ++n) {
    main.Picture1.SetBackColor(kPalette15);
    const std::string wipe = "wipe " + std::to_string(n);
    EXPECT_EQ(After(*entries[n]), (Calls{"back #000000", wipe, wipe})) << n;
    EXPECT_EQ(desk.colours.BackgroundIndex, n);
    const auto image = main.Picture1.Image();
    ASSERT_NE(image->Backdrop, nullptr) << n;
    EXPECT_EQ(image->Backdrop, desk.colours.BakImg[static_cast<std::size_t>(n)]) << n;
  }
}

TEST_F(BackgroundCommandsTest, APictureOpensTheCommandsThatNeedAStructure) {
  ASSERT_EQ(desk.molecule.MoleculeReady, 0);
  After(main.Bgr1);
  EXPECT_EQ(desk.molecule.MoleculeReady, 1);
}

TEST_F(BackgroundCommandsTest, NoneChecksWhetherSomethingVanishes) {
  desk.colours.PenColour = kPalette15;
  desk.colours.PlaneColour = kPalette0;
  After(main.Wt_Cl);
  After(main.Bgr1);
  Mix("255", "255", "255");
  EXPECT_TRUE(platform.Effects.empty());
  EXPECT_EQ(main.Picture1.PlainColour(), kPalette15);
}

TEST_F(BackgroundCommandsTest, ResetBringsAPlainColourToBlackAndKeepsAPicture) {
  Atom("  CA ", 0, 0);
  Mix("0", "0", "200");
  Click(desk, main.Bt3_Reset);
  EXPECT_EQ(main.Picture1.PlainColour(), kPalette0);

  After(main.Bgr2);
  Click(desk, main.Bt3_Reset);
  EXPECT_EQ(desk.colours.BackgroundIndex, 1);
  EXPECT_NE(main.Picture1.Image()->Backdrop, nullptr);  // it came back with the next paint
}

TEST_F(BackgroundCommandsTest, TheRgbEntryOpensTheFrameWithTheKeyboardInItsFirstBox) {
  EXPECT_EQ(main.Do_color.Style.Get().Bevel, 2);
  EXPECT_EQ(main.RGB_V[0].Text, "0");
  Click(desk, main.COL_RGB);

  EXPECT_TRUE(main.V_RGB_H.Visible);
  EXPECT_EQ(main.Do_color.Style.Get().Bevel, 1);
  EXPECT_EQ(focus, &main.RGB_V[0]);
}

TEST_F(BackgroundCommandsTest, AMixedColourClosesTheFrameAndPaints) {
  desk.colours.BackgroundIndex = 4;
  EXPECT_EQ(Mix("16", "32", "48"), (Calls{"wipe -1", "back #102030", "wipe -1"}));
  EXPECT_FALSE(main.V_RGB_H.Visible);
  EXPECT_EQ(main.Do_color.Style.Get().Bevel, 2);
  EXPECT_EQ(desk.colours.BackgroundIndex, -1);
}

TEST_F(BackgroundCommandsTest, EnterInAnyBoxTakesTheColourAndOtherKeysDoNot) {
  for (TextBox& box : main.RGB_V) {
    main.Picture1.SetBackColor(kPalette0);
    Click(desk, main.COL_RGB);
    TypeText(desk, box, "255");
    PressKey(desk, box, 'A');
    EXPECT_TRUE(main.V_RGB_H.Visible);
    EXPECT_EQ(main.Picture1.PlainColour(), kPalette0);
    PressKey(desk, box, kEnterKey);
    EXPECT_FALSE(main.V_RGB_H.Visible);
    EXPECT_NE(main.Picture1.PlainColour(), kPalette0);
  }
  EXPECT_EQ(main.Picture1.PlainColour(), kPalette15);
}

struct Typed {
  const char* Text;
  int Value;
};

TEST_F(BackgroundCommandsTest, ANumberIsRoundedAndClippedTo255) {
  constexpr Typed kRows[] = {
      {"0", 0},     {" 17 ", 17}, {"+5", 5},     {"2.5", 2},     {"3.5", 4},  {"1e2", 100},
      {"255", 255}, {"256", 255}, {"1000", 255}, {"32767", 255}, {"-0.4", 0}, {"1e-400", 0},
  };
  for (const Typed& row : kRows) {
    Mix(row.Text, "0", "0");
    EXPECT_EQ(main.Picture1.PlainColour(), Rgb(row.Value, 0, 0)) << row.Text;
  }
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(BackgroundCommandsTest, WhatIsNotANumberIsNamedAndTheColourStays) {
  desk.colours.BackgroundIndex = 1;
  for (const char* text : {"", " ", "red", "12x", "0x10", "1 2", "-1", "-32768", "-40000", "32768",
                           "1e9", "1e400", "1,5"}) {
    main.Picture1.SetBackColor(Rgb(1, 2, 3));
    main.Picture1.Print("old");
    platform.Effects.clear();
    // The third box is wrong. The first two have been read, and yet nothing has changed.
    EXPECT_EQ(Mix("9", "9", text), Calls{"wipe -1"}) << text;

    ASSERT_EQ(platform.Effects.size(), 1u) << text;
    EXPECT_EQ(platform.Effects[0], std::string("failure RGB   Colour could not be finished: \"") +
                                       text + "\" is not a number that fits here.");
    EXPECT_EQ(main.Picture1.PlainColour(), Rgb(1, 2, 3)) << text;
    EXPECT_EQ(desk.colours.BackgroundIndex, 1) << text;
    EXPECT_FALSE(main.V_RGB_H.Visible) << text;
    EXPECT_EQ(main.Do_color.Style.Get().Bevel, 2) << text;
    EXPECT_EQ(Strokes(), "") << text;
  }
}

}  // namespace
}  // namespace orvane
