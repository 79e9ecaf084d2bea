#include "map_maker/map_maker.h"

#include <array>
#include <cmath>
#include <span>

namespace orvane::maps {
namespace {

struct Spot {
  double X, Y;
};

struct Ink {
  double Red, Green, Blue;
};
constexpr Ink kForbidden{255, 206, 206};
constexpr Ink kOuterLimits{254, 143, 149};
constexpr Ink kNormal{255, 117, 117};
constexpr Ink kMark{253, 41, 79};
constexpr Ink kHelixMark{253, 71, 95};  // lies over a zone and is larger, so a little lighter

using Outline = std::vector<Spot>;  // a closed polygon

// A curve is its start, and then three points for each piece: two controls and the end.
Outline Curve(std::span<const Spot> points) {
  constexpr int kPieces = 24;
  Outline outline{points[0]};
  for (std::size_t i = 1; i + 2 < points.size(); i += 3) {
    const Spot a = points[i - 1], b = points[i], c = points[i + 1], d = points[i + 2];
    for (int k = 1; k <= kPieces; ++k) {
      const double t = static_cast<double>(k) / kPieces;
      const double s = 1 - t;
      const double wa = s * s * s, wb = 3 * s * s * t, wc = 3 * s * t * t, wd = t * t * t;
      outline.push_back(
          {wa * a.X + wb * b.X + wc * c.X + wd * d.X, wa * a.Y + wb * b.Y + wc * c.Y + wd * d.Y});
    }
  }
  return outline;
}

// The ellipse that fills a rectangle, as four curves.
Outline Ellipse(double left, double top, double right, double bottom) {
  constexpr double kRound = 0.5522847498;  // control points of a quarter circle
  const double x = (left + right) / 2, y = (top + bottom) / 2;
  const double w = (right - left) / 2, h = (bottom - top) / 2;
  const double cw = w * kRound, ch = h * kRound;
  const std::array<Spot, 13> points = {{{right, y},
                                        {right, y + ch},
                                        {x + cw, bottom},
                                        {x, bottom},
                                        {x - cw, bottom},
                                        {left, y + ch},
                                        {left, y},
                                        {left, y - ch},
                                        {x - cw, top},
                                        {x, top},
                                        {x + cw, top},
                                        {right, y - ch},
                                        {right, y}}};
  return Curve(points);
}

bool IsInside(const Outline& outline, double x, double y) {
  bool inside = false;
  for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
    const Spot a = outline[i], b = outline[j];
    if ((a.Y > y) != (b.Y > y) && x < (b.X - a.X) * (y - a.Y) / (b.Y - a.Y) + a.X) {
      inside = !inside;
    }
  }
  return inside;
}

// The share of a pixel that an outline covers, from 8 by 8 samples.
double Coverage(const Outline& outline, int column, int row) {
  constexpr int kSamples = 8;
  int hits = 0;
  for (int j = 0; j < kSamples; ++j) {
    for (int i = 0; i < kSamples; ++i) {
      if (IsInside(outline, column + (i + 0.5) / kSamples, row + (j + 0.5) / kSamples)) ++hits;
    }
  }
  return static_cast<double>(hits) / (kSamples * kSamples);
}

struct Zone {
  Outline Edge;
  Ink Colour;
};

// Outlines in pixels from the top left of each picture.
std::vector<Zone> ZonesOf(int index) {
  switch (index) {
    case 0: {
      constexpr Spot kOuter[] = {
          {9, 0},    {4, 14},   {4, 40},     {8, 62},     {14, 98}, {38, 118}, {62, 118}, {90, 118},
          {119, 84}, {123, 50}, {125.6, 28}, {125.6, 10}, {121, 0}, {121, 0},  {9, 0},    {9, 0}};
      constexpr Spot kInner[] = {{36, 0},  {34.5, 18}, {37, 38},  {44, 50},  {52, 63.5}, {68, 70},
                                 {82, 70}, {104, 70},  {116, 38}, {116, 14}, {116, 8},   {115.5, 4},
                                 {115, 0}, {115, 0},   {36, 0},   {36, 0}};
      return {{Curve(kOuter), kOuterLimits},
              {Curve(kInner), kNormal},
              {Ellipse(42, 34, 54, 44), kMark},     // antiparallel sheet
              {Ellipse(60, 49, 72, 59), kMark},     // parallel sheet
              {Ellipse(110, 20, 115, 24), kMark}};  // collagen helix
    }
    case 1: {
      constexpr Spot kOuter[] = {{0, 36},   {6, 28},   {14, 24},  {26, 24},  {45, 24},
                                 {65, 24},  {84, 24},  {104, 24}, {115, 42}, {115, 62},
                                 {115, 92}, {90, 104}, {66, 111}, {46, 117}, {31, 127},
                                 {21, 140}, {21, 140}, {0, 140},  {0, 140}};
      constexpr Spot kInner[] = {{22, 37},   {40, 34.4}, {70, 34.4}, {80, 35.4}, {90, 37},
                                 {93, 41},   {93, 44},   {93, 50},   {86, 52},   {78, 52.6},
                                 {60, 53.1}, {40, 53.1}, {26, 52},   {17, 50.5}, {14, 46},
                                 {14, 43.5}, {14, 40},   {17, 38},   {22, 37}};
      constexpr Spot kHelix[] = {{94, 38},  {96, 38},  {96, 38},  {98, 38},  {104, 38},
                                 {106, 41}, {106, 46}, {106, 51}, {104, 54}, {98, 54},
                                 {96, 54},  {96, 54},  {94, 54},  {88, 54},  {86, 51},
                                 {86, 46},  {86, 41},  {88, 38},  {94, 38}};
      return {{Curve(kOuter), kOuterLimits},
              {Curve(kInner), kNormal},
              {Ellipse(0, 134, 7, 140), kMark},    // extended chain
              {Ellipse(107, 24, 115, 30), kMark},  // 3-10 helix
              {Curve(kHelix), kHelixMark}};        // right-handed alpha helix
    }
    default:
      return {{Ellipse(32, 46, 52, 119), kOuterLimits},
              {Ellipse(33, 73, 46, 84), kMark}};  // left-handed alpha helix
  }
}

double Mix(double under, double over, double share) { return under + (over - under) * share; }

}  // namespace

std::vector<std::uint8_t> DrawMap(int index) {
  const std::vector<Zone> zones = ZonesOf(index);
  std::vector<std::uint8_t> bytes;
  bytes.reserve(3UL * kMapSide * kMapSide);
  for (int row = 0; row < kMapSide; ++row) {
    for (int column = 0; column < kMapSide; ++column) {
      Ink ink = kForbidden;
      for (const Zone& zone : zones) {
        const double share = Coverage(zone.Edge, column, row);
        ink = {Mix(ink.Red, zone.Colour.Red, share), Mix(ink.Green, zone.Colour.Green, share),
               Mix(ink.Blue, zone.Colour.Blue, share)};
      }
      for (const double channel : {ink.Red, ink.Green, ink.Blue}) {
        bytes.push_back(static_cast<std::uint8_t>(std::lround(channel)));
      }
    }
  }
  return bytes;
}

std::string MapFile(int index) {
  const std::vector<std::uint8_t> bytes = DrawMap(index);
  const std::string side = std::to_string(kMapSide);
  return "P6\n" + side + " " + side + "\n255\n" + std::string(bytes.begin(), bytes.end());
}

}  // namespace orvane::maps
