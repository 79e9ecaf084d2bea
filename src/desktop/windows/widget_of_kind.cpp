#include "desktop/windows/widget_of_kind.h"

#include "controls/kinds.h"
#include "controls/scroll_bar.h"
#include "desktop/widgets/bar_widget.h"
#include "desktop/widgets/keyed_picture.h"
#include "desktop/widgets/list_widget.h"
#include "desktop/widgets/picture_widget.h"
#include "desktop/widgets/plate.h"
#include "desktop/widgets/tab_widget.h"
#include "desktop/widgets/text_widget.h"
#include "desktop/windows/further_widgets.h"
#include "look/dress.h"

namespace orvane {

ControlView* MakeView(Host& window, Control& control, QWidget& parent) {
  if (ControlView* own = MakeFurtherView(window, control, parent)) return own;
  switch (control.Row.Kind) {
    case ControlKind::Timer:
    case ControlKind::MenuEntry:
    case ControlKind::Window:
      return nullptr;
    case ControlKind::List:
      return new ListWidget(window, dynamic_cast<List&>(control), parent);
    case ControlKind::ScrollBar:
      return new BarWidget(window, dynamic_cast<ScrollBar&>(control), parent);
    case ControlKind::TextBox:
      return new TextWidget(window, dynamic_cast<TextBox&>(control), parent);
    case ControlKind::PictureBox:
      if (control.Row.TabStop > 0) return new KeyedPicture(window, control, parent);
      [[fallthrough]];
    case ControlKind::ImageBox:
      return new PictureWidget(window, control, parent);
    default:
      break;
  }
  if (DressOf(control).Shape == DressShape::Tab) return new TabWidget(window, control, parent);
  return new Plate(window, control, parent);
}

}  // namespace orvane
