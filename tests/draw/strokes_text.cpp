#include "draw/strokes_text.h"

#include <charconv>
#include <cstdio>
#include <string_view>

namespace orvane {
namespace {

std::string Number(float value) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return std::string(digits, end);
}

std::string PlaceOf(const Stroke& stroke) { return Number(stroke.X1) + " " + Number(stroke.Y1); }

std::string WidthOf(const Stroke& stroke) { return " w" + std::to_string(stroke.Width); }

std::string StrokeAsText(const Stroke& stroke, const Picture& picture) {
  switch (stroke.Kind) {
    case StrokeKind::Line:
      return "Line " + PlaceOf(stroke) + " " + Number(stroke.X2) + " " + Number(stroke.Y2) + " " +
             ColourAsText(stroke.Ink) + WidthOf(stroke) + (stroke.Style == 2 ? " dotted" : "");
    case StrokeKind::Circle:
      return "Circle " + PlaceOf(stroke) + " " + Number(stroke.X2) + " " +
             (stroke.Style == 1 ? "empty" : ColourAsText(stroke.Fill)) + " on " +
             ColourAsText(stroke.Ink) + WidthOf(stroke);
    case StrokeKind::Print:
      return "Print " + PlaceOf(stroke) + " " + ColourAsText(stroke.Ink) + " \"" +
             picture.Texts.at(stroke.Text) + "\"";
  }
  return {};
}

}  // namespace

std::string ColourAsText(Colour colour) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", Red(colour), Green(colour), Blue(colour));
  return text;
}

std::string StrokesAsText(const Picture& picture) {
  std::string text;
  for (const Stroke& stroke : picture.Strokes) text += StrokeAsText(stroke, picture) + "\n";
  return text;
}

}  // namespace orvane
