// The heaviest repaint by this program's raster and by two designs with the toolkit's painter.
//
// The painter leaves the upper halves of wide registers in use, which slows down narrow code that
// runs after it. So the raster is timed first.
#include <map>

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPen>

#include "bench_desk.h"
#include "heaviest_scene.h"
#include "raster/raster.h"
#include "ratios.h"

namespace orvane::bench {
namespace {

constexpr int kSide = 360;

QColor ColourOf(Colour colour) { return QColor(Red(colour), Green(colour), Blue(colour)); }

QPen PenOf(const Stroke& stroke) {
  QPen pen(ColourOf(stroke.Ink), std::max<int>(stroke.Width, 1));
  pen.setCapStyle(Qt::RoundCap);
  if (stroke.Kind == StrokeKind::Line && stroke.Style == 2) {
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({3, 3});
  }
  return pen;
}

QFont SurfaceFont() {
  QFont font("Liberation Sans");
  font.setPixelSize(11);
  return font;
}

struct Pens {
  const QPen& Of(const Stroke& stroke) {
    const auto key = std::make_tuple(stroke.Kind, stroke.Ink, stroke.Width, stroke.Style);
    const auto [found, is_new] = pens_.try_emplace(key);
    if (is_new) found->second = PenOf(stroke);
    return found->second;
  }

 private:
  std::map<std::tuple<StrokeKind, Colour, int, int>, QPen> pens_;
};

void Draw(QPainter& painter, const Stroke& stroke, const QPen& pen, const QString& text) {
  painter.setPen(pen);
  switch (stroke.Kind) {
    case StrokeKind::Line:
      painter.drawLine(QPointF(stroke.X1, stroke.Y1), QPointF(stroke.X2, stroke.Y2));
      break;
    case StrokeKind::Circle:
      painter.setBrush(ColourOf(stroke.Fill));
      painter.drawEllipse(QPointF(stroke.X1, stroke.Y1), stroke.X2, stroke.X2);
      break;
    case StrokeKind::Print:
      painter.drawText(QPointF(stroke.X1, stroke.Y1 + 10), text);
      break;
  }
}

std::vector<QString> TextsOf(const Picture& picture) {
  std::vector<QString> texts;
  for (const std::string& text : picture.Texts) texts.push_back(QString::fromStdString(text));
  return texts;
}

void Ours(benchmark::State& state) {
  const Picture picture = HeaviestScene();
  Raster raster;
  QImage image(kSide, kSide, QImage::Format_RGB32);
  for (auto unused : state) {
    raster.Paint(picture, 1, reinterpret_cast<std::uint32_t*>(image.bits()), kSide, kSide,
                 static_cast<int>(image.bytesPerLine() / 4));
  }
}
BENCHMARK(Ours);

void OnePainterWithCachedPens(benchmark::State& state) {
  const Picture picture = HeaviestScene();
  const std::vector<QString> texts = TextsOf(picture);
  QImage image(kSide, kSide, QImage::Format_RGB32);
  Pens pens;
  for (auto unused : state) {
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(SurfaceFont());
    for (const Stroke& stroke : picture.Strokes) {
      const bool is_text = stroke.Kind == StrokeKind::Print;
      Draw(painter, stroke, pens.Of(stroke), is_text ? texts[stroke.Text] : QString());
    }
  }
}
BENCHMARK(OnePainterWithCachedPens);

void APainterForEachStroke(benchmark::State& state) {
  const Picture picture = HeaviestScene();
  const std::vector<QString> texts = TextsOf(picture);
  QImage image(kSide, kSide, QImage::Format_RGB32);
  for (auto unused : state) {
    image.fill(Qt::black);
    for (const Stroke& stroke : picture.Strokes) {
      QPainter painter(&image);
      painter.setRenderHint(QPainter::Antialiasing);
      const bool is_text = stroke.Kind == StrokeKind::Print;
      if (is_text) painter.setFont(SurfaceFont());
      Draw(painter, stroke, PenOf(stroke), is_text ? texts[stroke.Text] : QString());
    }
  }
}
BENCHMARK(APainterForEachStroke);

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (!orvane::bench::CanMakeHeaviest()) return 1;
  orvane::bench::Ratios ratios;
  orvane::bench::RunAll(argc, argv, ratios);
  ratios.Print("one painter with cached pens / ours", "OnePainterWithCachedPens", "Ours",
               {.AtLeast = 15});
  ratios.Print("a painter for each stroke / ours", "APainterForEachStroke", "Ours");
  return 0;
}
