// A text box: one line of text that the user types.
#pragma once

#include <QLineEdit>

#include "controls/kinds.h"
#include "desktop/widgets/control_view.h"

namespace orvane {

class TextWidget : public Viewed<QLineEdit> {
 public:
  TextWidget(Host& owner, TextBox& shown, QWidget& parent);

  void Take(Aspect aspect) override;
  void Lay() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TextBox& box_;
};

}  // namespace orvane
