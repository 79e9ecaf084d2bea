// How long the heaviest repaint takes, in units of one memset of the surface.
#include "bench_desk.h"
#include "canvas.h"
#include "heaviest_scene.h"
#include "ratios.h"

namespace orvane::bench {
namespace {

BENCHMARK(Memset);

void PaintAt(benchmark::State& state, const Picture& picture, int side) {
  Canvas canvas(side);
  for (auto unused : state) canvas.Paint(picture);
}

void Repaint(benchmark::State& state) { PaintAt(state, HeaviestScene(), kSide); }
BENCHMARK(Repaint);

// The part of it that each kind of stroke takes.
void PaintOnly(benchmark::State& state, auto&& is_wanted) {
  Picture picture = HeaviestScene();
  std::erase_if(picture.Strokes, [&](const Stroke& stroke) { return !is_wanted(stroke); });
  PaintAt(state, picture, kSide);
}
void RepaintNothing(benchmark::State& state) {
  PaintOnly(state, [](const Stroke&) { return false; });
}
BENCHMARK(RepaintNothing);
void RepaintBonds(benchmark::State& state) {
  PaintOnly(state, [](const Stroke& s) { return s.Kind == StrokeKind::Line && s.Style == 0; });
}
BENCHMARK(RepaintBonds);
void RepaintDotted(benchmark::State& state) {
  PaintOnly(state, [](const Stroke& s) { return s.Kind == StrokeKind::Line && s.Style == 2; });
}
BENCHMARK(RepaintDotted);
void RepaintBalls(benchmark::State& state) {
  PaintOnly(state, [](const Stroke& s) { return s.Kind == StrokeKind::Circle; });
}
BENCHMARK(RepaintBalls);
void RepaintLabels(benchmark::State& state) {
  PaintOnly(state, [](const Stroke& s) { return s.Kind == StrokeKind::Print; });
}
BENCHMARK(RepaintLabels);

void BothHalvesOfAStereoPair(benchmark::State& state) {
  const Picture picture = HeaviestScene();
  Canvas canvas(kHalfSide);
  for (auto unused : state) {
    for (int half = 0; half < 2; ++half) canvas.Paint(picture);
  }
}
BENCHMARK(BothHalvesOfAStereoPair);

// Larger pictures: a screen of twice the density, the desk maximised on 1920 by 1080, and both.
constexpr int kDense = 2 * kSide, kMaximised = 801, kMaximisedDense = 1603;
void RepaintLarge(benchmark::State& state) {
  PaintAt(state, HeaviestScene(), static_cast<int>(state.range(0)));
}
BENCHMARK(RepaintLarge)->Arg(kDense)->Arg(kMaximised)->Arg(kMaximisedDense);
void MemsetLarge(benchmark::State& state) { MemsetOf(state, static_cast<int>(state.range(0))); }
BENCHMARK(MemsetLarge)->Arg(kDense)->Arg(kMaximised)->Arg(kMaximisedDense);

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  if (!orvane::bench::CanMakeHeaviest()) return 1;
  orvane::bench::Ratios ratios;
  orvane::bench::RunAll(argc, argv, ratios);
  ratios.Print("heaviest repaint, raster alone / memset", "Repaint", "Memset");
  ratios.Print("both halves of a stereo pair / memset", "BothHalvesOfAStereoPair", "Memset");
  ratios.Print("raster at twice the density / memset of as much", "RepaintLarge/720",
               "MemsetLarge/720", {.AtMost = 20});
  ratios.Print("raster maximised at 1920x1080 / memset of as much", "RepaintLarge/801",
               "MemsetLarge/801", {.AtMost = 20});
  ratios.Print("the same at twice the density / memset of as much", "RepaintLarge/1603",
               "MemsetLarge/1603", {.AtMost = 20});
  return 0;
}
