// What stands between the wish for another structure and the finished picture.
#pragma once

namespace orvane {

struct Selection {
  int StockPending = 0;  // 1 once a selection was prepared; nonzero lets Bt_M_Ld load
  int ListsShown = 0;    // 1 while the four lists and their heads count as on view
};

}  // namespace orvane
