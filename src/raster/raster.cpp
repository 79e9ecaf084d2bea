#include "raster/raster.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "raster/ball.h"
#include "raster/canvas.h"
#include "raster/glyphs.h"
#include "raster/joints.h"
#include "raster/scaled_image.h"
#include "raster/segment.h"

namespace orvane {
namespace {

constexpr double kDash = 3;          // surface pixels in a dot of the dotted pen, and in its gap
constexpr double kShortestDash = 2;  // canvas pixels; a shorter one cannot be told from its gap
constexpr double kThinnest = 0.75;   // canvas pixels; a finer pen would fade away

// The canvas place of a surface place. A whole number is the centre of a pixel on both.
double CentreOn(double scale, float place) { return (place + 0.5) * scale - 0.5; }

double PenOn(double scale, int width) { return std::max(width, 1) * scale; }
double LineOn(double scale, int width) { return std::max(PenOn(scale, width), kThinnest); }

// The canvas pixel that the corner of a surface pixel falls on; false for one that is nowhere near.
bool CornerOn(double scale, float place, int& pixel) {
  const double corner = std::floor(place * scale + 0.5);
  if (!(std::abs(corner) < 1e6)) return false;
  pixel = static_cast<int>(corner);
  return true;
}

void FillPlain(const Canvas& canvas, std::uint32_t word) {
  if (canvas.Height == 0) return;
  std::fill_n(canvas.Words, canvas.Width, word);
  // The library's own copy is the fastest way to fill the rest on any processor.
  for (int y = 1; y < canvas.Height; ++y) {
    std::memcpy(canvas.Row(y), canvas.Words,
                static_cast<std::size_t>(canvas.Width) * sizeof(std::uint32_t));
  }
}

void DrawLine(const Canvas& canvas, double scale, std::span<const Stroke> strokes,
              std::size_t index) {
  const Stroke& stroke = strokes[index];
  Segment segment{.X1 = CentreOn(scale, stroke.X1),
                  .Y1 = CentreOn(scale, stroke.Y1),
                  .X2 = CentreOn(scale, stroke.X2),
                  .Y2 = CentreOn(scale, stroke.Y2),
                  .Width = LineOn(scale, stroke.Width),
                  .Ink = stroke.Ink};
  if (stroke.Style == 2 && stroke.Width <= 1) {
    return DrawDashes(canvas, segment, std::max(kDash * scale, kShortestDash));
  }
  const Joints joints = JointsOf(strokes, index);
  segment.FlatStart = joints.Start;
  segment.FlatEnd = segment.CoveredEnd = joints.End;
  DrawSegment(canvas, segment);
}

bool IsDot(const Stroke& line) { return line.X1 == line.X2 && line.Y1 == line.Y2; }

// What a round pen leaves when it does not move.
Ball DotOn(double scale, const Stroke& line) {
  return {.Radius = LineOn(scale, line.Width) / 2, .Width = 0, .Ink = line.Ink, .Fill = line.Ink};
}

Ball BallOn(double scale, const Stroke& stroke) {
  return {.Radius = stroke.X2 * scale,
          .Width = PenOn(scale, stroke.Width),
          .Ink = stroke.Ink,
          .Fill = stroke.Fill,
          .Filled = stroke.Style != 1};
}

}  // namespace

struct Raster::Caches {
  BallSprites Balls;
  Labels Texts;
  Backdrops Grounds;
  std::vector<const LabelInk*> LabelOf;  // by text index of the picture being painted
};

Raster::Raster() : caches_(std::make_unique<Caches>()) {}
Raster::~Raster() = default;

// NOLINTNEXTLINE(readability-non-const-parameter): the canvas is painted on
void Raster::Paint(const Picture& picture, double scale, std::uint32_t* words, int width,
                   int height, int stride) {
  if (width <= 0 || height <= 0) return;
  const Canvas canvas{words, width, height, stride};
  FillPlain(canvas, WordOf(picture.BackColor));
  if (!(scale > 0) || !std::isfinite(scale)) return;
  if (picture.Backdrop) caches_->Grounds.Draw(canvas, picture.Backdrop, scale);

  caches_->Texts.BeginPaint();
  caches_->LabelOf.assign(picture.Texts.size(), nullptr);
  const std::span<const Stroke> strokes = picture.Strokes;
  for (std::size_t index = 0; index < strokes.size(); ++index) {
    const Stroke& stroke = strokes[index];
    switch (stroke.Kind) {
      case StrokeKind::Line:
        if (IsDot(stroke)) {
          caches_->Balls.Draw(canvas, CentreOn(scale, stroke.X1), CentreOn(scale, stroke.Y1),
                              DotOn(scale, stroke));
        } else {
          DrawLine(canvas, scale, strokes, index);
        }
        break;
      case StrokeKind::Circle:
        caches_->Balls.Draw(canvas, CentreOn(scale, stroke.X1), CentreOn(scale, stroke.Y1),
                            BallOn(scale, stroke));
        break;
      case StrokeKind::Print: {
        int x = 0, y = 0;
        if (!CornerOn(scale, stroke.X1, x) || !CornerOn(scale, stroke.Y1, y)) break;
        const LabelInk*& label = caches_->LabelOf[stroke.Text];
        if (label == nullptr) label = &caches_->Texts.Of(picture.Texts[stroke.Text], scale);
        DrawLabel(canvas, x, y, *label, stroke.Ink);
        break;
      }
    }
  }
}

Bitmap Raster::Paint(const Picture& picture, double scale) {
  Bitmap bitmap;
  bitmap.Width = static_cast<int>(std::lround(picture.Width * scale));
  bitmap.Height = static_cast<int>(std::lround(picture.Height * scale));
  bitmap.Words.resize(static_cast<std::size_t>(bitmap.Width) *
                      static_cast<std::size_t>(bitmap.Height));
  Paint(picture, scale, bitmap.Words.data(), bitmap.Width, bitmap.Height, bitmap.Width);
  return bitmap;
}

}  // namespace orvane
