#include "desktop/windows/menu_strip.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>

#include "controls/spoken.h"
#include "desk/actions.h"
#include "desktop/look/spot.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "look/measures.h"

namespace orvane {
namespace {

constexpr std::string_view kBehindHairline = "ExitEntry";  // the way out is set apart

bool HasEntries(const Control& menu) {
  return std::ranges::any_of(menu.Owner.Controls, [&](const Control* control) {
    return control->Parent == &menu && control->Row.Kind == ControlKind::MenuEntry;
  });
}

}  // namespace

bool HasMenus(const Window& window) {
  return std::ranges::any_of(window.Controls, [](const Control* control) {
    return control->Row.Kind == ControlKind::MenuEntry;
  });
}

MenuStrip::MenuStrip(WindowWidget& window, QWidget& desk) : QMenuBar(&desk), window_(window) {
  setNativeMenuBar(false);
  setAccessibleName(QStringLiteral("Menus"));
  for (Control* control : window_.shown.Controls) {
    if (control->Row.Kind == ControlKind::MenuEntry) Add(*control);
  }
}

void MenuStrip::Add(Control& entry) {
  QWidget* above = this;
  if (entry.Parent != nullptr) above = menus_.value(entry.Parent);
  QAction* action = nullptr;
  if (HasEntries(entry)) {
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    menus_.insert(&entry, menu);
    action = menu->menuAction();
    connect(menu, &QMenu::aboutToShow, this, [this, &entry] { Click(window_.skin.desk, entry); });
    menu->setObjectName(QString::fromStdString(entry.FullName()) + QStringLiteral(".menu"));
  } else {
    action = new QAction(this);
    connect(action, &QAction::triggered, this, [this, &entry] { Click(window_.skin.desk, entry); });
  }
  if (entry.Row.Name == kBehindHairline) {
    auto* hairline = new QAction(this);
    hairline->setSeparator(true);
    above->addAction(hairline);
  }
  above->addAction(action);
  actions_.insert(&entry, action);
  action->setObjectName(QString::fromStdString(entry.FullName()));
  Take(entry);
}

void MenuStrip::Take(Control& entry) {
  QAction* action = actions_.value(&entry);
  action->setText(QString::fromStdString(entry.Caption));
  if (QMenu* menu = menus_.value(&entry)) {
    menu->setAccessibleName(QString::fromStdString(SpokenName(entry)));
  }
  action->setEnabled(entry.Enabled);
  action->setVisible(entry.Visible);
  const std::string_view tip = entry.Row.Tip;
  action->setToolTip(QString::fromUtf8(tip.data(), static_cast<qsizetype>(tip.size())));
}

void MenuStrip::Lay() {
  const double factor = window_.scale.Factor;
  setProperty("factor", factor);
  for (QMenu* menu : std::as_const(menus_)) menu->setProperty("factor", factor);
  setGeometry(SpotOf(window_.scale, {0, 0, window_.PlanWidth(), measures::kStripTwips}, 0).Hull);
  // The sizes of the entries depend on the factor.
  QEvent changed(QEvent::StyleChange);
  QCoreApplication::sendEvent(this, &changed);
}

}  // namespace orvane
