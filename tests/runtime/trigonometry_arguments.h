// Arguments for sine, cosine and arctangent, a million in all, from fixed seeds: what the program
// forms, and what is hard to round.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace orvane {

struct ArgumentKind {
  std::string_view Name;
  std::vector<double> (*Make)();
};
std::span<const ArgumentKind> KindsOfArguments();

// 2/pi or pi/2, in binary: the digits from a place after the point on, 32 of them.
std::uint32_t DigitsOfTwoOverPi(int place);
std::uint32_t DigitsOfHalfPi(int place);

// The double nearest to so many quarters of a turn, and how far it is from them.
struct NearMultiple {
  double Angle, Off;
};
NearMultiple NearestToQuarters(unsigned long quarters);

// sin(21 / 2^24) and the like. A sine is x - x^3/6 + x^5/120, and for x = 3n / 2^k the first two
// are a number that ends in the middle between two doubles, if k is chosen so. The third is far
// smaller than any double beside them shows: it alone says which way to round.
std::vector<double> WhereASineIsAllButAMiddle();
// The same of x - x^3/3 + x^5/5.
std::vector<double> WhereAnArcTangentIsAllButAMiddle();

}  // namespace orvane
