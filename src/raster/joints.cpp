#include "raster/joints.h"

namespace orvane {
namespace {

constexpr float kStraight = 0.02f;  // sine of the largest bend that still counts as none

bool GoesOnIn(const Stroke& line, const Stroke& next) {
  if (next.Kind != StrokeKind::Line || next.X1 != line.X2 || next.Y1 != line.Y2) return false;
  if (next.Width != line.Width || next.Style != line.Style) return false;
  const float ax = line.X2 - line.X1, ay = line.Y2 - line.Y1;
  const float bx = next.X2 - next.X1, by = next.Y2 - next.Y1;
  const float ahead = ax * bx + ay * by;
  const float aside = ax * by - ay * bx;
  return ahead > 0 && aside <= kStraight * ahead && -aside <= kStraight * ahead;
}

}  // namespace

Joints JointsOf(std::span<const Stroke> strokes, std::size_t index) {
  const Stroke& line = strokes[index];
  Joints joints;
  for (std::size_t step = 1; step <= 2; ++step) {
    if (index >= step && strokes[index - step].Kind == StrokeKind::Line) {
      joints.Start = joints.Start || GoesOnIn(strokes[index - step], line);
    }
    if (index + step < strokes.size()) {
      joints.End = joints.End || GoesOnIn(line, strokes[index + step]);
    }
  }
  return joints;
}

}  // namespace orvane
