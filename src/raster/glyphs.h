// Texts of the surface: Liberation Sans, which has the widths of Arial, in 8.25 points, which are
// 11 pixels at 96 dots to the inch. Grey and unhinted, so that they are the same on every machine.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "raster/canvas.h"

namespace orvane {

inline constexpr double kTypeSize = 11;  // surface pixels

// The ink of one text.
struct LabelInk {
  int Left = 0, Top = 0;      // from the top left of the first character cell
  int Width = 0, Height = 0;  // of the ink
  int Stride = 0;             // pixels to a row, with empty ones after the ink
  // How much of each pixel is covered, from 0 to 256, in both halves of its 32 bits.
  std::vector<std::uint32_t> Mask;
};

// The labels drawn lately, one for each distinct text at each scale.
class Labels {
 public:
  Labels();
  ~Labels();

  // The label stays until the next BeginPaint.
  const LabelInk& Of(std::string_view text, double scale);
  // Drops all labels when there are many.
  void BeginPaint();

 private:
  struct Type;  // the font
  struct Key {
    std::string Text;
    double Scale = 1;
    friend bool operator==(const Key&, const Key&) = default;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const {
      return std::hash<std::string>()(key.Text) ^ std::hash<double>()(key.Scale);
    }
  };

  LabelInk Drawn(std::string_view text, double scale) const;

  std::unique_ptr<Type> type_;
  std::unordered_map<Key, LabelInk, Hash> labels_;
};

// `x`, `y`: the pixel of the top left of the first character cell.
void DrawLabel(const Canvas& canvas, int x, int y, const LabelInk& label, Colour ink);

}  // namespace orvane
