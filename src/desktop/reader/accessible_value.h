// Controls with a value, for a screen reader: a bar, and the closed list of the drives.
#pragma once

#include "desktop/reader/accessible_widget.h"

namespace orvane {

class BarWidget;

class AccessibleBar : public AccessibleControl, public QAccessibleValueInterface {
 public:
  using AccessibleControl::AccessibleControl;

  QString text(QAccessible::Text which) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

 protected:
  QStringList OwnActions() const override;
  void Do(const QString& name) override;

 private:
  BarWidget* Bar() const;
};

// Its value is the open drive; a press opens the menu of all drives.
class AccessibleDrives : public AccessibleControl {
 public:
  using AccessibleControl::AccessibleControl;

  QString text(QAccessible::Text which) const override;
  QAccessible::State state() const override;

 protected:
  QStringList OwnActions() const override;
  void Do(const QString& name) override;
};

}  // namespace orvane
