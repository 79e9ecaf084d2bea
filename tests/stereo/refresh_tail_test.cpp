// Which composed views each command makes again: the tails differ on purpose.

#include "stereo/refresh_tail.h"

#include <functional>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

// A command, and whether its tail has the test for the stereo pair, the D/L view, the red-green
// picture.
struct TailRow {
  const char* Command;
  std::function<void(Orvane_Desk&)> Run;
  bool Stereo, Enantiomers, RedGreen;
};

void Drag(Orvane_Desk& desk) {
  Press(desk, desk.main.Picture1, kRightButton, 100, 100);
  Move(desk, desk.main.Picture1, kRightButton, 110, 105);
}

void TickOnce(Orvane_Desk& desk) {
  desk.main.Timer1.Enabled = true;
  desk.view.AutoRotateOn = 1;
  Tick(desk, desk.main.Timer1);
}

const std::vector<TailRow>& Rows() {
  static const std::vector<TailRow> rows = {
      {"ZoomBar", [](Orvane_Desk& d) { StepBar(d, d.main.ZoomBar, 5); }, true, true, true},
      {"X_TRANS", [](Orvane_Desk& d) { StepBar(d, d.main.X_TRANS, 5); }, true, true, true},
      {"Y_TRANS", [](Orvane_Desk& d) { StepBar(d, d.main.Y_TRANS, 5); }, true, true, true},
      {"VScroll1", [](Orvane_Desk& d) { StepBar(d, d.main.VScroll1, 11); }, true, true, true},
      {"Timer1", TickOnce, true, true, true},
      {"Bt3_HBD", [](Orvane_Desk& d) { Click(d, d.main.Bt3_HBD); }, true, true, true},
      {"Sz_Balls", [](Orvane_Desk& d) { Press(d, d.main.Sz_Balls[2], kLeftButton, 1, 1); }, true,
       true, true},
      {"drag", Drag, true, false, true},
  };
  return rows;
}

struct ATail : testing::TestWithParam<std::size_t> {};

TEST_P(ATail, HasJustTheTestsOfItsCommand) {
  const TailRow& row = Rows()[GetParam()];
  // One view is on at a time. Red-green is known by the green pen that it leaves.
  for (int view = 0; view < 3; ++view) {
    DeskAtWork work;
    Load(work.desk, Record("C1", 0, 0, 0) + Record("C2", 1, 1, 0.5) + Record("O3", 2, 2, 1));
    work.desk.stereo.StereoOn = view == 0;
    work.desk.stereo.EnantiomerOn = view == 1;
    work.desk.stereo.RedGreenOn = view == 2;

    row.Run(work.desk);

    const bool composed_pair = work.desk.main.R_Img.Shown() != nullptr;
    const bool composed_red_green = work.desk.colours.PenColour == Rgb(0, 255, 0);
    EXPECT_EQ(composed_pair, (view == 0 && row.Stereo) || (view == 1 && row.Enantiomers))
        << row.Command << " with view " << view;
    EXPECT_EQ(composed_red_green, view == 2 && row.RedGreen)
        << row.Command << " with view " << view;
  }
}

INSTANTIATE_TEST_SUITE_P(Commands, ATail, testing::Range(std::size_t{0}, Rows().size()),
                         [](const auto& test) { return std::string(Rows()[test.param].Command); });

TEST(RefreshTails, ComeInTheOrderStereoEnantiomersRedGreen) {
  DeskAtWork work;
  Orvane_Desk& desk = work.desk;
  Load(desk, Record("C1", 0, 0, 0) + Record("C2", 1, 1, 0.5) + Record("O3", 2, 2, 1));
  desk.stereo.StereoOn = desk.stereo.EnantiomerOn = desk.stereo.RedGreenOn = 1;
  desk.colours.ColourByElement = 0;

  RefreshTail(desk);

  // The stereo pair was painted first, before any red-green picture had made the pen green. The
  // enantiomers came after it, so the images hold them: the right one is the half turn, whose
  // red-green picture has twelve half bonds.
  EXPECT_EQ(desk.main.R_Img.Shown()->Strokes.size(), 12U);
  // The surface ends with the red-green picture over the plain view of the enantiomers.
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 12U);
}

}  // namespace
}  // namespace orvane
