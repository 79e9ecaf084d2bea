// What a screen reader finds at one of our widgets: its words, its role and state, what may be done
// to it, and those of its children that say something.
#pragma once

#include <QAccessibleWidget>

#include "controls/spoken.h"

namespace orvane {

class ControlView;

// A window, or the background on which its controls stand.
class AccessibleWidget : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text which) const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

 private:
  QList<QWidget*> Children() const;  // without ornaments and flyouts
};

// A control. Its words come from the logic; a reader may do to it what the user may do.
class AccessibleControl : public AccessibleWidget {
 public:
  AccessibleControl(QWidget& widget, SpokenRole role);

  QString text(QAccessible::Text which) const override;
  QAccessible::State state() const override;
  QRect rect() const override;
  QStringList actionNames() const override;
  void doAction(const QString& name) override;

 protected:
  // Null for a widget that is being destroyed: it is no longer a view but may still be asked.
  ControlView* View() const;
  virtual QStringList OwnActions() const;  // the first is what a click does
  virtual void Do(const QString& name);    // after the reader has its answer

  const SpokenRole role_;
};

// From now on our widgets are read as above.
void InstallAccessibleWidgets();

}  // namespace orvane
