#include "random/windows/agreement.h"

#include <QAbstractSlider>
#include <QAction>
#include <QLineEdit>

#include "controls/kinds.h"
#include "controls/scroll_bar.h"
#include "controls/spoken.h"
#include "controls/surface.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/picture_widget.h"
#include "desktop/widgets/row_list.h"
#include "desktop/windows/menu_strip.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"

namespace orvane {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The picture and the pair in its place are named by what they show, but only once a screen reader
// listens.
bool IsCalledByWhatItShows(const ControlView& view) {
  const MainWindow& main = view.host.desk.main;
  return &view.control == &main.Picture1 || &view.control == &main.P_Sterio;
}

Qt::CursorShape ShapeOf(int pointer) {
  return pointer == kPointerCross       ? Qt::CrossCursor
         : pointer == kPointerHourglass ? Qt::WaitCursor
                                        : Qt::ArrowCursor;
}

std::string EntryDiffers(const WindowWidget& window, const Control& entry) {
  const QAction* action = window.strip->ActionOf(entry);
  if (action == nullptr) return "is on no menu";
  if (action->text() != Text(entry.Caption.Get())) return "reads otherwise";
  if (action->isVisible() != entry.Visible) return "is visible or not";
  if (action->isEnabled() != (entry.Enabled && entry.Visible)) return "is enabled or not";
  return "";
}

std::string ListDiffers(const RowList& shown, const List& list) {
  const auto& rows = list.Rows.Get();
  if (shown.Rows().size() != static_cast<qsizetype>(rows.size())) return "has other rows";
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (shown.Rows()[static_cast<qsizetype>(row)] != Text(rows[row])) return "has another row";
  }
  return shown.ChosenRow() == list.ListIndex ? "" : "has another row chosen";
}

std::string ViewDiffers(const ControlView& view) {
  const Control& control = view.control;
  const QWidget& widget = view.widget;
  if (widget.isHidden() == control.Visible) return "is visible or not";
  if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled) return "is enabled or not";
  if (!IsCalledByWhatItShows(view) && widget.accessibleName() != Text(SpokenName(control))) {
    return "is spoken otherwise";
  }
  if (widget.size().isEmpty() && control.At.Get().Width > 0) return "has no size";
  if (control.Row.Kind == ControlKind::List) {
    return ListDiffers(dynamic_cast<const RowList&>(widget), dynamic_cast<const List&>(control));
  }
  if (control.Row.Kind == ControlKind::ScrollBar) {
    const auto& bar = dynamic_cast<const ScrollBar&>(control);
    const auto& shown = dynamic_cast<const QAbstractSlider&>(widget);
    if (shown.value() != bar.Value) return "stands at another value";
    if (shown.minimum() != bar.Range.Min || shown.maximum() != bar.Range.Max) {
      return "has another range";
    }
  }
  if (control.Row.Kind == ControlKind::TextBox) {
    const auto& box = dynamic_cast<const TextBox&>(control);
    if (dynamic_cast<const QLineEdit&>(widget).text() != Text(box.Text.Get())) {
      return "holds another text";
    }
  }
  return "";
}

std::shared_ptr<const Picture> PictureOf(const Control& control) {
  if (const auto* box = dynamic_cast<const PictureBox*>(&control)) return box->Image();
  if (const auto* image = dynamic_cast<const ImageBox*>(&control)) return image->Shown();
  return nullptr;
}

// Compares a picture on the screen, or a half of a split view, with a newly made one.
std::string PixelsDiffer(ControlView& view) {
  auto* shown = dynamic_cast<PictureWidget*>(&view);
  if (shown == nullptr || !shown->isVisible()) return "";
  const QImage pixels = shown->Pixels();
  const auto picture = PictureOf(view.control);
  if (pixels.isNull()) return "";
  QImage anew(pixels.size(), QImage::Format_RGB32);
  if (picture == nullptr || picture->Width == 0) {
    anew.fill(Qt::black);
    return pixels == anew ? "" : "shows a picture that it was not given";
  }
  Raster().Paint(*picture, static_cast<double>(anew.width()) / picture->Width,
                 reinterpret_cast<std::uint32_t*>(anew.bits()), anew.width(), anew.height(),
                 static_cast<int>(anew.bytesPerLine() / 4));
  return pixels == anew ? "" : "shows another picture";
}

std::string WindowDiffers(Skin& skin, Window& shown, bool thorough) {
  WindowWidget& window = skin.WindowOf(shown);
  if (window.isVisible() != shown.Visible) return shown.Name + " is visible or not";
  if (window.windowTitle() != Text(shown.Caption.Get())) return shown.Name + " has another title";
  if (window.cursor().shape() != ShapeOf(shown.MousePointer)) {
    return shown.Name + " has another pointer";
  }
  for (Control* control : shown.Controls) {
    std::string differs;
    if (control->Row.Kind == ControlKind::MenuEntry) {
      differs = EntryDiffers(window, *control);
    } else if (ControlView* view = window.ViewOf(*control)) {
      differs = ViewDiffers(*view);
      if (thorough && differs.empty()) differs = PixelsDiffer(*view);
    }
    if (!differs.empty()) return control->FullName() + " " + differs;
  }
  return "";
}

}  // namespace

std::string WhatDiffers(Skin& skin, bool thorough) {
  for (Window* window : skin.desk.windows) {
    if (!window->WasShown) continue;  // it has no widgets yet
    std::string differs = WindowDiffers(skin, *window, thorough);
    if (!differs.empty()) return differs;
  }
  return "";
}

}  // namespace orvane
