#include "replay/surface_lines.h"

#include <initializer_list>

#include "replay/json_line.h"

namespace orvane {
namespace {

void AppendNumbers(std::string& line, std::initializer_list<double> numbers) {
  for (const double number : numbers) {
    line += ' ';
    AppendNumber(line, number, kSingleDigits);
  }
}

}  // namespace

void SurfaceLines::PictureSet(int background) {
  output_.Line("surface Picture " + (background < 0 ? "none" : std::to_string(background)));
}

void SurfaceLines::BackColorSet(Colour colour) {
  output_.Line("surface BackColor " + std::to_string(colour));
}

void SurfaceLines::Drawn(const Stroke& stroke, std::string_view text) {
  std::string line;
  switch (stroke.Kind) {
    case StrokeKind::Line:
      line = "surface Line";
      AppendNumbers(line, {stroke.X1, stroke.Y1, stroke.X2, stroke.Y2});
      line += ' ' + std::to_string(stroke.Ink) + ' ' + std::to_string(stroke.Width) + ' ' +
              std::to_string(stroke.Style);
      break;
    case StrokeKind::Circle:
      line = "surface Circle";
      AppendNumbers(line, {stroke.X1, stroke.Y1, stroke.X2});
      line += ' ' + std::to_string(stroke.Fill) + ' ' + std::to_string(stroke.Style) + ' ' +
              std::to_string(stroke.Ink) + ' ' + std::to_string(stroke.Width);
      break;
    case StrokeKind::Print:
      line = "surface Print";
      AppendNumbers(line, {stroke.X1, stroke.Y1});
      line += ' ' + std::to_string(stroke.Ink) + ' ';
      AppendText(line, text);
      break;
  }
  output_.Line(line);
}

void PlotLines::Drawn(const Stroke& stroke, std::string_view) {
  if (stroke.Kind != StrokeKind::Circle) return;
  std::string line = "plot " + std::to_string(index_);
  AppendNumbers(line, {stroke.X1, stroke.Y1});
  output_.Line(line);
}

}  // namespace orvane
