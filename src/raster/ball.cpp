#include "raster/ball.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr double kLargestSprite = 64;                     // radius in pixels; a larger ball is rare
constexpr std::size_t kMostWords = std::size_t{1} << 20;  // of all sprites together: 4 MB

// How much of a pixel at a distance from the centre lies within a radius.
double Inside(double radius, double distance) {
  return std::clamp(radius + 0.5 - distance, 0.0, 1.0);
}

std::uint32_t Part(double of_one) { return static_cast<std::uint32_t>(of_one * 255 + 0.5); }

std::uint32_t Blend(std::uint32_t outline, std::uint32_t fill, double part_of_fill) {
  std::uint32_t word = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const double from = (outline >> shift) & 255u;
    const double to = (fill >> shift) & 255u;
    word |= static_cast<std::uint32_t>(from + (to - from) * part_of_fill + 0.5) << shift;
  }
  return word;
}

// The pixel at a distance from the centre: its colour, and in the top byte its cover.
std::uint32_t WordAt(const Ball& ball, double distance) {
  const double outer = Inside(ball.Radius + ball.Width / 2, distance);
  // A ball smaller than its pen is all outline.
  const double core = ball.Radius - ball.Width / 2;
  const double inner = core > 0 ? Inside(core, distance) * std::min(1.0, 2 * core) : 0;
  if (!ball.Filled) return Part(outer - inner) << 24 | (WordOf(ball.Ink) & 0xFFFFFFu);
  // The share of the fill in what is covered.
  const double share = outer > 0 ? inner / outer : 0;
  return Part(outer) << 24 | Blend(WordOf(ball.Ink), WordOf(ball.Fill), share);
}

// 0 to 255 becomes 0 to 256, so that a full cover hides everything.
Sprite::Four FourOf(Words4 words) {
  const Words4 top = words >> 24;
  const Halves8 cover = InBoth(top + (top >> 7));
  return {Weighted(Split(words | 0xFF000000u), cover), 256 - cover};
}

void MixOne(std::uint32_t& under, std::uint32_t word) {
  const Sprite::Four four = FourOf(Words4{word});
  under = Mix(Words4{under}, four.Ink, four.Rest)[0];
}

// Where a row's pixels begin and end, and which of them are copied.
Sprite::Row RowOf(const std::uint32_t* words, int side, bool filled) {
  Sprite::Row row{.First = side};
  int solid_last = 0;
  row.Solid = side;
  for (int x = 0; x < side; ++x) {
    const std::uint32_t cover = words[x] >> 24;
    if (cover == 0) continue;
    row.First = std::min(row.First, x);
    row.Last = x + 1;
    if (cover < 255 || !filled) continue;
    row.Solid = std::min(row.Solid, x);
    solid_last = x + 1;
  }
  row.First = std::min(row.First, row.Last);
  row.Solid = std::min(row.Solid, row.Last);
  row.Copied = std::max(0, solid_last - row.Solid) / 4 * 4;
  return row;
}

// The edges in the order in which BlitWhole reaches them.
void AddEdges(Sprite& sprite, const Sprite::Row& row, const std::uint32_t* words) {
  const auto add = [&](int from, int to) {
    for (int x = from; x < to; x += 4) {
      std::uint32_t four[4] = {};
      std::copy(words + x, words + std::min(x + 4, sprite.Side), four);
      sprite.Edges.push_back(FourOf(Load(four)));
    }
  };
  add(row.First, row.Solid);
  add(row.Solid + row.Copied, row.Last);
}

Sprite MakeSprite(const Ball& ball, double phase_x, double phase_y) {
  const int reach = static_cast<int>(std::ceil(ball.Radius + ball.Width / 2 + 0.5)) + 1;
  Sprite sprite;
  sprite.Side = 2 * reach + 1;
  sprite.Left = -reach;
  sprite.Words.resize(static_cast<std::size_t>(sprite.Side) * sprite.Side);
  for (int y = 0; y < sprite.Side; ++y) {
    std::uint32_t* words = &sprite.Words[static_cast<std::size_t>(y) * sprite.Side];
    for (int x = 0; x < sprite.Side; ++x) {
      const double dx = x - reach - phase_x;
      const double dy = y - reach - phase_y;
      words[x] = WordAt(ball, std::sqrt(dx * dx + dy * dy));
    }
    sprite.Rows.push_back(RowOf(words, sprite.Side, ball.Filled));
    AddEdges(sprite, sprite.Rows.back(), words);
  }
  return sprite;
}

// For a sprite that lies on the canvas with four pixels to spare to its right.
void BlitWhole(const Canvas& canvas, int left, int top, const Sprite& sprite) {
  const Sprite::Four* edge = sprite.Edges.data();
  const std::uint32_t* source = sprite.Words.data();
  std::uint32_t* words = canvas.Row(top) + left;
  const auto mix = [&](int x) {
    Store(words + x, Mix(Load(words + x), edge->Ink, edge->Rest));
    ++edge;
  };
  for (const Sprite::Row& row : sprite.Rows) {
    int x = row.First;
    for (; x < row.Solid; x += 4) mix(x);
    const int copied_last = row.Solid + row.Copied;
    for (x = row.Solid; x < copied_last; x += 4) Store(words + x, Load(source + x));
    for (; x < row.Last; x += 4) mix(x);
    source += sprite.Side;
    words += canvas.Stride;
  }
}

void BlitPart(const Canvas& canvas, int left, int top, const Sprite& sprite) {
  const int first_row = std::max(0, -top);
  const int last_row = std::min(sprite.Side, canvas.Height - top);
  for (int y = first_row; y < last_row; ++y) {
    const Sprite::Row& row = sprite.Rows[static_cast<std::size_t>(y)];
    const std::uint32_t* source = &sprite.Words[static_cast<std::size_t>(y) * sprite.Side];
    std::uint32_t* words = canvas.Row(top + y);
    const int last = std::min(row.Last, canvas.Width - left);
    for (int x = std::max(row.First, -left); x < last; ++x) MixOne(words[left + x], source[x]);
  }
}

// A ball too large for a sprite, row by row: its rims pixel by pixel, and what is between them at
// once.
void DrawLarge(const Canvas& canvas, double x, double y, const Ball& ball) {
  const auto within = [](double value, int size) {
    return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(size)));
  };
  const auto half_chord = [](double radius, double down) {
    return radius > std::abs(down) ? std::sqrt(radius * radius - down * down) : 0;
  };
  const double reach = ball.Radius + ball.Width / 2 + 1;
  const double core = ball.Radius - ball.Width / 2 - 1;
  const int bottom = within(y + reach + 1, canvas.Height);
  for (int row = within(y - reach, canvas.Height); row < bottom; ++row) {
    std::uint32_t* words = canvas.Row(row);
    const double down = row - y;
    const auto mix = [&](int first, int last) {
      for (int column = first; column < last; ++column) {
        const double across = column - x;
        MixOne(words[column], WordAt(ball, std::sqrt(across * across + down * down)));
      }
    };
    const double outer = half_chord(reach, down), inner = half_chord(core, down);
    const int first = within(x - outer, canvas.Width);
    const int last = within(x + outer + 1, canvas.Width);
    const int core_first = std::clamp(within(x - inner + 1, canvas.Width), first, last);
    const int core_last = std::clamp(within(x + inner, canvas.Width), core_first, last);
    mix(first, core_first);
    if (ball.Filled) std::fill(words + core_first, words + core_last, WordOf(ball.Fill));
    mix(core_last, last);
  }
}

}  // namespace

BallSprites::Set& BallSprites::SetOf(const Ball& ball) {
  const auto found =
      std::find_if(sets_.begin(), sets_.end(), [&](const auto& set) { return set->Of == ball; });
  if (found != sets_.end()) {
    // One step towards the front, so that the common ones are found first.
    if (found == sets_.begin()) return **found;
    std::iter_swap(found, found - 1);
    return **(found - 1);
  }
  if (words_ > kMostWords) {
    sets_.clear();
    words_ = 0;
  }
  sets_.push_back(std::make_unique<Set>());
  sets_.back()->Of = ball;
  return *sets_.back();
}

void BallSprites::Draw(const Canvas& canvas, double x, double y, const Ball& ball) {
  if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(ball.Radius)) return;
  const double reach = ball.Radius + ball.Width + 2;
  if (ball.Radius < 0 || x < -reach || y < -reach || x > canvas.Width + reach ||
      y > canvas.Height + reach) {
    return;
  }
  if (ball.Radius + ball.Width > kLargestSprite) return DrawLarge(canvas, x, y, ball);

  const auto quarters_x = static_cast<int>(std::floor(x * kPhases + 0.5));
  const auto quarters_y = static_cast<int>(std::floor(y * kPhases + 0.5));
  const int phase_x = quarters_x & (kPhases - 1);
  const int phase_y = quarters_y & (kPhases - 1);
  std::unique_ptr<Sprite>& sprite = SetOf(ball).At[phase_y * kPhases + phase_x];
  if (!sprite) {
    sprite = std::make_unique<Sprite>(MakeSprite(ball, phase_x / 4.0, phase_y / 4.0));
    words_ += sprite->Words.size() + 12 * sprite->Edges.size();
  }
  const int left = (quarters_x >> 2) + sprite->Left;
  const int top = (quarters_y >> 2) + sprite->Left;
  if (left >= 0 && top >= 0 && left + sprite->Side + 4 <= canvas.Width &&
      top + sprite->Side <= canvas.Height) {
    BlitWhole(canvas, left, top, *sprite);
  } else {
    BlitPart(canvas, left, top, *sprite);
  }
}

}  // namespace orvane
