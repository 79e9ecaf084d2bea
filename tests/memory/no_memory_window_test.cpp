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

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, words);
  orvane::Application application(count, words);
  return RUN_ALL_TESTS();
}
