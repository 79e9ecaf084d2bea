// How the captions of the printed page are set, in pixels of the page at 100 per cent.
#pragma once

#include <span>
#include <string_view>

#include "look/dress.h"

namespace orvane {

struct PageCaption {
  std::string_view Control;
  Type Letters;
  Side Align = Side::Left;
  bool Grows = false;  // to the right, with its text
};

// Controls of the page that are not among them have no text on paper.
std::span<const PageCaption> PageCaptions();

inline constexpr int kPageRightMargin = 300;  // twips: how near to the page's edge one may grow

}  // namespace orvane
