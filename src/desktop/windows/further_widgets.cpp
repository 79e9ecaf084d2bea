#include "desktop/windows/further_widgets.h"

#include "controls/kinds.h"
#include "desktop/widgets/file_list_widget.h"
#include "desktop/widgets/go_on_widget.h"
#include "desktop/widgets/line_widget.h"
#include "desktop/widgets/link_widget.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/plot_frame.h"
#include "desktop/widgets/plot_label.h"
#include "desktop/widgets/reading_text.h"
#include "desktop/widgets/still_pictures.h"
#include "look/dress.h"

namespace orvane {
namespace {

ControlView* MakePlotView(Host& window, Control& control, QWidget& parent) {
  switch (control.Row.Kind) {
    case ControlKind::Frame:
      return new PlotFrame(window, control, parent);
    case ControlKind::PictureBox:
      return new MapAreaWidget(window, control, parent);
    case ControlKind::Label:
    case ControlKind::Panel:
      return new PlotLabel(window, control, parent);
    case ControlKind::Line:
      return new LineWidget(window, control, parent);
    case ControlKind::ImageBox:
      return new IconWidget(window, control, parent);
    default:
      return nullptr;
  }
}

}  // namespace

ControlView* MakeFurtherView(Host& window, Control& control, QWidget& parent) {
  if (control.Owner.Name == "Ramachandran") return MakePlotView(window, control, parent);
  if (auto* list = dynamic_cast<FileList*>(&control)) return MakeFileList(window, *list, parent);
  switch (DressOf(control).Shape) {
    case DressShape::GoOn:
      return new GoOnWidget(window, control, parent);
    case DressShape::Icon:
      return new IconWidget(window, control, parent);
    case DressShape::Link:
      return new LinkWidget(window, control, parent);
    case DressShape::Reading:
      return new ReadingText(window, control, parent);
    case DressShape::Greek:
      return new GreekLetter(window, control, parent);
    case DressShape::RoundPicture:
      return new RoundPicture(window, control, parent);
    default:
      return nullptr;
  }
}

}  // namespace orvane
