#include "vision/display_filter.h"

#include <algorithm>
#include <cmath>

#include "draw/elements.h"

namespace orvane {

// Found by a search for colours as near to the elements' own as the least difference allows. None
// is darker than the least channel of its element or brighter than the greatest, so a tint stays
// within the cube.
// clang-format off
const std::array<ShownElement, kHuedElements> kShownElements = {{
    //      protan               deutan               tritan
    {'O', {Rgb(240,   6,   1), Rgb(168,   6,   0), Rgb(196,   0,   0)}},
    {'S', {Rgb(193, 144,  34), Rgb(175, 134,  32), Rgb(218, 173,  59)}},
    {'C', {Rgb( 48, 240,  66), Rgb(127, 240, 144), Rgb(  0, 240,  80)}},
    {'N', {Rgb( 64,  60, 193), Rgb( 60,  60, 240), Rgb( 60,  78, 196)}},
    {'P', {Rgb(176, 113, 240), Rgb(211,  75, 240), Rgb(166,  32, 240)}},
    {'R', {Rgb(245,  73, 133), Rgb(255,  20, 147), Rgb(255,  63, 155)}},
}};
// clang-format on

namespace {

constexpr std::size_t kKept = 4096;  // a power of two

// A colour split into a grey and the chroma of a hue: grey + chroma * ink.
struct Split {
  int Grey = 0;  // the least channel
  int Chroma = 0;
  double Hue = 0;  // 0 to 6, red at 0, green at 2, blue at 4
};

Split SplitOf(int red, int green, int blue) {
  const int least = std::min({red, green, blue}), most = std::max({red, green, blue});
  Split split{least, most - least, 0};
  if (split.Chroma == 0) return split;
  const double chroma = split.Chroma;
  split.Hue = most == red     ? (green - blue) / chroma
              : most == green ? 2 + (blue - red) / chroma
                              : 4 + (red - green) / chroma;
  if (split.Hue < 0) split.Hue += 6;
  return split;
}

std::size_t PlaceOf(std::uint32_t word) { return (word * 2654435761u) >> 20; }

}  // namespace

DisplayFilter::DisplayFilter(Eye eye) : kept_(kKept) {
  for (const ShownElement& row : kShownElements) {
    const Colour own = FindElement({&row.Letter, 1})->Ink;
    const Colour shown = row.Ink[IndexOf(eye)];
    const Split split = SplitOf(Red(own), Green(own), Blue(own));
    const auto part = [&](int channel) {
      return (channel - split.Grey) / static_cast<double>(split.Chroma);
    };
    stops_.push_back({split.Hue, {part(Red(shown)), part(Green(shown)), part(Blue(shown))}});
  }
  std::ranges::sort(stops_, {}, &Stop::Hue);
  // The hues form a circle: the last one also stands before the first, and the first after the
  // last.
  Stop before = stops_.back(), behind = stops_.front();
  before.Hue -= 6;
  behind.Hue += 6;
  stops_.insert(stops_.begin(), before);
  stops_.push_back(behind);
}

std::array<double, 3> DisplayFilter::InkAt(double hue) const {
  const auto next = std::ranges::upper_bound(stops_, hue, {}, &Stop::Hue);
  const Stop& to = next == stops_.end() ? stops_.back() : *next;
  const Stop& from = *(next - 1);
  const double share = (hue - from.Hue) / (to.Hue - from.Hue);
  std::array<double, 3> ink{};
  for (std::size_t i = 0; i < ink.size(); ++i) {
    ink[i] = from.Ink[i] + (to.Ink[i] - from.Ink[i]) * share;
  }
  return ink;
}

Colour DisplayFilter::Shown(Colour colour) const {
  const Split split = SplitOf(Red(colour), Green(colour), Blue(colour));
  if (split.Chroma == 0) return colour;
  const auto ink = InkAt(split.Hue);
  const auto channel = [&](std::size_t i) {
    return static_cast<int>(std::lround(split.Grey + split.Chroma * ink[i]));
  };
  return Rgb(channel(0), channel(1), channel(2));
}

void DisplayFilter::Apply(std::uint32_t* words, std::size_t count) {
  std::uint32_t last = 0xFF000000u, shown = last;
  for (std::size_t i = 0; i < count; ++i) {
    if (words[i] != last) {
      last = words[i];
      Kept& kept = kept_[PlaceOf(last)];
      if (kept.Word != last) {
        const Colour colour = Shown(Rgb(last >> 16 & 255, last >> 8 & 255, last & 255));
        kept = {last, 0xFF000000u | static_cast<std::uint32_t>(Red(colour)) << 16 |
                          static_cast<std::uint32_t>(Green(colour)) << 8 |
                          static_cast<std::uint32_t>(Blue(colour))};
      }
      shown = kept.Shown;
    }
    words[i] = shown;
  }
}

}  // namespace orvane
