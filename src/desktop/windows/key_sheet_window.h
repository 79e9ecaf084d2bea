// The window of the sheet behind F1. Escape, F1 or its frame close it. It opens beside the other
// windows and does not block them.
#pragma once

#include <vector>

#include <QPointer>
#include <QWidget>

#include "commands/key_sheet.h"

namespace orvane {

class KeySheetWindow : public QWidget {
 public:
  KeySheetWindow();

  void Turn();  // shows it, or closes it when it shows

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  std::vector<SheetSection> sections_ = KeySheet();
  QPointer<QWidget> from_;  // the window that had the keyboard
};

}  // namespace orvane
