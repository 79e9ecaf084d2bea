// The menu strip and its drop-downs, made from the rows of a window's table.
#pragma once

#include <QHash>
#include <QMenuBar>

#include "controls/window.h"

namespace orvane {

class WindowWidget;

class MenuStrip : public QMenuBar {
 public:
  MenuStrip(WindowWidget& window, QWidget& desk);

  void Lay();
  void Take(Control& entry);  // something in an entry has changed
  QAction* ActionOf(const Control& entry) const { return actions_.value(&entry); }

 private:
  void Add(Control& entry);

  WindowWidget& window_;
  QHash<const Control*, QAction*> actions_;
  QHash<const Control*, QMenu*> menus_;
};

bool HasMenus(const Window& window);

}  // namespace orvane
