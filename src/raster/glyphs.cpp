#include "raster/glyphs.h"

#include <algorithm>
#include <cmath>
#include <embedded/LiberationSans.h>
#include <ft2build.h>
#include <limits>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace orvane {
namespace {

constexpr std::size_t kMostLabels = 4096;  // the tags of picks have numbers, so they differ
constexpr std::size_t kLongestText = 256;  // letters; the rest would be off the surface
constexpr double kLargestType = 400;       // pixels; beyond it a letter is larger than a screen

// A glyph's ink, with its place in the label.
struct Placed {
  int Left = 0, Top = 0;
  int Width = 0, Height = 0;
  std::vector<std::uint8_t> Mask{};
};

}  // namespace

struct Labels::Type {
  FT_Library Library = nullptr;
  FT_Face Face = nullptr;

  Type() {
    const auto font = embedded::LiberationSans();
    if (FT_Init_FreeType(&Library) != 0) return;
    FT_New_Memory_Face(Library, font.data(), static_cast<FT_Long>(font.size()), 0, &Face);
  }
  ~Type() {
    FT_Done_Face(Face);
    FT_Done_FreeType(Library);
  }

  // The glyphs of a text one after the other; their advances are not rounded to pixels.
  std::vector<Placed> Place(std::string_view text, double size) const {
    std::vector<Placed> placed;
    if (Face == nullptr) return placed;
    FT_Set_Char_Size(Face, 0, static_cast<FT_F26Dot6>(std::floor(size * 64 + 0.5)), 72, 72);
    const double ascent = size * Face->ascender / Face->units_per_EM;
    const int baseline = static_cast<int>(std::floor(ascent + 0.5));
    FT_Pos pen = 0;  // in 65536ths of a pixel
    for (const char letter : text.substr(0, kLongestText)) {
      const FT_UInt glyph = FT_Get_Char_Index(Face, static_cast<unsigned char>(letter));
      if (FT_Load_Glyph(Face, glyph, FT_LOAD_NO_HINTING | FT_LOAD_TARGET_NORMAL) != 0) continue;
      FT_GlyphSlot slot = Face->glyph;
      FT_Outline_Translate(&slot->outline, pen >> 10, 0);
      pen += slot->linearHoriAdvance;
      if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0) continue;
      const FT_Bitmap& bitmap = slot->bitmap;
      Placed ink{.Left = slot->bitmap_left,
                 .Top = baseline - slot->bitmap_top,
                 .Width = static_cast<int>(bitmap.width),
                 .Height = static_cast<int>(bitmap.rows)};
      for (int row = 0; row < ink.Height; ++row) {
        const std::uint8_t* first = bitmap.buffer + row * bitmap.pitch;
        ink.Mask.insert(ink.Mask.end(), first, first + ink.Width);
      }
      if (!ink.Mask.empty()) placed.push_back(std::move(ink));
    }
    return placed;
  }
};

Labels::Labels() : type_(std::make_unique<Type>()) {}
Labels::~Labels() = default;

void Labels::BeginPaint() {
  if (labels_.size() > kMostLabels) labels_.clear();
}

// Kept only once it is whole: there may be no memory for it.
const LabelInk& Labels::Of(std::string_view text, double scale) {
  Key key{std::string(text), scale};
  const auto found = labels_.find(key);
  if (found != labels_.end()) return found->second;
  return labels_.emplace(std::move(key), Drawn(text, scale)).first->second;
}

LabelInk Labels::Drawn(std::string_view text, double scale) const {
  LabelInk label;
  const double size = std::min(kTypeSize * scale, kLargestType);
  const std::vector<Placed> glyphs = type_->Place(text, size);
  if (glyphs.empty()) return label;

  label.Left = label.Top = std::numeric_limits<int>::max();
  int right = std::numeric_limits<int>::min(), bottom = right;
  for (const Placed& glyph : glyphs) {
    label.Left = std::min(label.Left, glyph.Left);
    label.Top = std::min(label.Top, glyph.Top);
    right = std::max(right, glyph.Left + glyph.Width);
    bottom = std::max(bottom, glyph.Top + glyph.Height);
  }
  label.Width = right - label.Left;
  label.Height = bottom - label.Top;
  label.Stride = label.Width + 4;
  label.Mask.assign(static_cast<std::size_t>(label.Stride) * label.Height, 0);
  for (const Placed& glyph : glyphs) {
    for (int y = 0; y < glyph.Height; ++y) {
      for (int x = 0; x < glyph.Width; ++x) {
        const int at = (glyph.Top - label.Top + y) * label.Stride + glyph.Left - label.Left + x;
        const std::uint32_t grey = glyph.Mask[static_cast<std::size_t>(y * glyph.Width + x)];
        const std::uint32_t part = grey + (grey >> 7);  // 255 hides everything
        std::uint32_t& cover = label.Mask[static_cast<std::size_t>(at)];
        cover = std::max(cover, part | part << 16);
      }
    }
  }
  return label;
}

void DrawLabel(const Canvas& canvas, int x, int y, const LabelInk& label, Colour colour) {
  const Channels ink = Split(Words4{} + WordOf(colour));
  const int left = x + label.Left;
  const int top = y + label.Top;
  const int first = std::max(0, left);
  const int last = std::min(canvas.Width, left + label.Width);
  const int bottom = std::min(canvas.Height, top + label.Height);
  for (int row = std::max(0, top); row < bottom; ++row) {
    const std::uint32_t* mask =
        &label.Mask[static_cast<std::size_t>(row - top) * label.Stride + (first - left)];
    ForFours(canvas, row, first, last, [&](std::uint32_t* words, int step) {
      const auto cover = (Halves8)Load(mask + step);
      Store(words, Mix(Load(words), Weighted(ink, cover), 256 - cover));
    });
  }
}

}  // namespace orvane
