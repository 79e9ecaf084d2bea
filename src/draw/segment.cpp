#include "draw/segment.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane {
namespace {

constexpr float kFar = 1e9f;  // farther than any pixel
// Below this part of a pixel a row's slope says nothing about where the stroke crosses it.
constexpr float kLevel = 1e-4f;

// The part of a segment that can touch the canvas: a start, a direction of length 1, how far it
// runs, and how much of the segment lies before it.
struct Track {
  double X = 0, Y = 0;
  double AlongX = 1, AlongY = 0;
  double Length = 0;
  double Skipped = 0;
};

std::optional<Track> TrackOn(const Canvas& canvas, const Segment& segment) {
  const double dx = segment.X2 - segment.X1;
  const double dy = segment.Y2 - segment.Y1;
  const double length = std::sqrt(dx * dx + dy * dy);
  if (!std::isfinite(length) || !std::isfinite(segment.X1) || !std::isfinite(segment.Y1)) return {};
  const double along_x = length > 0 ? dx / length : 1;
  const double along_y = length > 0 ? dy / length : 0;

  const double margin = segment.Width + 2;
  double from = 0, to = length;
  const auto keep = [&](double start, double along, double size) {
    const double low = -margin - start;
    const double high = size + margin - start;
    if (along == 0) return low <= 0 && 0 <= high;
    from = std::max(from, (along > 0 ? low : high) / along);
    to = std::min(to, (along > 0 ? high : low) / along);
    return from <= to;
  };
  if (!keep(segment.X1, along_x, canvas.Width)) return {};
  if (!keep(segment.Y1, along_y, canvas.Height)) return {};

  // Of ends that lie farther off than a double tells pixels, the rest of the sum is noise.
  const double x = segment.X1 + from * along_x;
  const double y = segment.Y1 + from * along_y;
  const double slack = margin + 1;
  if (!(x >= -slack && x <= canvas.Width + slack)) return {};
  if (!(y >= -slack && y <= canvas.Height + slack)) return {};
  return Track{x, y, along_x, along_y, to - from, from};
}

// A range of pixels of a row, first and one past the last.
struct Range {
  float Low = -kFar, High = kFar;
};

// Narrows the range to where low <= at + slope * x <= high.
void Narrow(Range& range, float at, float slope, float low, float high) {
  if (std::abs(slope) < kLevel) return;
  const float first = (low - at) / slope;
  const float last = (high - at) / slope;
  range.Low = std::max(range.Low, std::min(first, last));
  range.High = std::min(range.High, std::max(first, last));
}

Floats4 Limited(Floats4 value) {
  const Floats4 zero = {};
  const Floats4 one = zero + 1;
  value = value > zero ? value : zero;
  return value < one ? value : one;
}

Floats4 Larger(Floats4 a, Floats4 b) { return a > b ? a : b; }

Floats4 Root(Floats4 square) {
  return Floats4{std::sqrt(square[0]), std::sqrt(square[1]), std::sqrt(square[2]),
                 std::sqrt(square[3])};
}

// Draws the track with the pen of the segment.
void DrawTrack(const Canvas& canvas, const Track& track, const Segment& segment) {
  // A pen finer than a pixel draws a line of one pixel, fainter.
  const auto radius = static_cast<float>(std::max(segment.Width, 1.0) / 2);
  const auto strength = static_cast<float>(256 * std::min(segment.Width, 1.0));
  const auto start_x = static_cast<float>(track.X);
  const auto start_y = static_cast<float>(track.Y);
  const auto along_x = static_cast<float>(track.AlongX);
  const auto along_y = static_cast<float>(track.AlongY);
  const auto length = static_cast<float>(track.Length);
  const float reach = radius + 0.5f;
  const float end_y = start_y + length * along_y;
  const int top = std::max(0, static_cast<int>(std::ceil(std::min(start_y, end_y) - reach)));
  const int bottom =
      std::min(canvas.Height - 1, static_cast<int>(std::floor(std::max(start_y, end_y) + reach)));
  // Beyond a round end the distance counts from the end point, beyond a flat one only along.
  const float round_start = segment.FlatStart ? kFar : 0;
  const float round_end = segment.FlatEnd ? kFar : length;
  const float flat_start = segment.FlatStart ? 0.5f : kFar;
  const float flat_end = segment.FlatEnd ? length + 0.5f : kFar;
  const float before = segment.FlatStart ? 0.5f : reach;
  const float behind = length + (segment.FlatEnd ? 0.5f : reach);
  const Channels ink = Split(Words4{} + WordOf(segment.Ink));
  const Floats4 steps = {0, 1, 2, 3};
  const auto right = static_cast<float>(canvas.Width - 1);

  for (int y = top; y <= bottom; ++y) {
    // At the row's first pixel: how far beside the stroke, and how far along.
    const float down = static_cast<float>(y) - start_y;
    const float beside = down * along_x + start_x * along_y;
    const float along = down * along_y - start_x * along_x;
    Range range;
    Narrow(range, beside, -along_y, -reach, reach);
    Narrow(range, along, along_x, -before, behind);
    const auto first = static_cast<int>(std::clamp(range.Low, 0.0f, right + 1));
    const auto last = 1 + static_cast<int>(std::clamp(range.High, -1.0f, right));
    ForFours(canvas, y, first, last, [&](std::uint32_t* words, int step) {
      const Floats4 x = steps + static_cast<float>(first + step);
      const Floats4 off = beside - x * along_y;
      const Floats4 on = along + x * along_x;
      const Floats4 over = Larger(Larger(-on - round_start, on - round_end), Floats4{});
      const Floats4 cover = Limited(reach - Root(off * off + over * over)) *
                            Limited(on + flat_start) * Limited(flat_end - on);
      const Ints4 parts = __builtin_convertvector(cover * strength + 0.5f, Ints4);
      Store(words, Mix(Load(words), ink, (Words4)parts));
    });
  }
}

}  // namespace

void DrawSegment(const Canvas& canvas, const Segment& segment) {
  std::optional<Track> track = TrackOn(canvas, segment);
  if (!track) return;
  if (segment.CoveredEnd) track->Length += 0.5;
  DrawTrack(canvas, *track, segment);
}

void DrawDashes(const Canvas& canvas, const Segment& segment, double dash) {
  const std::optional<Track> whole = TrackOn(canvas, segment);
  if (!whole) return;
  Segment flat = segment;
  flat.FlatStart = flat.FlatEnd = true;
  const double period = 2 * dash;
  for (double start = -std::fmod(whole->Skipped, period); start < whole->Length; start += period) {
    const double from = std::max(start, 0.0);
    const double to = std::min(start + dash, whole->Length);
    if (from >= to) continue;
    Track piece = *whole;
    piece.X += from * piece.AlongX;
    piece.Y += from * piece.AlongY;
    piece.Length = to - from;
    DrawTrack(canvas, piece, flat);
  }
}

}  // namespace orvane
