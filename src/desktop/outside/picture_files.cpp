#include "desktop/outside/picture_files.h"

#include <algorithm>
#include <unistd.h>

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QStandardPaths>

#include "controls/surface.h"
#include "desktop/outside/screen.h"
#include "output/atomic_file.h"
#include "output/picture_gif.h"
#include "runtime/failure.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

constexpr int kJpegQuality = 75;

QImage Rastered(Screen& screen, const Picture& picture, QSize size) {
  if (size.isEmpty()) size = QSize(picture.Width, picture.Height);
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull()) FailMemory();
  screen.raster.Paint(picture, static_cast<double>(size.width()) / picture.Width,
                      reinterpret_cast<std::uint32_t*>(image.bits()), size.width(), size.height(),
                      static_cast<int>(image.bytesPerLine() / 4));
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
  QDir().mkpath(own);  // if there is none, the save fails and says so
  return own.toStdString();
}

QImage PictureOf(Screen& screen, Control& source) {
  const auto* surface = dynamic_cast<const PictureBox*>(&source);
  if (surface == nullptr) return screen.Grab(source);
  return Rastered(screen, *surface->Image(), screen.SizeOf(source));
}

void SavePictureFile(Screen& screen, const SaveRequest& request, const std::string& folder) {
  const QImage image = PictureOf(screen, *request.Source);
  if (image.isNull()) FailMemory();
  WriteAside(folder, request.Name, BytesOf(request, folder, image));
}

}  // namespace orvane
