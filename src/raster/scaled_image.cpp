#include "raster/scaled_image.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr std::size_t kMostScaled = 4;
constexpr std::uint32_t kOne = 1u << 14;  // a weight of 1

// The pixels that make one pixel of the resized row or column, and their weights, which add up to
// kOne.
struct Mixture {
  int First = 0;
  std::vector<std::uint32_t> Weights;
};

// A tent over each pixel's centre, as wide as the coarser of the two rasters needs.
std::vector<Mixture> MixturesOf(int from, int to, double scale) {
  const double reach = std::max(1.0, 1 / scale);
  std::vector<Mixture> mixtures(static_cast<std::size_t>(to));
  for (int pixel = 0; pixel < to; ++pixel) {
    const double centre = std::clamp((pixel + 0.5) / scale - 0.5, 0.0, from - 1.0);
    const int first = std::max(0, static_cast<int>(std::ceil(centre - reach)));
    const int last = std::min(from - 1, static_cast<int>(std::floor(centre + reach)));
    Mixture& mixture = mixtures[static_cast<std::size_t>(pixel)];
    mixture.First = first;
    std::vector<double> tent;
    double sum = 0;
    for (int at = first; at <= last; ++at) {
      tent.push_back(1 - std::abs(at - centre) / reach);
      sum += tent.back();
    }
    std::uint32_t given = 0;
    for (const double height : tent) {
      mixture.Weights.push_back(static_cast<std::uint32_t>(height / sum * kOne));
      given += mixture.Weights.back();
    }
    // What rounding down left over goes to the pixel with the largest weight.
    *std::max_element(mixture.Weights.begin(), mixture.Weights.end()) += kOne - given;
  }
  return mixtures;
}

// `step` is how far apart the mixed pixels lie.
std::uint32_t Mixed(const Mixture& mixture, const std::uint32_t* words, std::ptrdiff_t step) {
  std::uint32_t red = kOne / 2, green = kOne / 2, blue = kOne / 2;
  words += mixture.First * step;
  for (const std::uint32_t weight : mixture.Weights) {
    red += weight * ((*words >> 16) & 255u);
    green += weight * ((*words >> 8) & 255u);
    blue += weight * (*words & 255u);
    words += step;
  }
  return 0xFF000000u | red / kOne << 16 | green / kOne << 8 | blue / kOne;
}

}  // namespace

Bitmap Resized(const Bitmap& image, double scale, int width, int height) {
  const std::vector<Mixture> columns = MixturesOf(image.Width, width, scale);
  const std::vector<Mixture> rows = MixturesOf(image.Height, height, scale);
  const auto area = [](int w, int h) { return static_cast<std::size_t>(w) * h; };
  Bitmap narrow{width, image.Height, std::vector<std::uint32_t>(area(width, image.Height))};
  for (int y = 0; y < image.Height; ++y) {
    for (int x = 0; x < width; ++x) {
      narrow.Words[area(width, y) + x] =
          Mixed(columns[static_cast<std::size_t>(x)], &image.Words[area(image.Width, y)], 1);
    }
  }
  Bitmap resized{width, height, std::vector<std::uint32_t>(area(width, height))};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      resized.Words[area(width, y) + x] = Mixed(rows[static_cast<std::size_t>(y)],
                                                &narrow.Words[static_cast<std::size_t>(x)], width);
    }
  }
  return resized;
}

void Backdrops::Draw(const Canvas& canvas, const std::shared_ptr<const Bitmap>& image,
                     double scale) {
  if (image->Width <= 0 || image->Height <= 0) return;
  const auto covered = [scale](int size, int limit) {
    return static_cast<int>(std::min(std::floor(size * scale + 0.5), static_cast<double>(limit)));
  };
  const int width = covered(image->Width, canvas.Width);
  const int height = covered(image->Height, canvas.Height);
  if (width <= 0 || height <= 0) return;

  const Bitmap* source = image.get();
  if (scale != 1) {
    auto found = std::find_if(scaled_.begin(), scaled_.end(), [&](const Scaled& scaled) {
      return scaled.Of == image && scaled.Scale == scale && scaled.Image.Width == width &&
             scaled.Image.Height == height;
    });
    if (found == scaled_.end()) {
      if (scaled_.size() == kMostScaled) scaled_.erase(scaled_.begin());
      scaled_.push_back({image, scale, Resized(*image, scale, width, height)});
      found = scaled_.end() - 1;
    }
    source = &found->Image;
  }
  for (int y = 0; y < height; ++y) {
    std::memcpy(canvas.Row(y), &source->Words[static_cast<std::size_t>(y) * source->Width],
                static_cast<std::size_t>(width) * sizeof(std::uint32_t));
  }
}

}  // namespace orvane
