// The state between the choice of another structure and the finished picture.
#pragma once

namespace orvane {

struct Selection {
  int StockPending = 0;  // 1 once a selection is prepared; nonzero lets Bt_M_Ld load
  int ListsShown = 0;    // 1 while the four lists and their heads count as shown
};

}  // namespace orvane
