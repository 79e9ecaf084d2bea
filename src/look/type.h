// How large and how heavy a text of the windows is set. The family is the skin's: Inter, so that
// every caption fits on every machine.
#pragma once

namespace orvane {

struct Type {
  int Size = 11;     // pixels at 100 per cent
  int Weight = 500;  // 400, 500, 600 or 700

  friend bool operator==(const Type&, const Type&) = default;
};

}  // namespace orvane
