// Pixels to paint on, and the unit of the ratios: one memset of the surface.
#pragma once

#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

#include "raster/raster.h"
#include "windows/main_window.h"

namespace orvane::bench {

inline constexpr int kSide = kSurfacePixels;
inline constexpr int kHalfSide = 169;  // pixels of an image control of the stereo pair

class Canvas {
 public:
  explicit Canvas(int side = kSide)
      : side_(side), words_(static_cast<std::size_t>(side) * static_cast<std::size_t>(side)) {}

  void Paint(const Picture& picture) {
    raster_.Paint(picture, static_cast<double>(side_) / kSide, words_.data(), side_, side_, side_);
    benchmark::DoNotOptimize(words_.data());
    benchmark::ClobberMemory();
  }
  void Fill() {
    std::memset(words_.data(), 0x5A, words_.size() * sizeof words_[0]);
    benchmark::DoNotOptimize(words_.data());
    benchmark::ClobberMemory();
  }

 private:
  int side_;
  std::vector<std::uint32_t> words_;
  Raster raster_;
};

inline void MemsetOf(benchmark::State& state, int side) {
  Canvas canvas(side);
  for (auto unused : state) canvas.Fill();
}

inline void Memset(benchmark::State& state) {
  Canvas canvas;
  for (auto unused : state) canvas.Fill();
}

}  // namespace orvane::bench
