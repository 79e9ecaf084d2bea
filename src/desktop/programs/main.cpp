// The desktop program.
#include <memory>
#include <new>
#include <string>

#include <QApplication>
#include <QTimer>

#include "desktop/look/icon.h"
#include "desktop/outside/qt_platform.h"
#include "desktop/programs/application.h"
#include "desktop/windows/skin.h"
#include "runtime/no_memory.h"
#include "shell/start_up.h"

namespace {

// Milliseconds. The icon is painted in eight sizes, which takes as long as the whole first window,
// so the window comes first.
constexpr int kIconAfter = 200;

}  // namespace

int main(int count, char** words) {
  orvane::Application application(count, words);
  QApplication::setApplicationName(QStringLiteral("Orvane"));
  // The desktop entry that gives a window its icon where windows have none of their own.
  QGuiApplication::setDesktopFileName(QStringLiteral("orvane"));

  orvane::QtPlatform platform;
  const auto desk = orvane::StartDesk(platform);
  orvane::Skin skin(*desk, platform);
  try {
    skin.ShowWindows();
  } catch (const std::bad_alloc&) {
    platform.FailureBox(std::string("Orvane could not be started: ") + orvane::kNoMemory + ".");
    return 1;
  }
  QTimer::singleShot(kIconAfter, [] { QApplication::setWindowIcon(orvane::ProgramIcon()); });
  return QApplication::exec();
}
