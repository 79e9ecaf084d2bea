// A point in space, in Angstrom, and the few movements from which a structure is built.
#pragma once

#include <string_view>

namespace orvane::stock_maker {

struct Point {
  double x = 0;
  double y = 0;
  double z = 0;
};

Point operator+(const Point& a, const Point& b);
Point operator-(const Point& a, const Point& b);
Point operator*(double factor, const Point& a);
double Dot(const Point& a, const Point& b);
Point Cross(const Point& a, const Point& b);
double Length(const Point& a);

// From a radius, an angle about z in degrees and a height.
Point Cylindrical(double r, double theta, double z);

// Turned about one of the axes 'x', 'y', 'z' through 0, in degrees, counterclockwise for an eye on
// the positive axis.
Point Turned(const Point& p, char axis, double degrees);

// The torsion a-b-c-d in degrees, -180 to 180: positive if d is clockwise of a for an eye that
// looks from b to c.
double Torsion(const Point& a, const Point& b, const Point& c, const Point& d);

// The point at `length` from `on`, with `angle` to `ang` and `torsion` over `tor`.
Point Attached(const Point& on, const Point& ang, const Point& tor, double length, double angle,
               double torsion);

}  // namespace orvane::stock_maker
