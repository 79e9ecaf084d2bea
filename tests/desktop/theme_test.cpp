#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

#include "desktop/look/fonts.h"
#include "look/palette.h"
#include "window_fixture.h"

namespace orvane {
namespace {

QPalette Dark() {
  QPalette colours;
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    colours.setColor(static_cast<QPalette::ColorRole>(role), QColor(20, 20, 20));
  }
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    colours.setColor(role, QColor(250, 0, 250));
  }
  return colours;
}

TEST(Theme, ADarkDesktopChangesNoPixelOfTheWindow) {
  WindowAtWork work;
  const QPalette own = QApplication::palette();
  const QImage before = work.Shot();

  QApplication::setPalette(Dark());
  QApplication::processEvents();
  const QImage after = work.Shot();
  QApplication::setPalette(own);

  EXPECT_EQ(before, after);
}

TEST(Theme, TheDesktopsSettingsAreNotAskedFor) {
  EXPECT_FALSE(QApplication::desktopSettingsAware());
}

TEST(Theme, TheTypeIsTheEmbeddedOne) {
  const QFontInfo found(FontOf({11, 600}));

  EXPECT_EQ(found.family(), "Inter");
  EXPECT_EQ(found.weight(), 600);
}

// Four pixels, four in from the left, in the colour for which the box is.
TEST(Theme, EachBoxOfTheRgbFrameShowsItsColour) {
  WindowAtWork work;
  Click(work.desk, work.main.COL_RGB, Reach::Forced);
  ASSERT_TRUE(work.main.V_RGB_H.Visible);
  const QColor marks[] = {QColor::fromRgba(palette::kRedMark),
                          QColor::fromRgba(palette::kGreenMark),
                          QColor::fromRgba(palette::kBlueMark)};

  for (std::size_t i = 0; i < 3; ++i) {
    QWidget& box = work.WidgetOf(work.main.RGB_V[i]);
    const QImage shown = box.grab().toImage();
    EXPECT_EQ(QColor(shown.pixel(6, box.height() / 2)), marks[i]) << i;
  }
}

}  // namespace
}  // namespace orvane
