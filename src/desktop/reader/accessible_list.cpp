#include "desktop/reader/accessible_list.h"

#include <QTimer>

#include "desktop/widgets/row_list.h"

namespace orvane {
namespace {

// What Enter and a double click do where they do more than choose.
QString OpenAction() { return QStringLiteral("Open"); }

}  // namespace

AccessibleList::~AccessibleList() {
  for (const auto& [row, id] : rows_) QAccessible::deleteAccessibleInterface(id);
}

RowList* AccessibleList::Rows() const { return dynamic_cast<RowList*>(widget()); }

int AccessibleList::childCount() const {
  const RowList* list = Rows();
  return list == nullptr ? 0 : static_cast<int>(list->Rows().size());
}

QAccessibleInterface* AccessibleList::child(int row) const {
  if (row < 0 || row >= childCount()) return nullptr;
  const auto found = rows_.find(row);
  if (found != rows_.end()) return QAccessible::accessibleInterface(found->second);
  auto* made = new AccessibleRow(*this, row);
  rows_[row] = QAccessible::registerAccessibleInterface(made);
  return made;
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const {
  const auto* row = dynamic_cast<const AccessibleRow*>(child);
  return row != nullptr && row->parent() == this ? row->Row() : -1;
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const {
  const RowList* list = Rows();
  return list == nullptr ? nullptr : child(list->RowAt(list->mapFromGlobal(QPointF(x, y))));
}

QAccessibleInterface* AccessibleList::focusChild() const {
  const RowList* list = Rows();
  return list != nullptr && list->hasFocus() ? child(list->ChosenRow()) : nullptr;
}

bool AccessibleRow::isValid() const { return row_ < list_.childCount(); }

QAccessibleInterface* AccessibleRow::parent() const {
  return const_cast<AccessibleList*>(&list_);  // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

QString AccessibleRow::text(QAccessible::Text which) const {
  if (which != QAccessible::Name || !isValid()) return {};
  return list_.Rows()->Rows()[row_].simplified();
}

QRect AccessibleRow::rect() const {
  if (!isValid()) return {};
  const RowList& list = *list_.Rows();
  const QRect face = list.RowInWidget(row_);
  return {list.mapToGlobal(face.topLeft()), face.size()};
}

QAccessible::State AccessibleRow::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const RowList& list = *list_.Rows();
  const bool in_view = row_ >= list.FirstRow() && row_ < list.FirstRow() + list.WholeRows();
  state.disabled = !list.isEnabled();
  state.invisible = !list.isVisible();
  state.offscreen = !in_view;
  state.selectable = state.focusable = true;
  state.selected = row_ == list.ChosenRow();
  state.focused = state.selected && list.hasFocus();
  return state;
}

void* AccessibleRow::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                              : nullptr;
}

QStringList AccessibleRow::actionNames() const {
  if (!isValid() || !list_.Rows()->control.IsOpenToUser()) return {};
  QStringList names{pressAction()};
  if (list_.Rows()->control.Row.Kind == ControlKind::FileList) names.append(OpenAction());
  return names;
}

// Runs after the reader has its answer, since choosing may open a box.
void AccessibleRow::doAction(const QString& name) {
  if (!actionNames().contains(name)) return;
  RowList* list = list_.Rows();
  QTimer::singleShot(0, list, [list, row = row_, opens = name == OpenAction()] {
    if (row >= list->Rows().size()) return;
    list->Choose(row);
    if (opens && row < list->Rows().size()) list->ChooseTwice(row);
  });
}

}  // namespace orvane
