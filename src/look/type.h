// The size and the weight of a text in the windows. The skin chooses the family: Inter, so that
// every caption fits on every machine.
#pragma once

namespace orvane {

struct Type {
  int Size = 11;     // pixels at 100 per cent
  int Weight = 500;  // 400, 500, 600 or 700

  friend bool operator==(const Type&, const Type&) = default;
};

}  // namespace orvane
