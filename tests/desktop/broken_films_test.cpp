// A recording whose file was changed while it ran, with every file that the fuzzer of GIFs keeps.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "output/picture_gif.h"
#include "window_fixture.h"

namespace orvane {
namespace {

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

void Replace(const QString& path, const QByteArray& content) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(content), content.size());
}

bool IsAFilm(const QByteArray& content) {
  const Bitmap picture{1, 1, {0xFF000000U}};
  return WithOneMoreFrame(FileBytes(content.begin(), content.end()), picture).has_value();
}

TEST(BrokenFilms, AreLeftAsTheyWereAndTheBoxSaysSo) {
  int broken = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/tests/fuzz/corpus/gif")) {
    SCOPED_TRACE(entry.path().filename());
    const QByteArray content = ContentOf(QString::fromStdString(entry.path().string()));
    if (IsAFilm(content)) continue;
    ++broken;
    // Given a recording of two frames whose file has been replaced by something else,
    WindowAtWork work;
    const QTemporaryDir folder;
    work.platform.Folder = folder.path().toStdString();
    work.main.Timer1.Interval = 1000000;  // no ticks but the test's own
    SelectRow(work.desk, work.main.Pro_Lst, 1);
    work.platform.Answers = {"abc"};
    Click(work.desk, work.main.S_AnGif);
    for (int tick = 0; tick < 4; ++tick) Tick(work.desk, work.main.Timer1);
    const QString path = folder.path() + "/abc.gif";
    Replace(path, content);
    work.platform.Effects.clear();

    Tick(work.desk, work.main.Timer1);

    ASSERT_EQ(work.platform.Effects.size(), 1U);
    EXPECT_EQ(work.platform.Effects[0],
              "failure Auto Rotate could not be finished: " + path.toStdString() +
                  " is not the animation that was begun, so no frame was added to it.");
    EXPECT_EQ(ContentOf(path), content);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"abc.gif"});
    EXPECT_EQ(work.desk.view.AutoRotateOn, 0);
  }
  EXPECT_GE(broken, 5);
}

}  // namespace
}  // namespace orvane
