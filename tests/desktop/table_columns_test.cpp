// The skin reads each column of a control's row and knows none of them besides: a window that the
// program does not have is shown as its table says.
#include <gtest/gtest.h>

#include <QAbstractSlider>
#include <QAccessible>

#include "controls/every_column.h"
#include "window_fixture.h"

namespace orvane {
namespace {

struct MadeUpAtWork : testing::Test {
  QuietPlatform platform;
  std::unique_ptr<Orvane_Desk> desk = StartDesk(platform);
  MadeUpWindow made;
  std::unique_ptr<Skin> skin;

  MadeUpAtWork() {
    desk->windows.push_back(&made);
    skin = std::make_unique<Skin>(*desk, platform);
  }
  ~MadeUpAtWork() override {
    skin.reset();
    desk->windows.pop_back();
  }
  QWidget& WidgetOf(const Control& control) { return *skin->WidgetOf(control); }
};

using TheSkin = MadeUpAtWork;

TEST_F(TheSkin, ReadsNameTitleContainerAndPlace) {
  skin->ShowWindows();  // a window is laid out when it comes
  WindowWidget& window = skin->WindowOf(made);
  EXPECT_EQ(window.windowTitle(), "Made up");
  EXPECT_EQ(WidgetOf(made.Third).objectName(), "Made.Third");
  EXPECT_EQ(WidgetOf(made.Third).parentWidget(), &WidgetOf(made.Holder));
  // 75 and 90 twips within the holder at 150 and 300; 15 are a pixel.
  const QRect expected = RectOf(window.scale.Device(Place{225, 390, 1050, 300}));
  EXPECT_EQ(window.ViewOf(made.Third)->Stand().Face, expected);
}

TEST_F(TheSkin, ReadsWhetherAControlShowsAndAnswers) {
  EXPECT_TRUE(WidgetOf(made.Hidden).isHidden());
  EXPECT_FALSE(WidgetOf(made.Third).isHidden());
  EXPECT_FALSE(WidgetOf(made.Second).isEnabled());
  EXPECT_TRUE(WidgetOf(made.Third).isEnabled());
}

TEST_F(TheSkin, ReadsKindAndLook) {
  EXPECT_NE(qobject_cast<QAbstractSlider*>(&WidgetOf(made.Bar)), nullptr);
  EXPECT_EQ(qobject_cast<QAbstractSlider*>(&WidgetOf(made.Third)), nullptr);
  skin->WindowOf(made);
  EXPECT_NE(WidgetOf(made.Flat).grab().toImage(), WidgetOf(made.Sunk).grab().toImage());
}

TEST_F(TheSkin, ReadsWordsForEyesAndEars) {
  EXPECT_EQ(WidgetOf(made.Third).toolTip(), "Do what is odd");
  EXPECT_EQ(WidgetOf(made.Third).accessibleName(), "Odd words");
  EXPECT_EQ(WidgetOf(made.Bar).accessibleName(), "An odd bar");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&WidgetOf(made.Word))->role(),
            QAccessible::Heading);
}

TEST_F(TheSkin, ReadsTheTabOrder) {
  EXPECT_EQ(WidgetOf(made.Flat).focusPolicy(), Qt::NoFocus);
  std::vector<const QWidget*> stops;
  const QWidget* const first = &WidgetOf(made.Bar);
  const QWidget* widget = first;
  do {
    if (widget->focusPolicy() == Qt::StrongFocus) stops.push_back(widget);
    widget = widget->nextInFocusChain();
  } while (widget != first);
  EXPECT_EQ(stops,
            (std::vector<const QWidget*>{first, &WidgetOf(made.Second), &WidgetOf(made.Third)}));
}

TEST_F(TheSkin, ReadsRangeStepsAndStartOfABar) {
  const auto& bar = dynamic_cast<QAbstractSlider&>(WidgetOf(made.Bar));
  EXPECT_EQ(bar.minimum(), -7);
  EXPECT_EQ(bar.maximum(), 90);
  EXPECT_EQ(bar.singleStep(), 3);
  EXPECT_EQ(bar.pageStep(), 11);
  EXPECT_EQ(bar.value(), 5);
}

// How long an interval lasts is measured with a timer that the program has; here the first tick
// comes.
TEST_F(TheSkin, TicksATimerOfAnyTable) {
  const Heard ticks(made.Clock, EventKind::Tick);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks.Count > 0; }));
}

}  // namespace
}  // namespace orvane
