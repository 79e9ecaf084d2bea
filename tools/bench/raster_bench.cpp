// How long the heaviest repaint takes, in units of one memset of the surface.
#include <cstring>

#include "draw/raster.h"
#include "heaviest_scene.h"
#include "ratios.h"

namespace orvane::bench {
namespace {

void Memset(benchmark::State& state) {
  std::vector<std::uint32_t> words(360 * 360);
  for (auto unused : state) {
    std::memset(words.data(), 0x5A, words.size() * sizeof words[0]);
    benchmark::DoNotOptimize(words.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(Memset);

void PaintAt(benchmark::State& state, const Picture& picture, int side) {
  Raster raster;
  std::vector<std::uint32_t> words(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  for (auto unused : state) {
    raster.Paint(picture, side / 360.0, words.data(), side, side, side);
    benchmark::ClobberMemory();
  }
}

void Repaint(benchmark::State& state) { PaintAt(state, HeaviestScene(), 360); }
BENCHMARK(Repaint);

// What each kind of stroke takes of it.
void PaintOnly(benchmark::State& state, auto&& is_wanted) {
  Picture picture = HeaviestScene();
  std::erase_if(picture.Strokes, [&](const Stroke& stroke) { return !is_wanted(stroke); });
  PaintAt(state, picture, 360);
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
  Raster raster;
  std::vector<std::uint32_t> words(169 * 169);
  for (auto unused : state) {
    for (int half = 0; half < 2; ++half) {
      raster.Paint(picture, 169 / 360.0, words.data(), 169, 169, 169);
      benchmark::ClobberMemory();
    }
  }
}
BENCHMARK(BothHalvesOfAStereoPair);

void RepaintTwiceAsLarge(benchmark::State& state) { PaintAt(state, HeaviestScene(), 720); }
BENCHMARK(RepaintTwiceAsLarge);

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  orvane::bench::Ratios ratios;
  benchmark::RunSpecifiedBenchmarks(&ratios);
  ratios.Print("heaviest repaint / memset of the surface", "Repaint", "Memset");
  ratios.Print("both halves of a stereo pair / memset", "BothHalvesOfAStereoPair", "Memset");
  return 0;
}
