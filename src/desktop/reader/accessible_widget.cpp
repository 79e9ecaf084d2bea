#include "desktop/reader/accessible_widget.h"

#include <algorithm>
#include <array>

#include <QTimer>

#include "desk/press_life.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/flyout.h"
#include "desktop/widgets/host.h"
#include "desktop/widgets/tell_reader.h"
#include "narration/spoken_words.h"

namespace orvane {
namespace {

struct RoleRow {
  SpokenRole Spoken;
  QAccessible::Role Role;
};

constexpr auto kRoles = std::to_array<RoleRow>({
    {SpokenRole::Button, QAccessible::Button},
    {SpokenRole::Toggle, QAccessible::CheckBox},
    {SpokenRole::Choice, QAccessible::RadioButton},
    {SpokenRole::Slider, QAccessible::Slider},
    {SpokenRole::List, QAccessible::List},
    {SpokenRole::Dropdown, QAccessible::ComboBox},
    {SpokenRole::Entry, QAccessible::EditableText},
    {SpokenRole::Picture, QAccessible::Graphic},
    {SpokenRole::Text, QAccessible::StaticText},
    {SpokenRole::Heading, QAccessible::Heading},
    {SpokenRole::Link, QAccessible::Link},
    {SpokenRole::Group, QAccessible::Grouping},
    {SpokenRole::Result, QAccessible::Notification},
    {SpokenRole::Decoration, QAccessible::Separator},
});

QAccessible::Role ToolkitRole(SpokenRole spoken) {
  for (const RoleRow& row : kRoles) {
    if (row.Spoken == spoken) return row.Role;
  }
  return QAccessible::StaticText;
}

bool IsPassedOver(QWidget* widget) {
  if (widget->isWindow() || dynamic_cast<Flyout*>(widget) != nullptr) return true;
  const auto* view = dynamic_cast<ControlView*>(widget);
  return view != nullptr && RoleOf(view->control) == SpokenRole::Decoration;
}

}  // namespace

QString AccessibleWidget::text(QAccessible::Text which) const {
  if (which != QAccessible::Name) return QAccessibleWidget::text(which);
  const QString own = widget()->accessibleName();
  return own.isEmpty() ? widget()->window()->windowTitle() : own;
}

QList<QWidget*> AccessibleWidget::Children() const {
  QList<QWidget*> children;
  for (QObject* child : widget()->children()) {
    auto* as_widget = qobject_cast<QWidget*>(child);
    if (as_widget != nullptr && !IsPassedOver(as_widget)) children.append(as_widget);
  }
  return children;
}

int AccessibleWidget::childCount() const { return static_cast<int>(Children().size()); }

QAccessibleInterface* AccessibleWidget::child(int index) const {
  QWidget* widget = Children().value(index, nullptr);
  return widget == nullptr ? nullptr : QAccessible::queryAccessibleInterface(widget);
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  return static_cast<int>(Children().indexOf(qobject_cast<QWidget*>(child->object())));
}

// The last child is the uppermost.
QAccessibleInterface* AccessibleWidget::childAt(int x, int y) const {
  const QList<QWidget*> children = Children();
  const auto uppermost = std::find_if(children.crbegin(), children.crend(), [&](QWidget* child) {
    const QRect face(child->mapToGlobal(QPoint(0, 0)), child->size());
    return child->isVisible() && face.contains(x, y);
  });
  return uppermost == children.crend() ? nullptr
                                       : QAccessible::queryAccessibleInterface(*uppermost);
}

AccessibleControl::AccessibleControl(QWidget& widget, SpokenRole role)
    : AccessibleWidget(&widget, ToolkitRole(role)), role_(role) {}

ControlView* AccessibleControl::View() const { return dynamic_cast<ControlView*>(widget()); }

QString AccessibleControl::text(QAccessible::Text which) const {
  const ControlView* view = View();
  if (view == nullptr) return AccessibleWidget::text(which);
  const Orvane_Desk& desk = view->host.desk;
  switch (which) {
    case QAccessible::Name:
      return QString::fromStdString(NameNow(desk, view->control));
    case QAccessible::Description:
      return QString::fromStdString(DescriptionNow(desk, view->control));
    default:
      return AccessibleWidget::text(which);
  }
}

QAccessible::State AccessibleControl::state() const {
  QAccessible::State state = AccessibleWidget::state();
  const ControlView* view = View();
  if (view == nullptr) return state;
  state.readOnly = role_ == SpokenRole::Text || role_ == SpokenRole::Result;
  if (IsSwitch(role_)) {
    state.checkable = true;
    state.checked = LooksOn(view->control);
  }
  return state;
}

// The control itself, without what is painted around it.
QRect AccessibleControl::rect() const {
  const ControlView* view = View();
  if (view == nullptr) return AccessibleWidget::rect();
  const QRect face = view->FaceInWidget().toAlignedRect();
  return {widget()->mapToGlobal(face.topLeft()), face.size()};
}

QStringList AccessibleControl::OwnActions() const {
  const Control& control = View()->control;
  const bool answers = control.Handles(EventKind::Click) || control.Handles(EventKind::Press);
  if (!answers || role_ == SpokenRole::Picture || role_ == SpokenRole::List) return {};
  return {IsSwitch(role_) ? toggleAction() : pressAction()};
}

QStringList AccessibleControl::actionNames() const {
  const ControlView* view = View();
  if (view == nullptr || !view->control.IsOpenToUser()) return {};
  return OwnActions() + AccessibleWidget::actionNames();
}

// An action may open a box, which stays open as long as the user likes, and the reader waits for an
// answer. So the action runs after the answer.
void AccessibleControl::doAction(const QString& name) {
  if (name == setFocusAction()) {
    widget()->window()->activateWindow();
    widget()->setFocus();
    return;
  }
  if (!actionNames().contains(name)) return;
  QWidget* shown = widget();
  QTimer::singleShot(0, shown, [shown, name] {
    auto* self = dynamic_cast<AccessibleControl*>(QAccessible::queryAccessibleInterface(shown));
    if (self != nullptr) self->Do(name);
  });
}

void AccessibleControl::Do(const QString&) {
  if (ControlView* view = View()) PressAndClickInTheMiddle(view->host.desk, view->control);
}

}  // namespace orvane
