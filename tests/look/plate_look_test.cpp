#include "look/plate_look.h"

#include <gtest/gtest.h>

#include "desk/orvane_desk.h"
#include "fake_platform.h"

namespace orvane {
namespace {

using namespace palette;

struct PlateLook : testing::Test {
  FakePlatform platform;
  std::unique_ptr<Orvane_Desk> owned = std::make_unique<Orvane_Desk>(platform);
  Control& button = owned->main.Bt3_Reset;

  BevelLook Of(Look style, Touch touch = {}) {
    button.Style = style;
    return BevelLookOf(button, DressOf(button), touch);
  }
};

TEST_F(PlateLook, RaisedIsWhiteWithAHeavierLowerEdge) {
  const BevelLook look = Of({.Bevel = 2, .TextStyle = 2});
  EXPECT_EQ(look.Face, kFace);
  EXPECT_EQ(look.Edge, kSoftEdge);
  EXPECT_EQ(look.LowerEdge, kEdge);
  EXPECT_EQ(look.Ink, kInk);
  EXPECT_FALSE(look.Sunken);
}

TEST_F(PlateLook, PressedIsTintedAndSunken) {
  const BevelLook look = Of({.Bevel = 1, .TextStyle = 4});
  EXPECT_EQ(look.Face, kTint);
  EXPECT_EQ(look.Edge, kAccent);
  EXPECT_EQ(look.LowerEdge, kNone);
  EXPECT_EQ(look.Ink, kDeep);
  EXPECT_EQ(look.Letters.Weight, 600);
  EXPECT_TRUE(look.Sunken);
}

TEST_F(PlateLook, FlatHasTheGroundForAFace) {
  const BevelLook look = Of({.Bevel = 0, .TextStyle = 3});
  EXPECT_EQ(look.Face, kGround);
  EXPECT_EQ(look.Edge, kOffEdge);
  EXPECT_EQ(look.Ink, kInk2);
}

TEST_F(PlateLook, UnderThePointerTheEdgeIsTheAccent) {
  const BevelLook look = Of({.Bevel = 2, .TextStyle = 2}, {.Under = true});
  EXPECT_EQ(look.Face, kHover);
  EXPECT_EQ(look.Edge, kAccent);
  EXPECT_EQ(look.LowerEdge, kNone);
}

TEST_F(PlateLook, HeldIsDarkerThanPressed) {
  EXPECT_EQ(Of({.Bevel = 1, .TextStyle = 2}, {.Held = true}).Face, kPress);
}

TEST_F(PlateLook, OffHasNoEdgeAndNothingTouchesIt) {
  const BevelLook look = Of({.Bevel = 2, .TextStyle = 2}, {.Off = true, .Under = true});
  EXPECT_EQ(look.Face, kDisabledFace);
  EXPECT_EQ(look.Edge, kNone);
  EXPECT_EQ(look.Ink, kDisabled);
}

TEST_F(PlateLook, AToggleThatSaysOnLooksPressed) {
  Control& toggle = owned->main.Bt3_Label;
  ASSERT_EQ(toggle.Row.Kind, ControlKind::Toggle);
  toggle.Style = Look{.Bevel = 2, .TextStyle = 2};
  toggle.Caption = "Label On";
  ASSERT_TRUE(CaptionSaysOn(toggle.Caption.Get()));
  EXPECT_TRUE(BevelLookOf(toggle, DressOf(toggle), {}).Sunken);
}

// 210, 90 and 50, times 0.57, are 119.7, 51.3 and 28.5; what stands behind the point is dropped.
TEST(Swatches, HaveAnEdgeOfTheirOwnColourMadeDarker) {
  EXPECT_EQ(SwatchEdge(0xFFD25A32), 0xFF000000 | 119U << 16 | 51U << 8 | 28U);
}

}  // namespace
}  // namespace orvane
