// orvane-long-spin: spins with every composition on, tick after tick as fast as it can, and prints
// how much memory the process has at the start, at each quarter and at the end.
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desk/actions.h"
#include "no_platform/no_platform.h"
#include "raster/raster.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

constexpr long kTicksAnHour = 3600 * 1000;  // at the fastest interval, one millisecond
// A window paints every eighth millisecond at most.
constexpr long kTicksAPaint = 8;
constexpr int kQuarters = 4;

class NothingPending : public NoPlatform {
 public:
  void LetEventsRun() override {}
};

// Kilobytes that the process has in memory.
long ResidentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
  }
  return 0;
}

void Paint(const Orvane_Desk& desk, Raster& raster, std::vector<std::uint32_t>& canvas) {
  constexpr int kSide = kSurfacePixels;
  canvas.resize(std::size_t{kSide} * kSide);
  const std::shared_ptr<const Picture> shown[] = {desk.main.Picture1.Image(),
                                                  desk.main.L_Img.Shown(), desk.main.R_Img.Shown()};
  for (const auto& picture : shown) {
    if (picture) raster.Paint(*picture, 1, canvas.data(), kSide, kSide, kSide);
  }
}

// The double strand with everything that can be drawn of it. The window's buttons do not allow the
// compositions together, so their flags are set here: each tick makes all three.
void SetUp(Orvane_Desk& desk) {
  Click(desk, desk.front.Get_in);
  Click(desk, desk.content.Get_in);
  SelectRow(desk, desk.main.DNA_Lst, 1, Reach::Forced);
  Click(desk, desk.main.D_StB, Reach::Forced);
  Click(desk, desk.main.Bt3_Label, Reach::Forced);
  Click(desk, desk.main.Bt3_HBD, Reach::Forced);
  Click(desk, desk.main.Bgr1, Reach::Forced);
  desk.stereo.StereoOn = desk.stereo.EnantiomerOn = desk.stereo.RedGreenOn = 1;
  StepBar(desk, desk.main.Rt_speed, desk.main.Rt_speed.Range.Min, Reach::Forced);
  Click(desk, desk.main.P_Auto_Rotate);
}

int Spin(long ticks) {
  NothingPending platform;
  const auto owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  SetUp(desk);
  if (desk.view.AutoRotateOn != 1 || desk.main.Timer1.Interval != 1) return 1;

  Raster raster;
  std::vector<std::uint32_t> canvas;
  const auto start = std::chrono::steady_clock::now();
  for (long tick = 0; tick <= ticks; ++tick) {
    // The first turn fills what is kept between paints, so it does not count.
    if (tick % (ticks / kQuarters) == 0) {
      const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
      std::printf("%8ld ticks %8ld KB resident %7.0f s\n", tick, ResidentMemory(), seconds.count());
      std::fflush(stdout);
    }
    Tick(desk, desk.main.Timer1);
    if (tick % kTicksAPaint == 0) Paint(desk, raster, canvas);
  }
  return desk.view.AutoRotateOn == 1 ? 0 : 1;
}

}  // namespace
}  // namespace orvane

int main(int argc, char** argv) {
  long ticks = orvane::kTicksAnHour;
  const std::string_view number = argc == 2 ? argv[1] : "";
  if (argc > 2 ||
      (argc == 2 && std::from_chars(number.begin(), number.end(), ticks).ec != std::errc()) ||
      ticks < 4) {
    std::fprintf(stderr, "usage: orvane-long-spin [TICKS]\n");
    return 2;
  }
  return orvane::Spin(ticks);
}
