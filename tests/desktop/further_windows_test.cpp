// The windows before and beside the desk: every control is there and in its place.
#include <gtest/gtest.h>

#include <QScreen>

#include "desktop/look/fonts.h"
#include "desktop/look/icon.h"
#include "desktop/widgets/plot_label.h"
#include "desktop/widgets/reading_text.h"
#include "program_fixture.h"

namespace orvane {
namespace {

TEST(FurtherWindows, EveryControlHasAWidgetWithItsName) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  for (Window* window :
       std::initializer_list<Window*>{&desk.front, &desk.content, &desk.author, &desk.plot}) {
    for (const Control* control : window->Controls) {
      if (control->Row.Kind == ControlKind::Timer) continue;
      const QString name = QString::fromStdString(control->FullName());
      EXPECT_NE(program.WindowOf(*window).findChild<QWidget*>(name), nullptr) << name.toStdString();
    }
  }
}

TEST(FurtherWindows, NothingToClickLacksWords) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  for (Window* window :
       std::initializer_list<Window*>{&desk.front, &desk.content, &desk.author, &desk.plot}) {
    for (const Control* control : window->Controls) {
      if (control->Row.TabStop == 0) continue;
      EXPECT_NE(program.WidgetOf(*control).accessibleName(), "") << control->FullName();
      EXPECT_NE(program.WidgetOf(*control).toolTip(), "") << control->FullName();
    }
  }
}

TEST(FurtherWindows, TheKeyboardStartsOnTheWayIn) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  const auto keyboard = [&](Window& window) { return program.WindowOf(window).focusWidget(); };

  EXPECT_EQ(keyboard(desk.front), &program.WidgetOf(desk.front.Get_in));
  EXPECT_EQ(keyboard(desk.content), &program.WidgetOf(desk.content.Get_in));
  EXPECT_EQ(keyboard(desk.author), &program.WidgetOf(desk.author.Get_in));
}

TEST(FurtherWindows, AWindowOfFixedSizeCannotBeStretched) {
  ProgramAtWork program;
  WindowWidget& splash = program.WindowOf(program.desk.front);

  EXPECT_EQ(splash.minimumSize(), splash.maximumSize());
}

TEST(Reading, ALineBreaksWhereTheNextWordWouldNotFit) {
  const Type type{13, 500};
  const double width = WidthOf(type, "one two");

  EXPECT_EQ(BrokenLines(type, "one two three", width), QStringList({"one two", "three"}));
  EXPECT_EQ(BrokenLines(type, "one two three", width - 1), QStringList({"one", "two", "three"}));
}

TEST(Reading, DoubledBlanksInALineAreKept) {
  EXPECT_EQ(BrokenLines({13, 500}, "two  words", 1000), QStringList{"two  words"});
}

TEST(Reading, NoLineBreaksInTheGapOfALetter) {
  const Type type{13, 500};
  const double width = WidthOf(type, "stick, C");

  EXPECT_EQ(BrokenLines(type, "stick, C  -trace, Ribbon", width),
            QStringList({"stick,", "C  -trace,", "Ribbon"}));
}

TEST(Reading, NoLineOfTheOverviewIsWiderThanItsBoxAndNoneIsLost) {
  ProgramAtWork program;
  for (Panel& panel : program.desk.content.Text) {
    const auto& text = dynamic_cast<ReadingText&>(program.ViewOf(panel));
    const int weight = panel.Index == 0 ? 600 : 500;
    QString joined;
    for (const QString& line : text.Lines()) {
      EXPECT_LE(WidthOf({13, weight}, line.trimmed()), panel.At.Get().Width / 15.0);
      joined += line;
    }
    QString whole = QString::fromStdString(panel.Caption);
    EXPECT_EQ(joined.remove(' '), whole.remove(' '));
    EXPECT_LE(static_cast<int>(text.Lines().size()) * 16 * 15, panel.At.Get().Height + 240);
  }
}

TEST(Reading, TheGreekLetterIsInTheGapAfterTheC) {
  ProgramAtWork program;
  program.ClickOn(program.desk.front.Get_in);
  WindowWidget& window = program.WindowOf(program.desk.content);
  const auto& text = dynamic_cast<ReadingText&>(program.ViewOf(program.desk.content.Text[2]));
  const QRectF gap = text.Gap();
  const double ratio = window.scale.Ratio;

  const QRect letter = program.WidgetOf(program.desk.content.Greek).geometry();

  ASSERT_FALSE(gap.isEmpty());
  EXPECT_NEAR(letter.center().x(), gap.center().x() / ratio, 1.5);
  EXPECT_NEAR(letter.center().y(), gap.center().y() / ratio, 1.5);
  // It has been drawn there: half of the gap's columns are no longer plain white.
  const QImage shot = window.grab().toImage();
  int inked = 0;
  for (int x = static_cast<int>(gap.left()); x < gap.right(); ++x) {
    for (int y = static_cast<int>(gap.top()); y < gap.bottom(); ++y) {
      if (qGray(shot.pixel(x, y)) > 128) continue;
      ++inked;
      break;
    }
  }
  EXPECT_GE(inked, static_cast<int>(gap.width()) / 2);
}

TEST(Icon, HasADarkGroundRoundCornersAndARedAtom) {
  for (const int side : {16, 64, 256}) {
    const QImage image = ProgramIcon().pixmap(side, side).toImage();
    ASSERT_EQ(image.width(), side);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    const QColor middle = image.pixelColor(side / 2, side / 2);
    EXPECT_GT(middle.red(), 200);
    EXPECT_LT(middle.green(), 110);
    EXPECT_LT(image.pixelColor(side / 2, side - side / 16 - 1).lightness(), 60);
  }
}

}  // namespace
}  // namespace orvane
