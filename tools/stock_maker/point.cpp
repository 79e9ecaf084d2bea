#include "stock_maker/point.h"

#include <cmath>
#include <numbers>

namespace orvane::stock_maker {

namespace {

constexpr double kRadians = std::numbers::pi / 180;

Point Unit(const Point& a) { return (1 / Length(a)) * a; }

}  // namespace

Point operator+(const Point& a, const Point& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point operator-(const Point& a, const Point& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Point operator*(double factor, const Point& a) {
  return {factor * a.x, factor * a.y, factor * a.z};
}
double Dot(const Point& a, const Point& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Point Cross(const Point& a, const Point& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double Length(const Point& a) { return std::sqrt(Dot(a, a)); }

Point Cylindrical(double r, double theta, double z) {
  return {r * std::cos(theta * kRadians), r * std::sin(theta * kRadians), z};
}

Point Turned(const Point& p, char axis, double degrees) {
  const double c = std::cos(degrees * kRadians);
  const double s = std::sin(degrees * kRadians);
  switch (axis) {
    case 'x':
      return {p.x, c * p.y - s * p.z, s * p.y + c * p.z};
    case 'y':
      return {c * p.x + s * p.z, p.y, c * p.z - s * p.x};
    default:
      return {c * p.x - s * p.y, s * p.x + c * p.y, p.z};
  }
}

double Torsion(const Point& a, const Point& b, const Point& c, const Point& d) {
  const Point along = Unit(c - b);
  const Point first = Cross(b - a, c - b);
  const Point second = Cross(c - b, d - c);
  return std::atan2(Dot(Cross(first, second), along), Dot(first, second)) / kRadians;
}

Point Attached(const Point& on, const Point& ang, const Point& tor, double length, double angle,
               double torsion) {
  const Point along = Unit(on - ang);
  const Point normal = Unit(Cross(ang - tor, along));
  const Point across = Cross(normal, along);
  const double out = length * std::sin(angle * kRadians);
  return on + -length * std::cos(angle * kRadians) * along +
         out * std::cos(torsion * kRadians) * across + out * std::sin(torsion * kRadians) * normal;
}

}  // namespace orvane::stock_maker
