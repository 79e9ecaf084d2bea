#include "desktop/widgets/list_widget.h"

#include "desk/actions.h"
#include "desktop/widgets/host.h"

namespace orvane {

ListWidget::ListWidget(Host& owner, List& shown, QWidget& parent)
    : RowList(owner, shown, parent), list_(shown) {
  ReadControl();
}

void ListWidget::ReadControl() {
  QStringList rows;
  for (const std::string& row : list_.Rows.Get()) rows.append(QString::fromStdString(row));
  SetRows(rows);
  SetChosen(list_.ListIndex);
}

void ListWidget::Take(Aspect aspect) {
  RowList::Take(aspect);
  if (aspect == Aspect::Rows) ReadControl();
  if (aspect == Aspect::Value) SetChosen(list_.ListIndex);
}

void ListWidget::Choose(int row) { SelectRow(host.desk, list_, row); }

void ListWidget::ChooseTwice(int) { DoubleClick(host.desk, list_); }

}  // namespace orvane
