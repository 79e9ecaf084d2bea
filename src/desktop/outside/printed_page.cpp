#include "desktop/outside/printed_page.h"

#include <algorithm>
#include <cmath>

#include <QPrinter>
#include <QPrinterInfo>

#include "controls/kinds.h"
#include "desktop/look/fonts.h"
#include "desktop/outside/screen.h"
#include "look/page_captions.h"
#include "look/palette.h"
#include "runtime/no_memory.h"
#include "windows/print_page.h"

namespace orvane {
namespace {

// Finer pixels cannot be seen, and twice the density takes four times the memory.
constexpr int kMostDots = 600;

// The plan of a window on the paper.
struct Sheet {
  QRectF Area;
  double Twip;  // painter's pixels

  QRectF On(const Place& at) const {
    return {Area.left() + at.Left * Twip, Area.top() + at.Top * Twip, at.Width * Twip,
            at.Height * Twip};
  }
};

Sheet SheetOf(const QRectF& paper, const Place& plan) {
  const double twip = std::min(paper.width() / plan.Width, paper.height() / plan.Height);
  const double width = plan.Width * twip;
  return {
      QRectF(paper.left() + (paper.width() - width) / 2, paper.top(), width, plan.Height * twip),
      twip};
}

// The pixels of an image that is drawn over `pixels` of a printer with that many dots.
int ImagePixels(double pixels, int dots) {
  return std::max(1,
                  static_cast<int>(std::lround(pixels * std::min(1.0, kMostDots / (dots + 0.0)))));
}

bool Shows(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->Parent) {
    if (!c->Visible) return false;
  }
  return true;
}

void DrawCaption(QPainter& painter, const Sheet& sheet, const Control& control) {
  for (const PageCaption& row : PageCaptions()) {
    if (row.Control != control.Name) continue;
    const QString text = QString::fromStdString(control.Caption);
    Place at = control.At;
    if (row.Grows) {
      const int needed = static_cast<int>(std::ceil(WidthOf(row.Letters, text) * TwipsPerPixel));
      const int room = control.Owner.Row.At.Width - kPageRightMargin - at.Left;
      at.Width = std::min(std::max(at.Width, needed), room);
    }
    DrawLine(painter, sheet.On(at), AlignmentOf(row.Align), row.Letters, palette::kInk,
             sheet.Twip * TwipsPerPixel, text);
  }
}

void DrawPicture(QPainter& painter, const Sheet& sheet, int dots, Screen& screen,
                 const ImageBox& box) {
  const auto& picture = box.Shown();
  if (picture == nullptr || picture->Width == 0) return;
  const QRectF at = sheet.On(box.At);
  const int width = ImagePixels(at.width(), dots), height = ImagePixels(at.height(), dots);
  QImage image(width, height, QImage::Format_RGB32);
  if (image.isNull()) FailMemory();
  screen.raster.Paint(*picture, static_cast<double>(width) / picture->Width,
                      reinterpret_cast<std::uint32_t*>(image.bits()), width, height,
                      static_cast<int>(image.bytesPerLine() / 4));
  painter.drawImage(at, image);
}

// Keeps thin lines as they are, not smeared by lossy compression.
void PreparePainter(QPainter& painter) {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                         QPainter::LosslessImageRendering);
}

}  // namespace

void DrawPrintPage(QPainter& painter, const QRectF& paper, int dots, Screen& screen,
                   PrintPage& page) {
  PreparePainter(painter);
  const Sheet sheet = SheetOf(paper, page.Row.At);
  painter.fillRect(sheet.Area, Qt::white);
  for (const Control* control : page.Controls) {
    if (!Shows(*control)) continue;
    DrawCaption(painter, sheet, *control);
    if (const auto* box = dynamic_cast<const ImageBox*>(control)) {
      DrawPicture(painter, sheet, dots, screen, *box);
    }
  }
}

void DrawWindow(QPainter& painter, const QRectF& paper, int dots, Screen& screen, Window& window) {
  PreparePainter(painter);
  const Sheet sheet = SheetOf(paper, window.Row.At);
  const QSize size(ImagePixels(sheet.Area.width(), dots), ImagePixels(sheet.Area.height(), dots));
  painter.drawImage(sheet.Area, screen.GrabAs(window, size));
}

bool PrintOnPaper(Screen& screen, Window& window) {
  const QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
  if (chosen.isNull()) return false;
  QPrinter printer(chosen, QPrinter::HighResolution);
  printer.setDocName(QStringLiteral("Orvane"));
  QPainter painter;
  if (!printer.isValid() || !painter.begin(&printer)) return false;
  const QRectF paper(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
  if (auto* page = dynamic_cast<PrintPage*>(&window)) {
    DrawPrintPage(painter, paper, printer.resolution(), screen, *page);
  } else {
    DrawWindow(painter, paper, printer.resolution(), screen, window);
  }
  return painter.end() && printer.printerState() != QPrinter::Error;
}

}  // namespace orvane
