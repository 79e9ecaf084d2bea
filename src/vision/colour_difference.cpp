#include "vision/colour_difference.h"

#include <cmath>
#include <numbers>

namespace orvane {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

// The cube root, with a straight piece near black.
double Bent(double share) {
  constexpr double edge = 6.0 / 29;
  return share > edge * edge * edge ? std::cbrt(share) : share / (3 * edge * edge) + 4.0 / 29;
}

double HueOf(double a, double b) {  // degrees, 0 to 360
  if (a == 0 && b == 0) return 0;
  const double hue = std::atan2(b, a) / kDegree;
  return hue < 0 ? hue + 360 : hue;
}

// A factor that is near 0 for pale colours and near 1 for strong ones.
double Strong(double chroma) {
  const double seventh = std::pow(chroma, 7);
  return std::sqrt(seventh / (seventh + std::pow(25.0, 7)));
}

double HueStep(double from, double to) {  // the short way round
  const double step = to - from;
  return step > 180 ? step - 360 : step < -180 ? step + 360 : step;
}

double MiddleHue(double first, double second) {
  const double sum = first + second;
  if (std::fabs(first - second) <= 180) return sum / 2;
  return sum < 360 ? (sum + 360) / 2 : (sum - 360) / 2;
}

}  // namespace

Lab LabOf(Light light) {
  // The primaries of sRGB in CIE XYZ, divided by the white of D65.
  const double x =
      (0.4124564 * light.Red + 0.3575761 * light.Green + 0.1804375 * light.Blue) / 0.95047;
  const double y = 0.2126729 * light.Red + 0.7151522 * light.Green + 0.0721750 * light.Blue;
  const double z =
      (0.0193339 * light.Red + 0.1191920 * light.Green + 0.9503041 * light.Blue) / 1.08883;
  return {116 * Bent(y) - 16, 500 * (Bent(x) - Bent(y)), 200 * (Bent(y) - Bent(z))};
}

// CIE 142-2001, in the order of G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference
// formula. Color Research & Application 30 (2005), 21-30.
double Difference(const Lab& first, const Lab& second) {
  const double middle_chroma = (std::hypot(first.A, first.B) + std::hypot(second.A, second.B)) / 2;
  const double stretch = 1 + (1 - Strong(middle_chroma)) / 2;
  const double a1 = first.A * stretch, a2 = second.A * stretch;
  const double c1 = std::hypot(a1, first.B), c2 = std::hypot(a2, second.B);
  const double h1 = HueOf(a1, first.B), h2 = HueOf(a2, second.B);

  const bool grey = c1 * c2 == 0;  // a grey has no hue
  const double dl = second.L - first.L;
  const double dc = c2 - c1;
  const double dh = grey ? 0 : 2 * std::sqrt(c1 * c2) * std::sin(HueStep(h1, h2) / 2 * kDegree);

  const double l = (first.L + second.L) / 2, c = (c1 + c2) / 2;
  const double h = grey ? h1 + h2 : MiddleHue(h1, h2);
  const auto wave = [&](double times, double shift) {
    return std::cos((times * h + shift) * kDegree);
  };
  const double t =
      1 - 0.17 * wave(1, -30) + 0.24 * wave(2, 0) + 0.32 * wave(3, 6) - 0.20 * wave(4, -63);
  const double from_50 = (l - 50) * (l - 50);
  const double sl = 1 + 0.015 * from_50 / std::sqrt(20 + from_50);
  const double sc = 1 + 0.045 * c;
  const double sh = 1 + 0.015 * c * t;
  const double blue = 30 * std::exp(-((h - 275) / 25) * ((h - 275) / 25));
  const double turn = -std::sin(2 * blue * kDegree) * 2 * Strong(c);
  const double l_part = dl / sl, c_part = dc / sc, h_part = dh / sh;
  return std::sqrt(l_part * l_part + c_part * c_part + h_part * h_part + turn * c_part * h_part);
}

double SeenDifference(Eye eye, Colour first, Colour second) {
  return Difference(LabOf(Simulated(eye, LightOf(first))), LabOf(Simulated(eye, LightOf(second))));
}

}  // namespace orvane
