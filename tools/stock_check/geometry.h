// The geometry of a few points in space, by plain vectors: Angstrom and degrees. The eye sees a
// structure as it was read along z, with x to the right and y down, so it is right-handed.
#pragma once

#include <array>
#include <span>

#include "desk/molecule.h"

namespace orvane {

Point Plus(const Point& a, const Point& b);
Point Minus(const Point& a, const Point& b);
Point Times(double factor, const Point& a);
double Dot(const Point& a, const Point& b);
Point Cross(const Point& a, const Point& b);
Point Unit(const Point& a);
double LengthOf(const Point& a);

double Apart(const Point& a, const Point& b);
double AngleAt(const Point& a, const Point& corner, const Point& b);
double DegreesBetween(const Point& a, const Point& b);  // of two directions, 0 to 180

// The torsion a-b-c-d with sign and size, -180 to 180: positive where d stands clockwise of a for
// an eye that looks from b to c.
double TorsionOf(const Point& a, const Point& b, const Point& c, const Point& d);

// (a - centre) x (b - centre) . (c - centre): positive for one hand, negative for the other. An eye
// in front of a, b, c that has the centre behind them reads them counterclockwise if it is
// positive.
double HandOf(const Point& centre, const Point& a, const Point& b, const Point& c);

// The plane that lies best among points: the sum of the squares of their distances is the smallest.
struct Plane {
  Point Middle;
  Point Normal;  // of length 1; its sense means nothing
};
Plane PlaneThrough(std::span<const Point> points);
double FromPlane(const Plane& plane, const Point& point);  // with a sign
double FarthestFromPlane(std::span<const Point> points);
double BetweenPlanes(const Plane& a, const Plane& b);  // 0 to 90

// The screw that carries each of four points to the next, as the alpha carbons of a regular chain.
struct Screw {
  double Turn = 0;  // degrees; positive for a right-handed screw
  double Rise = 0;  // Angstrom along the axis
};
Screw ScrewOf(const std::array<Point, 4>& points);

// How a five-membered ring is bent: the phase from 0 to 360, near 18 for C3'-endo and near 162 for
// C2'-endo, and the largest torsion (C. Altona and M. Sundaralingam, 1972). The ring begins with
// the oxygen and goes on with the carbon that carries the base.
struct Pucker {
  double Phase = 0;
  double Amplitude = 0;
};
Pucker PuckerOf(const std::array<Point, 5>& ring);

}  // namespace orvane
