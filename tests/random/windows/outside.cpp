#include "random/windows/outside.h"

#include <utility>

#include <QDir>
#include <QFile>
#include <QPainter>

#include "desktop/outside/printed_page.h"
#include "desktop/windows/skin.h"

namespace orvane {

OutsideAtRandom::OutsideAtRandom() {
  const QDir home(folder_.path());
  home.mkpath(QStringLiteral("tunes/more"));
  for (const char* name : {"a.wav", "b.au", "tunes/c.wav", "tunes/d e.wav", "tunes/more/f.wav"}) {
    QFile tune(home.filePath(QLatin1String(name)));
    tune.open(QIODevice::WriteOnly);
  }
  qputenv("HOME", folder_.path().toUtf8());
}

void OutsideAtRandom::FailureBox(std::string_view text) {
  ++Failures;
  QtPlatform::FailureBox(text);
}

void OutsideAtRandom::LetEventsRun() {
  const bool was = std::exchange(IsLetting, true);
  QtPlatform::LetEventsRun();
  IsLetting = was;
}

void OutsideAtRandom::Wait(int) { LetEventsRun(); }

bool OutsideAtRandom::PrintWindow(Window& page) {
  if (!HasPrinter) return false;
  constexpr int kDots = 72;
  QImage paper(8 * kDots, 11 * kDots, QImage::Format_RGB32);
  QPainter painter(&paper);
  if (auto* own = dynamic_cast<PrintPage*>(&page)) {
    DrawPrintPage(painter, paper.rect(), kDots, *screen, *own);
  } else {
    DrawWindow(painter, paper.rect(), kDots, *screen, page);
  }
  return true;
}

std::string OutsideAtRandom::ProgramFolder() {
  return folder_.path().toStdString() + (SavesFail ? "/nowhere" : "");
}

int OutsideAtRandom::SoundOpen(const std::string&) {
  sound_is_open_ = SoundError == 0;
  return SoundError;
}

}  // namespace orvane
