#include "stock_check/geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvane {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

using Matrix = std::array<std::array<double, 3>, 3>;

// One turn of Jacobi's method: makes the elements (p, q) and (q, p) of a symmetric matrix 0, and
// turns the columns of `axes` with it.
void TurnAway(Matrix& m, Matrix& axes, std::size_t p, std::size_t q) {
  if (m[p][q] == 0) return;
  const double angle = 0.5 * std::atan2(2 * m[p][q], m[p][p] - m[q][q]);
  const double c = std::cos(angle), s = std::sin(angle);
  for (std::size_t i = 0; i < 3; ++i) {
    const double ip = m[i][p], iq = m[i][q];
    m[i][p] = c * ip + s * iq;
    m[i][q] = c * iq - s * ip;
  }
  for (std::size_t i = 0; i < 3; ++i) {
    const double pi = m[p][i], qi = m[q][i];
    m[p][i] = c * pi + s * qi;
    m[q][i] = c * qi - s * pi;
    const double ip = axes[i][p], iq = axes[i][q];
    axes[i][p] = c * ip + s * iq;
    axes[i][q] = c * iq - s * ip;
  }
}

}  // namespace

Point Plus(const Point& a, const Point& b) { return {a.X + b.X, a.Y + b.Y, a.Z + b.Z}; }

Point Minus(const Point& a, const Point& b) { return {a.X - b.X, a.Y - b.Y, a.Z - b.Z}; }

Point Times(double factor, const Point& a) { return {factor * a.X, factor * a.Y, factor * a.Z}; }

double Dot(const Point& a, const Point& b) { return a.X * b.X + a.Y * b.Y + a.Z * b.Z; }

Point Cross(const Point& a, const Point& b) {
  return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}

double LengthOf(const Point& a) { return std::sqrt(Dot(a, a)); }

Point Unit(const Point& a) { return Times(1 / LengthOf(a), a); }

double Apart(const Point& a, const Point& b) { return LengthOf(Minus(a, b)); }

double DegreesBetween(const Point& a, const Point& b) {
  return std::atan2(LengthOf(Cross(a, b)), Dot(a, b)) / kDegree;
}

double AngleAt(const Point& a, const Point& corner, const Point& b) {
  return DegreesBetween(Minus(a, corner), Minus(b, corner));
}

double TorsionOf(const Point& a, const Point& b, const Point& c, const Point& d) {
  const Point axis = Minus(c, b);
  const Point first = Cross(Minus(b, a), axis);
  const Point second = Cross(axis, Minus(d, c));
  return std::atan2(Dot(Cross(first, second), Unit(axis)), Dot(first, second)) / kDegree;
}

double HandOf(const Point& centre, const Point& a, const Point& b, const Point& c) {
  return Dot(Cross(Minus(a, centre), Minus(b, centre)), Minus(c, centre));
}

Plane PlaneThrough(std::span<const Point> points) {
  Plane plane;
  for (const Point& point : points) {
    plane.Middle = Plus(plane.Middle, Times(1.0 / static_cast<double>(points.size()), point));
  }
  Matrix spread{}, axes{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  for (const Point& point : points) {
    const Point off = Minus(point, plane.Middle);
    const std::array<double, 3> parts{off.X, off.Y, off.Z};
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) spread[i][j] += parts[i] * parts[j];
    }
  }
  for (int round = 0; round < 12; ++round) {  // converges quadratically: a few rounds are enough
    TurnAway(spread, axes, 0, 1);
    TurnAway(spread, axes, 0, 2);
    TurnAway(spread, axes, 1, 2);
  }
  std::size_t least = 0;
  for (const std::size_t i : {1, 2}) {
    if (spread[i][i] < spread[least][least]) least = i;
  }
  plane.Normal = Unit({axes[0][least], axes[1][least], axes[2][least]});
  return plane;
}

double FromPlane(const Plane& plane, const Point& point) {
  return Dot(plane.Normal, Minus(point, plane.Middle));
}

double FarthestFromPlane(std::span<const Point> points) {
  const Plane plane = PlaneThrough(points);
  double farthest = 0;
  for (const Point& point : points) {
    farthest = std::max(farthest, std::abs(FromPlane(plane, point)));
  }
  return farthest;
}

double BetweenPlanes(const Plane& a, const Plane& b) {
  const double angle = DegreesBetween(a.Normal, b.Normal);
  return std::min(angle, 180 - angle);
}

Screw ScrewOf(const std::array<Point, 4>& points) {
  // The bisectors at the two inner points stand at right angles to the axis, and the turn is the
  // angle between them.
  const auto bisector = [&](std::size_t i) {
    return Minus(Minus(points[i - 1], points[i]), Minus(points[i], points[i + 1]));
  };
  const Point axis = Unit(Cross(bisector(1), bisector(2)));
  const double along = Dot(Minus(points[2], points[1]), axis);
  return {std::copysign(DegreesBetween(bisector(1), bisector(2)), along), std::abs(along)};
}

Pucker PuckerOf(const std::array<Point, 5>& ring) {
  // Torsion k is about the k-th bond of the ring, counted from the one between oxygen and C1.
  const auto torsion = [&](std::size_t k) {
    return TorsionOf(ring[(k + 4) % 5], ring[k], ring[(k + 1) % 5], ring[(k + 2) % 5]);
  };
  const double t0 = torsion(0), t1 = torsion(1), t2 = torsion(2), t3 = torsion(3), t4 = torsion(4);
  double phase =
      std::atan2(t4 + t1 - t3 - t0, 2 * t2 * (std::sin(36 * kDegree) + std::sin(72 * kDegree))) /
      kDegree;
  if (phase < 0) phase += 360;
  return {phase, t2 / std::cos(phase * kDegree)};
}

}  // namespace orvane
