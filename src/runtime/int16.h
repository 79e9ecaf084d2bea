// A 16-bit signed field: reads as an int, and refuses what does not fit when it is written.
#pragma once

#include <cstdint>
#include <limits>

#include "runtime/failure.h"

namespace orvane {

class Int16 {
 public:
  constexpr Int16() = default;
  // From any whole number; fails outside -32768 to 32767. Arithmetic on fields is done in ints and
  // checked here, when the result is stored: `const Int16 bound = 2 * AtomCount;` fails exactly
  // where a 16-bit product would.
  constexpr Int16(int value) : value_(Checked(value)) {}  // NOLINT(google-explicit-constructor)

  constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  constexpr Int16& operator+=(int by) { return *this = Int16(value_ + by); }
  constexpr Int16& operator-=(int by) { return *this = Int16(value_ - by); }
  constexpr Int16& operator++() { return *this += 1; }

 private:
  static constexpr std::int16_t Checked(int value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
      FailOverflow();
    }
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

}  // namespace orvane
