// A list for a screen reader: its rows are painted, and each is a child that can be read and
// chosen.
#pragma once

#include <unordered_map>

#include "desktop/reader/accessible_widget.h"

namespace orvane {

class RowList;

class AccessibleList : public AccessibleControl {
 public:
  using AccessibleControl::AccessibleControl;
  ~AccessibleList() override;

  RowList* Rows() const;

  int childCount() const override;
  QAccessibleInterface* child(int row) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  mutable std::unordered_map<int, QAccessible::Id> rows_;  // the rows that were asked for
};

class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleRow(const AccessibleList& list, int row) : row_(row), list_(list) {}

  int Row() const { return row_; }

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return list_.window(); }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text which) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const int row_;
  const AccessibleList& list_;
};

}  // namespace orvane
