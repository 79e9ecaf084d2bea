#include "raster/track.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr float kFar = 1e9f;  // farther than any pixel
// A slope below this does not say where the stroke crosses a row.
constexpr float kLevel = 1e-4f;
// From so many pixels of the core in a row on, it is faster to fill them separately.
constexpr int kWorthFilling = 12;
constexpr int kHalfWorthFilling = kWorthFilling / 2;

template <int kLanes>
struct VectorsOf {
  using Floats [[gnu::vector_size(4 * kLanes)]] = float;
  using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;
  using Words [[gnu::vector_size(4 * kLanes)]] = std::uint32_t;
  using Halves [[gnu::vector_size(4 * kLanes)]] = std::uint16_t;
};

#define ORVANE_INLINE [[gnu::always_inline]] inline

template <class Vector>
ORVANE_INLINE Vector Larger(Vector a, Vector b) {
  return a > b ? a : b;
}
template <class Vector>
ORVANE_INLINE Vector Smaller(Vector a, Vector b) {
  return a < b ? a : b;
}
template <class Floats>
ORVANE_INLINE Floats Root(Floats squares) {
  float lanes[sizeof squares / sizeof(float)];
  std::memcpy(lanes, &squares, sizeof squares);
  for (float& lane : lanes) lane = std::sqrt(lane);
  std::memcpy(&squares, lanes, sizeof squares);
  return squares;
}

// A wave that is above a half on dashes and below it on gaps, in the unit of `on` and `dash`.
template <int kLanes, class Floats>
ORVANE_INLINE Floats DashAt(Floats on, float phase, float dash, float unit) {
  using Ints = typename VectorsOf<kLanes>::Ints;
  const Floats turns = (Larger(on, Floats{} - unit) + (phase + 2 * dash)) * (0.5f / dash);
  const Floats turn = turns - __builtin_convertvector(__builtin_convertvector(turns, Ints), Floats);
  const Floats aside = Larger(turn - 0.25f, 0.25f - turn);
  // Past the middle of the gap the next dash comes nearer.
  return 0.5f * unit + 2 * dash * (0.25f - Smaller(aside, 1 - aside));
}

// The part of a row between two parallel lines: its middle, which moves from row to row, and half
// its width.
struct Slab {
  float Middle = 0, Step = 0, Half = kFar;

  // low <= at + slope * x + step * y <= high. Level lines set no bounds.
  ORVANE_INLINE Slab(float at, float slope, float step, float low, float high) {
    if (std::abs(slope) < kLevel) return;
    const float inverse = 1 / slope;
    Middle = ((low + high) * 0.5f - at) * inverse;
    Step = -step * inverse;
    Half = (high - low) * 0.5f * std::abs(inverse);
  }
  float MiddleAt(float y) const { return Middle + Step * y; }
};

struct Pixels {
  int First = 0, Last = 0;  // one past the last
};

// The pixels of a row within both; with kIsInside they are known to lie between 0 and `right`.
template <bool kIsInside>
ORVANE_INLINE Pixels Within(const Slab& a, const Slab& b, float y, float right) {
  const float middle_a = a.MiddleAt(y), middle_b = b.MiddleAt(y);
  float low = Larger(middle_a - a.Half, middle_b - b.Half);
  float high = Smaller(middle_a + a.Half, middle_b + b.Half);
  if constexpr (!kIsInside) {
    low = Smaller(Larger(low, 0.0f), right);
    high = Larger(Smaller(high, right), -1.0f);
  }
  // The cast rounds down, so this is the first whole number that is not before `low`, or almost.
  return {static_cast<int>(low + 0.99f), 1 + static_cast<int>(high)};
}

// A condition that a whole row meets or does not: that of a slab with level lines, which sets no
// bounds along the row. For any other slab it is always met.
struct RowLimit {
  float AtLeft = 0, AtRight = 0, Step = 0, Low = -kFar, High = kFar;

  ORVANE_INLINE RowLimit(float at, float slope, float step, float low, float high, float right) {
    if (std::abs(slope) >= kLevel) return;
    *this = {at, at + slope * right, step, low, high};
  }
  bool IsMet(float y) const {
    const float left = AtLeft + Step * y, right = AtRight + Step * y;
    return Low <= left && left <= High && Low <= right && right <= High;
  }

 private:
  RowLimit(float at_left, float at_right, float step, float low, float high)
      : AtLeft(at_left), AtRight(at_right), Step(step), Low(low), High(high) {}
};

// With kIsInside everything that is touched lies on the canvas. Otherwise the pixels past a row's
// end are borrowed ones, so that nothing is written outside it.
template <int kLanes, unsigned kEnds, bool kIsInside>
ORVANE_INLINE void Draw(const Canvas& canvas, const Track& track, int top, int bottom) {
  using Floats = typename VectorsOf<kLanes>::Floats;
  using Ints = typename VectorsOf<kLanes>::Ints;
  using Words = typename VectorsOf<kLanes>::Words;
  using Halves = typename VectorsOf<kLanes>::Halves;
  constexpr bool kIsFlatStart = (kEnds & kFlatStart) != 0, kIsFlatEnd = (kEnds & kFlatEnd) != 0;

  const auto start_x = static_cast<float>(track.X), start_y = static_cast<float>(track.Y);
  const auto along_x = static_cast<float>(track.AlongX);
  const auto along_y = static_cast<float>(track.AlongY);
  const auto length = static_cast<float>(track.Length);
  const auto radius = static_cast<float>(std::max(track.Width, 1.0) / 2);
  const auto strength = static_cast<float>(256 * std::min(track.Width, 1.0));
  const auto dash = static_cast<float>(track.Dash), phase = static_cast<float>(track.Skipped);
  const float reach = radius + 0.5f;  // where cover ends beside the track

  // How far pixel 0 of row 0 lies beside the track, and how far along it.
  const float beside = start_x * along_y - start_y * along_x;
  const float along = -start_x * along_x - start_y * along_y;
  const float before = kIsFlatStart ? 0.5f : reach;
  const float behind = length + (kIsFlatEnd ? 0.5f : reach);
  const Slab sides(beside, -along_y, along_x, -reach, reach);
  const Slab ends(along, along_x, along_y, -before, behind);
  const auto right = static_cast<float>(canvas.Width - 1);

  // Within these nothing of what is below shows. They are a little smaller, since the divisions
  // round.
  const float core = radius - 0.52f;
  const bool has_core = kEnds != kDashed && track.Width >= 1 && core > 0 &&
                        sides.Half * core > kHalfWorthFilling * reach &&
                        ends.Half > kHalfWorthFilling;
  const Slab core_sides(beside, -along_y, along_x, has_core ? -core : 0, has_core ? core : 0);
  const Slab core_ends(along, along_x, along_y, 0.52f, length - 0.52f);
  const RowLimit core_rows(beside, -along_y, along_x, -core, core, right);
  const RowLimit end_rows(along, along_x, along_y, 0.52f, length - 0.52f, right);

  Floats lanes{};
  for (int lane = 0; lane < kLanes; ++lane) lanes[lane] = static_cast<float>(lane);
  const Words plain = Words{} + WordOf(track.Ink);
  const Halves blue_red = (Halves)(plain & 0x00FF00FFu);
  const Halves green_top = (Halves)((plain >> 8) & 0x00FF00FFu);
  const Ints most = Ints{} + static_cast<std::int32_t>(strength + 0.5f);

  // From here on distances are in the unit of cover, `strength` to a pixel.
  const float unit_x = along_x * strength, unit_y = along_y * strength;
  const float unit_length = length * strength;
  const float unit_reach = reach * strength + 0.5f;  // a half, since the cast rounds down
  const float unit_end = 0.5f * strength + 0.5f;

  // Mixes the pixels from `first` up to `last`. More may be touched, each by its own cover.
  const auto mix = [&](std::uint32_t * row, float y, int first, int last)
      __attribute__((always_inline)) {
    const float down = y - start_y;
    const float row_beside = down * unit_x + start_x * unit_y;
    const float row_along = down * unit_y - start_x * unit_x;
    for (int x = first; x < last; x += kLanes) {
      const Floats at = lanes + static_cast<float>(x);
      const Floats off = row_beside - at * unit_y;
      const Floats on = row_along + at * unit_x;
      Floats inside{};  // how far within the outline; a half is on it
      if constexpr (kIsFlatStart && kIsFlatEnd) {
        inside = unit_reach - Larger(off, -off);
      } else {
        // Beyond a round end the distance counts from the end point.
        Floats over{};
        if constexpr (!kIsFlatStart) over = Larger(over, -on);
        if constexpr (!kIsFlatEnd) over = Larger(over, on - unit_length);
        inside = unit_reach - Root(off * off + over * over);
      }
      if constexpr (kIsFlatStart) inside = Smaller(inside, on + unit_end);
      if constexpr (kIsFlatEnd) inside = Smaller(inside, unit_length + unit_end - on);
      if constexpr (kEnds == kDashed) {
        inside =
            Smaller(inside, DashAt<kLanes>(on, phase * strength, dash * strength, strength) + 0.5f);
      }
      Ints cover = __builtin_convertvector(inside, Ints);
      cover = Smaller(Larger(cover, Ints{}), most);

      const Words part = (Words)cover;
      const Halves parts = (Halves)(part | part << 16);
      const Halves rest = 256 - parts;
      std::uint32_t borrowed[kLanes] = {};
      std::uint32_t* words = row + x;
      if constexpr (!kIsInside) {
        if (x + kLanes > canvas.Width) {
          words = borrowed;
          std::memcpy(borrowed, row + x, static_cast<std::size_t>(canvas.Width - x) * sizeof *row);
        }
      }
      Words under;
      std::memcpy(&under, words, sizeof under);
      const Halves below = (Halves)(under & 0x00FF00FFu);
      const Halves above = (Halves)((under >> 8) & 0x00FF00FFu);
      const Words mixed = (Words)((below * rest + blue_red * parts + 128) >> 8) |
                          (Words)((above * rest + green_top * parts + 128) & 0xFF00);
      std::memcpy(words, &mixed, sizeof mixed);
      if constexpr (!kIsInside) {
        if (words == borrowed) {
          std::memcpy(row + x, borrowed, static_cast<std::size_t>(canvas.Width - x) * sizeof *row);
        }
      }
    }
  };

  for (int y = top; y <= bottom; ++y) {
    std::uint32_t* row = canvas.Row(y);
    const auto height = static_cast<float>(y);
    const Pixels all = Within<kIsInside>(sides, ends, height, right);
    if (has_core && core_rows.IsMet(height) && end_rows.IsMet(height)) {
      const Pixels solid = Within<kIsInside>(core_sides, core_ends, height, right);
      // The first pixel may lie a little before the core.
      int x = solid.First + 1;
      if (solid.Last - x >= kWorthFilling) {
        mix(row, height, all.First, x);
        for (; x + kLanes <= solid.Last; x += kLanes) std::memcpy(row + x, &plain, sizeof plain);
        mix(row, height, x, all.Last);
        continue;
      }
    }
    mix(row, height, all.First, all.Last);
  }
}

template <int kLanes, unsigned kEnds>
ORVANE_INLINE void Draw(const Canvas& canvas, const Track& track) {
  const double radius = std::max(track.Width, 1.0) / 2;
  const double end_x = track.X + track.Length * track.AlongX;
  const double end_y = track.Y + track.Length * track.AlongY;
  // How far a track reaches above and below its end points; a flat end only by its corners.
  const double round = radius + 0.5;
  const double flat = round * std::abs(track.AlongX) + 0.5 * std::abs(track.AlongY);
  const double start_reach = (kEnds & kFlatStart) != 0 ? flat : round;
  const double end_reach = (kEnds & kFlatEnd) != 0 ? flat : round;
  const double low = std::min(track.Y - start_reach, end_y - end_reach);
  const double high = std::max(track.Y + start_reach, end_y + end_reach);
  const int top = std::max(0, static_cast<int>(std::ceil(low)));
  const int bottom = std::min(canvas.Height - 1, static_cast<int>(std::floor(high)));
  // The corners beyond its ends are also touched, and a few pixels to the right.
  const double corner = 1.5 * round;
  if (std::min(track.X, end_x) - corner > 0 &&
      std::max(track.X, end_x) + corner + kLanes < canvas.Width) {
    Draw<kLanes, kEnds, true>(canvas, track, top, bottom);
  } else {
    Draw<kLanes, kEnds, false>(canvas, track, top, bottom);
  }
}

template <int kLanes>
ORVANE_INLINE void DrawWith(const Canvas& canvas, const Track& track, Ends ends) {
  switch (ends) {
    case kRound:
      return Draw<kLanes, kRound>(canvas, track);
    case kFlatStart:
      return Draw<kLanes, kFlatStart>(canvas, track);
    case kFlatEnd:
      return Draw<kLanes, kFlatEnd>(canvas, track);
    case kFlat:
      return Draw<kLanes, kFlat>(canvas, track);
    case kDashed:
      return Draw<kLanes, kDashed>(canvas, track);
  }
}

}  // namespace

void DrawTrackNarrow(const Canvas& canvas, const Track& track, Ends ends) {
  DrawWith<4>(canvas, track, ends);
}

#ifdef __x86_64__
bool HasWideRegisters() { return __builtin_cpu_supports("avx2"); }

[[gnu::target("avx2")]] void DrawTrackWide(const Canvas& canvas, const Track& track, Ends ends) {
  DrawWith<8>(canvas, track, ends);
}
#else
bool HasWideRegisters() { return false; }

void DrawTrackWide(const Canvas& canvas, const Track& track, Ends ends) {
  DrawTrackNarrow(canvas, track, ends);
}
#endif

void DrawTrack(const Canvas& canvas, const Track& track, Ends ends) {
  HasWideRegisters() ? DrawTrackWide(canvas, track, ends) : DrawTrackNarrow(canvas, track, ends);
}

}  // namespace orvane
