#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/look_style.h"

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("ORVANE_TEST_PLATFORM", "offscreen").toUtf8());
  testing::InitGoogleTest(&count, words);
  QApplication::setDesktopSettingsAware(false);
  QApplication application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  orvane::DressApplication(application);
  return RUN_ALL_TESTS();
}
