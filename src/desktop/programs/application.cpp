#include "desktop/programs/application.h"

#include "desktop/look/look_style.h"

namespace orvane {
namespace {

// The desktop's settings are read while the application is being made.
int& WithoutDesktopSettings(int& count) {
  QApplication::setDesktopSettingsAware(false);
  return count;
}

}  // namespace

Application::Application(int& count, char** words)
    : QApplication(WithoutDesktopSettings(count), words) {
  setQuitOnLastWindowClosed(false);
  DressApplication(*this);
}

}  // namespace orvane
