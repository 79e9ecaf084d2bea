// The toolkit itself allocates the memory of its images, and says nothing when there is none.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "desktop/widgets/picture_widget.h"
#include "desktop/window_fixture.h"
#include "memory/little_room.h"

namespace orvane {
namespace {

struct NoPicture : testing::Test, WindowAtWork {
  QTemporaryDir folder;

  void SetUp() override {
    platform.Folder = folder.path().toStdString();
    SelectRow(desk, main.Pro_Lst, 1);
    platform.Effects.clear();
  }
  QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files); }
};

// Half of a pair has not been on the screen yet, so its image is still to be made.
TEST_F(NoPicture, OnTheScreenIsReportedOnceAndComesBack) {
  Click(desk, main.Bt3_Sterio);
  auto& widget = dynamic_cast<PictureWidget&>(WidgetOf(main.L_Img));
  {
    const LittleRoom room;
    EXPECT_TRUE(widget.Pixels().isNull());
    EXPECT_TRUE(widget.Pixels().isNull());
  }
  QTest::qWait(20);

  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{"failure The picture could not be painted: there is not "
                                     "enough memory."});
  EXPECT_FALSE(widget.Pixels().isNull());
}

TEST_F(NoPicture, ForAFileLeavesNoFileAndTheNextSaveWorks) {
  for (MenuEntry* save : {&main.S_bmp, &main.S_JPG, &main.S_Gif}) {
    platform.Answers = {"abc", "abc"};
    {
      const LittleRoom room;
      Click(desk, *save);
    }
    ASSERT_FALSE(platform.Effects.empty()) << save->Name;
    EXPECT_TRUE(
        platform.Effects.back().ends_with("could not be finished: there is not enough memory."))
        << platform.Effects.back();
    EXPECT_EQ(Files(), QStringList()) << save->Name;

    Click(desk, *save);
    EXPECT_EQ(Files().size(), 1) << save->Name;
    QFile::remove(folder.filePath(Files().value(0)));
  }
}

}  // namespace
}  // namespace orvane
