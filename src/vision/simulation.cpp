#include "vision/simulation.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

// G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: A physiologically-based model for simulation
// of color vision deficiency. IEEE Transactions on Visualization and Computer Graphics 15 (2009),
// 1291-1298. The matrices for severity 1.0, which act on linear RGB. A row gives a channel; each
// adds up to 1, so greys stay as they are.
// clang-format off
constexpr double kMachado[3][3][3] = {
    {{ 0.152286,  1.052583, -0.204868},   // protan
     { 0.114503,  0.786281,  0.099216},
     {-0.003882, -0.048116,  1.051998}},
    {{ 0.367322,  0.860646, -0.227968},   // deutan
     { 0.280085,  0.672501,  0.047413},
     {-0.011820,  0.042940,  0.968881}},
    {{ 1.255528, -0.076749, -0.178779},   // tritan
     {-0.078411,  0.930809,  0.147602},
     { 0.004733,  0.691367,  0.303900}},
};
// clang-format on

// IEC 61966-2-1, the curve of sRGB.
double LightOfChannel(int part) {
  const double value = part / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

int ChannelOf(double light) {
  const double value =
      light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

}  // namespace

Light LightOf(Colour colour) {
  return {LightOfChannel(Red(colour)), LightOfChannel(Green(colour)), LightOfChannel(Blue(colour))};
}

Colour ColourOf(Light light) {
  return Rgb(ChannelOf(light.Red), ChannelOf(light.Green), ChannelOf(light.Blue));
}

Light Simulated(Eye eye, Light light) {
  const auto& matrix = kMachado[IndexOf(eye)];
  const auto row = [&](int r) {
    const double* m = matrix[r];
    return std::clamp(m[0] * light.Red + m[1] * light.Green + m[2] * light.Blue, 0.0, 1.0);
  };
  return {row(0), row(1), row(2)};
}

}  // namespace orvane
