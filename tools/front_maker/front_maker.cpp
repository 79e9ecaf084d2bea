#include "front_maker/front_maker.h"

#include <array>
#include <memory>
#include <vector>

#include "desk/actions.h"
#include "draw/redraw_chain.h"
#include "no_platform/no_platform.h"
#include "shell/front_frames.h"
#include "shell/start_up.h"
#include "view/transform.h"
#include "windows/information_windows.h"

namespace orvane {
namespace {

struct Scene {
  List MainWindow::*Rows;
  int Row;
  int BallsOn, BallSize, BondWidth;
};
// A frame is shown at less than half its size, so lines and balls are drawn large.
constexpr Scene kHelix{&MainWindow::Pro_Lst, 1, 1, 6, 4};
constexpr Scene kDoubleStrand{&MainWindow::DNA_Lst, 2, 0, 3, 5};

constexpr int kZoomSteps = 5;         // 1.1 to the fifth: from half the frame to 80 per cent
constexpr double kTurnAFrame = 36.0;  // degrees

// It is shown in a box that is a quarter higher than wide, so the surface's 360 become 447.
constexpr Scene kAlanine{&MainWindow::AA_Lst, 2, 1, 15, 7};
constexpr float kLower = (447 - 360) / 2.0F;

// The frames of a scene, this many of them, as a desk draws them.
std::vector<std::shared_ptr<const Picture>> Drawn(const Scene& scene, int count) {
  NoPlatform platform;
  const auto owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  desk.main.Show();
  SelectRow(desk, desk.main.*scene.Rows, scene.Row);
  desk.drawing.BallsOn = scene.BallsOn;
  desk.drawing.BallSize = scene.BallSize;
  desk.drawing.BondWidth = scene.BondWidth;
  for (int step = 1; step <= kZoomSteps; ++step) {
    StepBar(desk, desk.main.ZoomBar, step * desk.main.ZoomBar.Range.SmallStep);
  }
  std::vector<std::shared_ptr<const Picture>> frames;
  for (int frame = 0; frame < count; ++frame) {
    RedrawView(desk);
    frames.push_back(desk.main.Picture1.Image());
    desk.view.TurnAngle = kTurnAFrame;
    RotateAll(desk);
  }
  return frames;
}

}  // namespace

std::string ProteinFramesAsBytes() { return FramesAsBytes(Drawn(kHelix, kFrontFrames)); }
std::string DnaFramesAsBytes() { return FramesAsBytes(Drawn(kDoubleStrand, kFrontFrames)); }

std::string AuthorFrameAsBytes() {
  auto upright = std::make_shared<Picture>(*Drawn(kAlanine, 1).front());
  for (Stroke& stroke : upright->Strokes) {
    stroke.Y1 += kLower;
    if (stroke.Kind == StrokeKind::Line) stroke.Y2 += kLower;
  }
  const std::array<std::shared_ptr<const Picture>, 1> frames{upright};
  return FramesAsBytes(frames);
}

}  // namespace orvane
