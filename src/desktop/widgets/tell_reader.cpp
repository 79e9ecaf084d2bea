#include "desktop/widgets/tell_reader.h"

#include <QAccessible>

#include "desktop/widgets/control_view.h"
#include "desktop/widgets/row_list.h"

namespace orvane {
namespace {

void Tell(RowList& list, QAccessible::Event kind, int row) {
  QAccessibleEvent event(&list, kind);
  event.setChild(row);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

bool IsSwitch(SpokenRole role) { return role == SpokenRole::Toggle || role == SpokenRole::Choice; }

void TellState(ControlView& view) {
  if (!QAccessible::isActive() || !IsSwitch(RoleOf(view.control))) return;
  QAccessible::State turned;
  turned.checked = true;
  QAccessibleStateChangeEvent event(&view.widget, turned);
  QAccessible::updateAccessibility(&event);
}

// Readers speak a notice when it is shown. The alert is for the systems that have alerts.
void Announce(ControlView& view) {
  const bool heard = QAccessible::isActive() && RoleOf(view.control) == SpokenRole::Result;
  if (!heard || view.control.Caption.Get().empty() || !view.widget.isVisible()) return;
  for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(&view.widget, kind);
    QAccessible::updateAccessibility(&event);
  }
}

void TellChosen(RowList& list, int before, int now) {
  if (before == now || !QAccessible::isActive()) return;
  if (before >= 0 && before < list.Rows().size()) Tell(list, QAccessible::SelectionRemove, before);
  if (now < 0) return;
  Tell(list, QAccessible::Selection, now);
  TellKeyboardAtRow(list);
}

void TellKeyboardAtRow(RowList& list) {
  if (QAccessible::isActive() && list.hasFocus() && list.ChosenRow() >= 0) {
    Tell(list, QAccessible::Focus, list.ChosenRow());
  }
}

}  // namespace orvane
