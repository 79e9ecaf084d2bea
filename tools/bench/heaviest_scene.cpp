#include "heaviest_scene.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace orvane::bench {
namespace {

constexpr int kAtoms = 123;
constexpr int kBonds = 136;
constexpr int kHBonds = 68;   // with two dotted halves each; the other numbers draw dots
constexpr double kBond = 20;  // surface pixels: 1.5 Angstrom in a box of 27
constexpr double kHBond = 40;
constexpr int kSide = 360;

struct Element {
  char Letter;
  Colour Ink;
  double BallRadius;
};
constexpr Element kElements[] = {
    {'C', Rgb(0, 240, 80), 1.85},  {'N', Rgb(60, 60, 240), 1.54}, {'C', Rgb(0, 240, 80), 1.85},
    {'O', Rgb(240, 0, 0), 1.4},    {'H', kPalette15, 1.2},        {'C', Rgb(0, 240, 80), 1.85},
    {'P', Rgb(160, 32, 240), 1.9}, {'O', Rgb(240, 0, 0), 1.4},
};

struct Atom {
  double X = 0, Y = 0;
  Element Kind{};
};

// The same numbers in every run, from 0 to 1.
struct Numbers {
  std::uint32_t State = 20011;
  double Next() {
    State = State * 1664525u + 1013904223u;
    return (State >> 8) / 16777216.0;
  }
};

// A chain that wanders in space and is seen from the front, so that bonds look shorter or longer.
std::array<Atom, kAtoms + 1> Atoms() {
  Numbers numbers;
  std::array<Atom, kAtoms + 1> atoms{};
  double x = kSide / 2.0, y = kSide / 2.0;
  for (int i = 1; i <= kAtoms; ++i) {
    atoms[i] = {x, y, kElements[i % 8]};
    double next_x = 0, next_y = 0;
    do {
      const double angle = 2 * M_PI * numbers.Next();
      const double depth = 2 * numbers.Next() - 1;
      const double seen = kBond * std::sqrt(1 - depth * depth);
      next_x = x + seen * std::cos(angle);
      next_y = y + seen * std::sin(angle);
    } while (std::hypot(next_x - kSide / 2.0, next_y - kSide / 2.0) > 150);
    x = next_x;
    y = next_y;
  }
  return atoms;
}

class Painter {
 public:
  Picture Content;

  Painter() { Content.Width = Content.Height = kSide; }

  void PaintBond(int number) {
    // A chain, and a ring of six closed at every ninth atom.
    const int a = number <= kAtoms - 1 ? number + 1 : 9 * (number - kAtoms + 1) + 1;
    const int b = number <= kAtoms - 1 ? number : a - 5;
    const bool is_double = number <= kAtoms - 1 && atoms_[a].Kind.Letter == 'O' && a % 2 == 1;
    const double mx = (atoms_[a].X + atoms_[b].X) / 2, my = (atoms_[a].Y + atoms_[b].Y) / 2;
    Line(atoms_[a].X, atoms_[a].Y, mx, my, atoms_[a].Kind.Ink, 6, 0);
    if (is_double) Line(atoms_[a].X + 2, atoms_[a].Y + 2, mx + 2, my + 2, atoms_[a].Kind.Ink, 6, 0);
    Line(mx, my, atoms_[b].X, atoms_[b].Y, atoms_[b].Kind.Ink, 6, 0);
    if (is_double) Line(mx + 2, my + 2, atoms_[b].X + 2, atoms_[b].Y + 2, atoms_[b].Kind.Ink, 6, 0);
  }

  void PaintHBond(int number) {
    const Atom none{0, 0, kElements[0]};
    const Atom& a = number <= kHBonds ? atoms_[number] : none;
    const Atom& b = number <= kHBonds ? atoms_[PartnerOf(number)] : none;
    const double mx = (a.X + b.X) / 2, my = (a.Y + b.Y) / 2;
    Line(a.X, a.Y, mx, my, a.Kind.Ink, 1, 2);
    Line(mx, my, b.X, b.Y, b.Kind.Ink, 1, 2);
  }

  void PaintAtom(int number) {
    const Atom& atom = atoms_[number];
    const std::string name = {' ', ' ', atom.Kind.Letter, static_cast<char>('1' + number % 5), ' '};
    std::uint32_t text = 0;
    while (text < Content.Texts.size() && Content.Texts[text] != name) ++text;
    if (text == Content.Texts.size()) Content.Texts.push_back(name);
    const auto x = static_cast<float>(atom.X), y = static_cast<float>(atom.Y);
    Content.Strokes.push_back(
        {.Kind = StrokeKind::Print, .X1 = x, .Y1 = y, .Ink = kPalette15, .Text = text});
    Content.Strokes.push_back({.Kind = StrokeKind::Circle,
                               .X1 = x,
                               .Y1 = y,
                               .X2 = static_cast<float>(6 + atom.Kind.BallRadius),
                               .Ink = kPalette0,
                               .Fill = atom.Kind.Ink});
  }

 private:
  void Line(double x1, double y1, double x2, double y2, Colour ink, int width, int style) {
    Content.Strokes.push_back({.Kind = StrokeKind::Line,
                               .Width = static_cast<std::uint8_t>(width),
                               .Style = static_cast<std::uint8_t>(style),
                               .X1 = static_cast<float>(x1),
                               .Y1 = static_cast<float>(y1),
                               .X2 = static_cast<float>(x2),
                               .Y2 = static_cast<float>(y2),
                               .Ink = ink});
  }

  // The atom whose distance is most like that of a hydrogen bond.
  int PartnerOf(int number) const {
    int partner = 1;
    double best = 1e9;
    for (int i = 1; i <= kAtoms; ++i) {
      const double distance =
          std::hypot(atoms_[i].X - atoms_[number].X, atoms_[i].Y - atoms_[number].Y);
      if (std::abs(distance - kHBond) < best) {
        best = std::abs(distance - kHBond);
        partner = i;
      }
    }
    return partner;
  }

  std::array<Atom, kAtoms + 1> atoms_ = Atoms();
};

}  // namespace

Picture HeaviestScene() {
  Painter painter;
  for (int number = 1; number <= kBonds; ++number) {
    painter.PaintBond(number);
    painter.PaintHBond(number);
    if (number <= kAtoms) painter.PaintAtom(number);
  }
  return painter.Content;
}

}  // namespace orvane::bench
