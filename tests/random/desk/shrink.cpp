#include "random/desk/shrink.h"

#include <algorithm>

namespace orvane {

std::vector<std::string> Shrunk(
    std::vector<std::string> lines,
    const std::function<bool(const std::vector<std::string>&)>& still_wrong, int tries) {
  for (std::size_t stretch = std::max<std::size_t>(lines.size() / 2, 1);;) {
    bool any_left_out = false;
    for (std::size_t from = 0; from < lines.size() && tries > 0;) {
      const auto first = lines.begin() + static_cast<std::ptrdiff_t>(from);
      const std::size_t length = std::min(stretch, lines.size() - from);
      std::vector<std::string> rest(lines.begin(), first);
      rest.insert(rest.end(), first + static_cast<std::ptrdiff_t>(length), lines.end());
      --tries;
      if (still_wrong(rest)) {
        lines = std::move(rest);
        any_left_out = true;
      } else {
        from += length;
      }
    }
    if (tries <= 0 || (stretch == 1 && !any_left_out)) return lines;
    stretch = std::max<std::size_t>(stretch / 2, 1);
  }
}

}  // namespace orvane
