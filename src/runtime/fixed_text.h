// A short text kept in place, for the fields of a record: empty until written.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace orvane {

template <std::size_t kWidth>
class FixedText {
 public:
  constexpr FixedText() = default;
  // Keeps the first kWidth characters.
  constexpr FixedText(std::string_view text)  // NOLINT(google-explicit-constructor)
      : length_(static_cast<unsigned char>(std::min(text.size(), kWidth))) {
    std::copy_n(text.begin(), length_, characters_.begin());
  }
  constexpr FixedText(const char* text)  // NOLINT(google-explicit-constructor)
      : FixedText(std::string_view(text)) {}

  constexpr operator std::string_view() const {  // NOLINT(google-explicit-constructor)
    return {characters_.data(), length_};
  }

  friend constexpr bool operator==(const FixedText& a, std::string_view b) {
    return static_cast<std::string_view>(a) == b;
  }
  friend constexpr bool operator==(const FixedText& a, const char* b) {
    return a == std::string_view(b);
  }
  friend constexpr bool operator==(const FixedText& a, const FixedText& b) {
    return static_cast<std::string_view>(a) == static_cast<std::string_view>(b);
  }

 private:
  std::array<char, kWidth> characters_{};
  unsigned char length_ = 0;
};

}  // namespace orvane
