#include "desktop/reader/accessible_value.h"

#include <QTimer>

#include "desktop/widgets/bar_widget.h"
#include "desktop/widgets/file_list_widget.h"

namespace orvane {
namespace {

void SetOpen(BarWidget& bar, int value) {
  if (bar.control.IsOpenToUser()) bar.setValue(value);
}

}  // namespace

BarWidget* AccessibleBar::Bar() const { return dynamic_cast<BarWidget*>(widget()); }

QString AccessibleBar::text(QAccessible::Text which) const {
  if (which == QAccessible::Value) return currentValue().toString();
  return AccessibleControl::text(which);
}

void* AccessibleBar::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  return AccessibleControl::interface_cast(type);
}

QVariant AccessibleBar::currentValue() const {
  const BarWidget* bar = Bar();
  return bar == nullptr ? QVariant() : QVariant(bar->value());
}

// Runs after the reader's call, as actions do: the step may open a box.
void AccessibleBar::setCurrentValue(const QVariant& value) {
  QWidget* shown = widget();
  QTimer::singleShot(0, shown, [shown, to = value.toInt()] {
    if (auto* bar = dynamic_cast<BarWidget*>(shown)) SetOpen(*bar, to);
  });
}

QVariant AccessibleBar::maximumValue() const {
  const BarWidget* bar = Bar();
  return bar == nullptr ? QVariant() : QVariant(bar->maximum());
}

QVariant AccessibleBar::minimumValue() const {
  const BarWidget* bar = Bar();
  return bar == nullptr ? QVariant() : QVariant(bar->minimum());
}

QVariant AccessibleBar::minimumStepSize() const {
  const BarWidget* bar = Bar();
  return bar == nullptr ? QVariant() : QVariant(bar->singleStep());
}

QStringList AccessibleBar::OwnActions() const { return {increaseAction(), decreaseAction()}; }

void AccessibleBar::Do(const QString& name) {
  BarWidget* bar = Bar();
  if (bar == nullptr) return;
  const int step = name == increaseAction() ? bar->singleStep() : -bar->singleStep();
  SetOpen(*bar, bar->value() + step);
}

QString AccessibleDrives::text(QAccessible::Text which) const {
  const auto* drives = dynamic_cast<DriveWidget*>(widget());
  if (which == QAccessible::Value && drives != nullptr) return drives->Path();
  return AccessibleControl::text(which);
}

QAccessible::State AccessibleDrives::state() const {
  QAccessible::State state = AccessibleControl::state();
  state.hasPopup = true;
  return state;
}

QStringList AccessibleDrives::OwnActions() const { return {showMenuAction(), pressAction()}; }

void AccessibleDrives::Do(const QString&) {
  if (auto* drives = dynamic_cast<DriveWidget*>(widget())) drives->OpenMenu();
}

}  // namespace orvane
