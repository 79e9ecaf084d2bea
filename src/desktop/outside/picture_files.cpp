#include "desktop/outside/picture_files.h"

#include <algorithm>
#include <unistd.h>

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QStandardPaths>

#include "controls/surface.h"
#include "desktop/widgets/control_view.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "look/palette.h"
#include "output/atomic_file.h"
#include "output/picture_gif.h"
#include "runtime/failure.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

constexpr int kJpegQuality = 75;

QImage Rastered(Skin& skin, const Picture& picture, QSize size) {
  if (size.isEmpty()) size = QSize(picture.Width, picture.Height);
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull()) FailMemory();
  skin.raster.Paint(picture, static_cast<double>(size.width()) / picture.Width,
                    reinterpret_cast<std::uint32_t*>(image.bits()), size.width(), size.height(),
                    static_cast<int>(image.bytesPerLine() / 4));
  return image;
}

// The control's face alone: its widget may be larger by what is painted round it. The face's corner
// is a whole device pixel and the widget's need not be one, so the painter is moved to the face
// before anything is painted, and each part comes onto the pixels that it has on the screen. Round
// corners show the frame that surrounds the picture.
QImage Grabbed(Skin& skin, Control& source) {
  WindowWidget& window = skin.WindowOf(source.Owner);
  const ControlView* view = window.ViewOf(source);
  const Sight::Leaving leaving(skin.sight);
  if (view == nullptr) return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
  QImage image(view->Stand().Face.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(window.scale.Ratio);
  image.fill(palette::kBezel);
  QPainter painter(&image);
  painter.translate(-view->FaceInWidget().topLeft());
  view->widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

Bitmap BitmapOf(const QImage& image) {
  Bitmap bitmap{image.width(), image.height(), {}};
  bitmap.Words.reserve(static_cast<std::size_t>(image.width()) *
                       static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
    bitmap.Words.insert(bitmap.Words.end(), row, row + image.width());
  }
  return bitmap;
}

FileBytes WrittenBy(const char* format, const QImage& image, int quality) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, format);
  writer.setQuality(quality);
  if (!writer.write(image)) {
    FailPlatform("the picture could not be written: " + writer.errorString().toStdString());
  }
  return {bytes.begin(), bytes.end()};
}

FileBytes WithFrame(const SaveRequest& request, const std::string& folder, const Bitmap& picture) {
  const auto before = request.FirstFrame ? std::nullopt : ReadWhole(folder, request.Name);
  if (!before.has_value()) return AnimationOf(picture);
  auto after = WithOneMoreFrame(*before, picture);
  if (!after.has_value()) {
    FailPlatform(folder + "/" + request.Name +
                 " is not the animation that was begun, so no frame was added to it");
  }
  return *std::move(after);
}

FileBytes BytesOf(const SaveRequest& request, const std::string& folder, const QImage& image) {
  switch (request.Format) {
    case FileFormat::Bmp:
      return WrittenBy("bmp", image, -1);
    case FileFormat::Jpeg:
      return WrittenBy("jpg", image, kJpegQuality);
    case FileFormat::Gif:
      return GifOf(BitmapOf(image));
    case FileFormat::GifFrame:
      return WithFrame(request, folder, BitmapOf(image));
  }
  return {};
}

}  // namespace

std::string PictureFolder(const std::string& program_folder) {
  if (access(program_folder.c_str(), W_OK) == 0) return program_folder;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) +
                      QStringLiteral("/Orvane");
  QDir().mkpath(own);  // without it the save fails, and says so
  return own.toStdString();
}

QImage PictureOf(Skin& skin, Control& source) {
  const auto* surface = dynamic_cast<const PictureBox*>(&source);
  if (surface == nullptr) return Grabbed(skin, source);
  const ControlView* view = skin.WindowOf(source.Owner).ViewOf(source);
  return Rastered(skin, *surface->Image(), view->Stand().Face.size());
}

void SavePictureFile(Skin& skin, const SaveRequest& request, const std::string& folder) {
  const QImage image = PictureOf(skin, *request.Source);
  if (image.isNull()) FailMemory();
  WriteAside(folder, request.Name, BytesOf(request, folder, image));
}

}  // namespace orvane
