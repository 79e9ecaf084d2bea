#include "raster/segment.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "raster/track.h"

namespace orvane {
namespace {

// The part of a segment that can touch the canvas.
std::optional<Track> TrackOn(const Canvas& canvas, const Segment& segment) {
  const double dx = segment.X2 - segment.X1;
  const double dy = segment.Y2 - segment.Y1;
  const double length = std::sqrt(dx * dx + dy * dy);
  if (!std::isfinite(length) || !std::isfinite(segment.X1) || !std::isfinite(segment.Y1)) return {};
  const double along_x = length > 0 ? dx / length : 1;
  const double along_y = length > 0 ? dy / length : 0;

  const auto on_canvas = [&](double x, double y) {
    return x >= 0 && y >= 0 && x < canvas.Width && y < canvas.Height;
  };
  if (on_canvas(segment.X1, segment.Y1) && on_canvas(segment.X2, segment.Y2)) {
    return Track{.X = segment.X1,
                 .Y = segment.Y1,
                 .AlongX = along_x,
                 .AlongY = along_y,
                 .Length = length,
                 .Width = segment.Width,
                 .Ink = segment.Ink};
  }

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

  // For ends so far off that a double cannot tell one pixel from the next, the sum is noise.
  const double x = segment.X1 + from * along_x;
  const double y = segment.Y1 + from * along_y;
  const double slack = margin + 1;
  if (!(x >= -slack && x <= canvas.Width + slack)) return {};
  if (!(y >= -slack && y <= canvas.Height + slack)) return {};
  return Track{.X = x,
               .Y = y,
               .AlongX = along_x,
               .AlongY = along_y,
               .Length = to - from,
               .Skipped = from,
               .Width = segment.Width,
               .Ink = segment.Ink};
}

}  // namespace

void DrawSegment(const Canvas& canvas, const Segment& segment) {
  std::optional<Track> track = TrackOn(canvas, segment);
  if (!track) return;
  if (segment.CoveredEnd) track->Length += 0.5;
  DrawTrack(canvas, *track,
            static_cast<Ends>((segment.FlatStart ? kFlatStart : kRound) |
                              (segment.FlatEnd ? kFlatEnd : kRound)));
}

void DrawDashes(const Canvas& canvas, const Segment& segment, double dash) {
  std::optional<Track> track = TrackOn(canvas, segment);
  if (!track) return;
  track->Skipped = std::fmod(track->Skipped, 2 * dash);
  track->Dash = dash;
  DrawTrack(canvas, *track, kDashed);
}

}  // namespace orvane
