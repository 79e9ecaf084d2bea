#include <gtest/gtest.h>

#include <QScreen>
#include <QWindow>

#include "window_fixture.h"

namespace orvane {
namespace {

QColor At(const QImage& shot, int x, int y) { return QColor(shot.pixel(x, y)); }

TEST(TheWindow, HasItsFixedSizeInTheMiddleOfTheScreen) {
  WindowAtWork work;
  const QPoint off =
      work.window.frameGeometry().center() - work.window.screen()->availableGeometry().center();

  EXPECT_EQ(work.window.size(), QSize(567, 485));
  EXPECT_LE(std::abs(off.x()), 1);
  EXPECT_LE(std::abs(off.y()), 1);
}

// Counts those who are told when a window comes to another screen. Only the window itself may ask
// the toolkit.
int HearersOfTheScreen(const QWindow& window) {
  struct Ask : QWindow {
    using QWindow::receivers;
  };
  int (QObject::*const ask)(const char*) const = &Ask::receivers;
  return (window.*ask)(SIGNAL(screenChanged(QScreen*)));
}

TEST(TheWindow, HearsOnceOfAnotherScreenNoMatterHowOftenItWasShown) {
  WindowAtWork work;
  const int before = HearersOfTheScreen(*work.window.windowHandle());
  ASSERT_GE(before, 1);

  for (int i = 0; i < 3; ++i) {
    work.main.Visible = false;
    work.main.Visible = true;
  }

  EXPECT_EQ(HearersOfTheScreen(*work.window.windowHandle()), before);
}

TEST(TheWindow, IsLaidOutAgainOnAnotherScreen) {
  WindowAtWork work;
  QWidget& ground = work.window.Desk();
  ground.resize(10, 10);

  emit work.window.windowHandle()->screenChanged(work.window.screen());

  EXPECT_EQ(ground.size(), work.window.size());
}

TEST(TheWindow, ItsTitleIsTheCaption) {
  WindowAtWork work;
  EXPECT_EQ(work.window.windowTitle(), "Orvane (OVN) V3.0");

  work.main.Caption = "Orvane (OVN) v2.0: GLYCINE (GLY G)";

  EXPECT_EQ(work.window.windowTitle(), "Orvane (OVN) v2.0: GLYCINE (GLY G)");
}

TEST(TheWindow, ClosingItEndsTheProgramWithoutAsking) {
  WindowAtWork work;

  work.window.close();

  EXPECT_EQ(work.platform.Effects, std::vector<std::string>{"end"});
}

TEST(TheWindow, MaximisedTheDeskIsAsLargeAsTheScreenAllowsAndCentred) {
  WindowAtWork work;

  work.window.showMaximized();
  QApplication::processEvents();
  const QSize all = work.window.size();
  const double factor = std::min(all.width() / 567.0, all.height() / 485.0);
  if (factor == 1) GTEST_SKIP() << "nobody maximises windows on this screen";

  EXPECT_DOUBLE_EQ(work.window.scale.Factor, factor);
  const QRect desk = work.window.Desk().geometry();
  EXPECT_NEAR(desk.width(), 567 * factor, 1);
  EXPECT_NEAR(desk.center().x(), all.width() / 2.0, 1);
  EXPECT_NEAR(desk.center().y(), all.height() / 2.0, 1);
}

TEST(TheWindow, MaximisedAPressIsStillInPixelsOfTheSurface) {
  WindowAtWork work;
  Heard presses(work.main.Picture1, EventKind::Press);
  work.window.showMaximized();
  QApplication::processEvents();
  const QPoint at(100, 200);

  QTest::mousePress(&work.WidgetOf(work.main.Picture1), Qt::LeftButton, {}, at);

  EXPECT_NEAR(presses.Last.X, 100 / work.window.scale.Factor, 0.01);
  EXPECT_NEAR(presses.Last.Y, 200 / work.window.scale.Factor, 0.01);
}

TEST(TheWindow, BackFromTheMaximisedStateItHasItsFixedSizeAgain) {
  WindowAtWork work;
  work.window.showMaximized();
  QApplication::processEvents();

  work.window.showNormal();
  QApplication::processEvents();

  EXPECT_EQ(work.window.size(), QSize(567, 485));
  EXPECT_DOUBLE_EQ(work.window.scale.Factor, 1);
}

TEST(TheWindow, OffOnAndDisabledDifferInGreyToo) {
  WindowAtWork work;
  work.main.Bt3_Label.Caption = "Label On";
  const QImage shot = work.Shot();
  const auto corner = [&](const Control& c) {
    const QRect face = work.ViewOf(c).Stand().Face;
    return qGray(shot.pixel(face.left() + 5, face.center().y() - 6));
  };

  const int off = corner(work.main.Bt3_HBD), on = corner(work.main.Bt3_Label),
            disabled = corner(work.main.Bt3_Isomers);
  EXPECT_GE(off - on, 15);
  EXPECT_GE(off - disabled, 15);
  // On and disabled differ by their edge: the disabled one has none.
  const auto edge = [&](const Control& c) {
    const QRect face = work.ViewOf(c).Stand().Face;
    return qGray(shot.pixel(face.left(), face.center().y()));
  };
  EXPECT_GE(edge(work.main.Bt3_Isomers) - edge(work.main.Bt3_Label), 60);
}

TEST(TheWindow, ThePlaceOfThePictureIsDarkInASplitView) {
  WindowAtWork work;
  work.main.P_Pic1.Visible = false;

  const QImage shot = work.Shot();

  // The four edges of the picture's square: 48 to 417, 44 to 413.
  EXPECT_EQ(At(shot, 232, 48), QColor("#18232C"));
  EXPECT_EQ(At(shot, 52, 228), QColor("#18232C"));
  EXPECT_EQ(At(shot, 412, 228), QColor("#18232C"));
  EXPECT_EQ(At(shot, 232, 409), QColor("#18232C"));
}

TEST(TheWindow, AFloatingPanelLiesOverTheSplitViewsAndLeavesNoTrace) {
  WindowAtWork work;
  work.main.P_Pic1.Visible = false;
  work.main.P_Sterio.Visible = true;
  work.main.P_Sterio.BringToFront();
  const QImage before = work.Shot();

  work.main.P_Clr_Holder.Visible = true;
  EXPECT_EQ(At(work.Shot(), 100, 66), QColor("#EDF1F4"));
  work.main.P_Clr_Holder.Visible = false;

  EXPECT_EQ(work.Shot(), before);
}

}  // namespace
}  // namespace orvane
