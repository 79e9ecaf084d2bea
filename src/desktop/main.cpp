// The desktop program.
#include <memory>

#include <QApplication>

#include "desktop/icon.h"
#include "desktop/look_style.h"
#include "desktop/qt_platform.h"
#include "desktop/skin.h"

int main(int count, char** words) {
  QApplication::setDesktopSettingsAware(false);
  QApplication application(count, words);
  QApplication::setApplicationName(QStringLiteral("Orvane"));
  QApplication::setQuitOnLastWindowClosed(false);
  orvane::DressApplication(application);
  QApplication::setWindowIcon(orvane::ProgramIcon());

  orvane::QtPlatform platform;
  const auto desk = std::make_unique<orvane::Orvane_Desk>(platform);
  orvane::Skin skin(*desk, platform);
  skin.ShowWindows();
  return QApplication::exec();
}
