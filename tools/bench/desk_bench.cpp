// The time of the desk itself: selections, turns and repaints as lists of strokes, compared with
// the raster of what they draw and with one memset of the surface.
#include <cstdio>

#include "bench_desk.h"
#include "canvas.h"
#include "desk/actions.h"
#include "draw/redraw_chain.h"
#include "ratios.h"
#include "view/transform.h"

namespace orvane::bench {
namespace {

BENCHMARK(Memset);

// Tryptophan grows by a load of the whole text for each atom, and each load paints and resets.
void SelectTrp(benchmark::State& state) {
  BenchDesk bench;
  const int row = RowOf(bench.desk.main.AA_Lst, "TRP");
  for (auto unused : state) SelectRow(bench.desk, bench.desk.main.AA_Lst, row);
}
BENCHMARK(SelectTrp);

void RasterTrp(benchmark::State& state) {
  BenchDesk bench;
  Select(bench, bench.desk.main.AA_Lst, "TRP");
  const auto picture = bench.desk.main.Picture1.Image();
  Canvas canvas;
  for (auto unused : state) canvas.Paint(*picture);
}
BENCHMARK(RasterTrp);

void HeaviestList(benchmark::State& state) {
  HeaviestDesk bench;
  for (auto unused : state) RedrawView(bench.desk);
}
BENCHMARK(HeaviestList);

void HeaviestRaster(benchmark::State& state) {
  HeaviestDesk bench;
  const auto picture = bench.desk.main.Picture1.Image();
  Canvas canvas;
  for (auto unused : state) canvas.Paint(*picture);
}
BENCHMARK(HeaviestRaster);

void HeaviestListAndRaster(benchmark::State& state) {
  HeaviestDesk bench;
  Canvas canvas;
  for (auto unused : state) {
    RedrawView(bench.desk);
    canvas.Paint(*bench.desk.main.Picture1.Image());
  }
}
BENCHMARK(HeaviestListAndRaster);

// One step of the turn bar: every atom turned, projected and drawn as a list.
void TurnStep(benchmark::State& state) {
  HeaviestDesk bench;
  bench.desk.view.SpinNow = -11;
  for (auto unused : state) SpinStep(bench.desk);
}
BENCHMARK(TurnStep);

// A desk that spins the heaviest picture as a stereo pair.
struct SpinningPair : HeaviestDesk {
  SpinningPair() {
    Click(desk, desk.main.Bt3_Sterio);
    StepBar(desk, desk.main.VScroll1, 11);
    Click(desk, desk.main.P_Auto_Rotate);
  }
  bool Shows() const {
    return desk.main.L_Img.Shown() != nullptr && desk.main.R_Img.Shown() != nullptr;
  }
};

void StereoTickList(benchmark::State& state) {
  SpinningPair bench;
  for (auto unused : state) Tick(bench.desk, bench.desk.main.Timer1);
}
BENCHMARK(StereoTickList);

// The same, up to the pixels of both halves.
void StereoTick(benchmark::State& state) {
  SpinningPair bench;
  MainWindow& main = bench.desk.main;
  Canvas left(kHalfSide);
  Canvas right(kHalfSide);
  if (!bench.Shows()) state.SkipWithError("there is no stereo pair");
  for (auto unused : state) {
    Tick(bench.desk, main.Timer1);
    left.Paint(*main.L_Img.Shown());
    right.Paint(*main.R_Img.Shown());
  }
}
BENCHMARK(StereoTick);

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  if (!orvane::bench::CanMakeHeaviest()) return 1;
  orvane::bench::Ratios ratios;
  orvane::bench::RunAll(argc, argv, ratios);
  ratios.Print("heaviest repaint, list and raster / memset", "HeaviestListAndRaster", "Memset",
               {.AtMost = 20});
  ratios.Print("heaviest repaint, raster alone / memset", "HeaviestRaster", "Memset");
  ratios.Print("heaviest repaint, list alone / memset", "HeaviestList", "Memset");
  ratios.Print("one turn step, list alone / memset", "TurnStep", "Memset");
  ratios.Print("stereo tick, both halves rastered / memset", "StereoTick", "Memset",
               {.AtMost = 75});
  ratios.Print("stereo tick, lists alone / memset", "StereoTickList", "Memset");
  ratios.Print("selection of TRP, lists alone / one raster of it", "SelectTrp", "RasterTrp",
               {.AtMost = 10});
  return 0;
}
