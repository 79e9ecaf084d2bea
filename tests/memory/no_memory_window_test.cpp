// A picture in its window when there is no memory to paint it.
#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/programs/application.h"
#include "desktop/widgets/picture_widget.h"
#include "desktop/window_fixture.h"
#include "memory/memory_that_runs_out.h"

namespace orvane {
namespace {

// A structure with names that has not been shown yet.
struct Unseen : WindowAtWork {
  PictureWidget& widget = dynamic_cast<PictureWidget&>(WidgetOf(main.Picture1));

  Unseen() {
    SelectRow(desk, main.Pro_Lst, 1);
    Click(desk, main.Bt3_Label);
    platform.Effects.clear();
  }
};

TEST(NoMemoryForAWindow, IsReportedOnceAndThePictureComesBack) {
  const QImage expected = Unseen().widget.Pixels();
  ASSERT_FALSE(expected.isNull());
  int refusals = 0;
  for (long at = 1;; at += 1 + at / 4) {
    Unseen work;
    {
      const MemoryRunsOut none(at);
      work.widget.Pixels();
      work.widget.Pixels();
    }
    if (!MemoryRunsOut::HasRefused()) break;
    ++refusals;
    QTest::qWait(20);
    ASSERT_EQ(work.platform.Effects,
              std::vector<std::string>{"failure The picture could not be painted: there is not "
                                       "enough memory."})
        << at;
    ASSERT_EQ(work.widget.Pixels(), expected) << at;
  }
  EXPECT_GT(refusals, 10);
}

// What asks for a window is refused; the toolkit, which is not made to be refused in the midst of
// its work, has not been begun with.
TEST(NoMemoryForANewWindow, LeavesNoneHalfMade) {
  QuietPlatform platform;
  const auto desk = StartDesk(platform);
  Skin skin(*desk, platform);
  for (Window* window : {static_cast<Window*>(&desk->content), static_cast<Window*>(&desk->author),
                         static_cast<Window*>(&desk->main), static_cast<Window*>(&desk->plot)}) {
    const qsizetype windows = QApplication::topLevelWidgets().size();
    {
      const MemoryRunsOut none(1);
      EXPECT_THROW(window->Show(), std::bad_alloc) << window->Name;
      EXPECT_TRUE(MemoryRunsOut::HasRefused());
    }
    EXPECT_FALSE(window->Visible) << window->Name;
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows) << window->Name;
    window->Caption = "another";

    window->Show();
    EXPECT_TRUE(window->Visible) << window->Name;
    EXPECT_EQ(skin.WindowOf(*window).windowTitle(), "another");
    EXPECT_TRUE(skin.WindowOf(*window).isVisible()) << window->Name;
    window->Hide();
  }
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, words);
  orvane::Application application(count, words);
  return RUN_ALL_TESTS();
}
