// A list of stock structures: a click on a row chooses it, even when it is chosen already.
#pragma once

#include "controls/kinds.h"
#include "desktop/widgets/row_list.h"

namespace orvane {

class ListWidget : public RowList {
 public:
  ListWidget(Host& owner, List& shown, QWidget& parent);

  void Take(Aspect aspect) override;

  void Choose(int row) override;
  void ChooseTwice(int row) override;

 private:
  void ReadControl();

  List& list_;
};

}  // namespace orvane
