#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/programs/application.h"

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("ORVANE_TEST_PLATFORM", "offscreen").toUtf8());
  testing::InitGoogleTest(&count, words);
  orvane::Application application(count, words);
  return RUN_ALL_TESTS();
}
