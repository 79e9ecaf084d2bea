// The music chooser with real files, and files that cannot be played.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtEndian>

#include "desktop/widgets/file_list_widget.h"
#include "shell/start_up.h"
#include "window_fixture.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QByteArray Number(quint32 value, int width) {
  QByteArray bytes;
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(value >> (8 * i) & 255U);
  return bytes;
}

// Silence: 8000 samples a second, one channel of 8 bits.
QByteArray Wave(int seconds) {
  const QByteArray samples(8000 * seconds, '\x80');
  const auto size = static_cast<quint32>(samples.size());
  return "RIFF" + Number(36 + size, 4) + "WAVEfmt " + Number(16, 4) + Number(1, 2) + Number(1, 2) +
         Number(8000, 4) + Number(8000, 4) + Number(1, 2) + Number(8, 2) + "data" +
         Number(size, 4) + samples;
}

struct Chooser : testing::Test {
  QTemporaryDir folder;
  WindowAtWork work;
  MainWindow& main = work.main;
  RowList* files = nullptr;
  RowList* folders = nullptr;

  void Open() {
    Click(work.desk, main.OpMfL, Reach::Forced);
    OpenFolder(work.desk, main.Drive1, folder.path().toStdString());
    files = dynamic_cast<RowList*>(&work.WidgetOf(main.File1));
    folders = dynamic_cast<RowList*>(&work.WidgetOf(main.Dir1));
  }
  void DoubleClickOn(RowList& list, int row) {
    QTest::mouseClick(&list, Qt::LeftButton, {}, list.RowMiddle(row));
    QTest::mouseDClick(&list, Qt::LeftButton, {}, list.RowMiddle(row));
  }
};

TEST_F(Chooser, OpensOverTheDeskWithTheHomeFolder) {
  Click(work.desk, main.OpMfL, Reach::Forced);

  EXPECT_TRUE(work.WidgetOf(main.P_Dir_Holder).isVisible());
  EXPECT_EQ(main.Drive1.Path.Get(), QDir::homePath().toStdString());
  EXPECT_EQ(main.Dir1.Path.Get(), QDir::homePath().toStdString());
  EXPECT_EQ(main.File1.Path.Get(), QDir::homePath().toStdString());
}

TEST_F(Chooser, ListsTheFilesOfTheFourPatternsAndNoOthers) {
  for (const char* name : {"a.wav", "b.aud", "c.wa", "d.au", "e.mp3", "f.txt"}) {
    Write(folder.filePath(name), "x");
  }
  Open();

  EXPECT_EQ(files->Rows(), QStringList({"a.wav", "b.aud", "c.wa", "d.au"}));
}

TEST_F(Chooser, ListsTheFoldersOnTheWayDownAndThoseInside) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("Music"));
  Open();

  const QStringList way = folder.path().split('/');  // there is "" before the first separator
  EXPECT_EQ(folders->Rows().first(), "/");
  EXPECT_EQ(folders->Rows()[folders->ChosenRow()], way.last());
  EXPECT_EQ(folders->ChosenRow(), way.size() - 1);
  EXPECT_EQ(folders->Rows().last(), "Music");
}

// An empty folder shows an empty list; the words are set in the quiet ink.
TEST_F(Chooser, AFolderThatHasGoneSaysSoWhereItsFilesWouldStand) {
  Open();
  const QImage empty = files->grab().toImage();

  OpenFolder(work.desk, main.Dir1, folder.filePath("gone").toStdString());

  EXPECT_THAT(files->Rows(), IsEmpty());
  EXPECT_NE(files->grab().toImage(), empty);
  EXPECT_EQ(folders->Rows().last(), "gone");
  OpenFolder(work.desk, main.Dir1, folder.path().toStdString());
  EXPECT_EQ(files->grab().toImage(), empty);
}

TEST_F(Chooser, KeysGoFromDriveToDrive) {
  Open();
  QWidget& drive = work.WidgetOf(main.Drive1);
  const QStringList drives = DriveWidget::Drives();
  drive.setFocus();

  QTest::keyClick(&drive, Qt::Key_Down);  // from a folder that is not a drive to the first drive
  EXPECT_EQ(main.Drive1.Path.Get(), drives.first().toStdString());
  for (qsizetype i = 0; i < drives.size(); ++i) QTest::keyClick(&drive, Qt::Key_Down);
  EXPECT_EQ(main.Drive1.Path.Get(), drives.last().toStdString());
  EXPECT_EQ(main.Dir1.Path.Get(), drives.last().toStdString());
  for (qsizetype i = 0; i < drives.size(); ++i) QTest::keyClick(&drive, Qt::Key_Up);
  EXPECT_EQ(main.Drive1.Path.Get(), drives.first().toStdString());
}

TEST_F(Chooser, ADriveIsChosenFromItsMenu) {
  Open();
  QWidget& drive = work.WidgetOf(main.Drive1);
  QStringList offered;
  QTimer::singleShot(0, &drive, [&] {  // once the menu is open
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* entry : menu->actions()) offered.append(entry->text());
    menu->setActiveAction(menu->actions().at(1));
    QTest::keyClick(menu, Qt::Key_Return);
  });

  QTest::mouseClick(&drive, Qt::LeftButton);

  EXPECT_EQ(offered, DriveWidget::Drives());
  EXPECT_EQ(main.Drive1.Path.Get(), "/");
}

TEST_F(Chooser, ADoubleClickOpensAFolderAndItsFilesAreListed) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("Music"));
  Write(folder.filePath("Music/inside.wav"), "x");
  Open();

  DoubleClickOn(*folders, static_cast<int>(folders->Rows().size()) - 1);

  EXPECT_EQ(main.Dir1.Path.Get(), folder.filePath("Music").toStdString());
  EXPECT_EQ(files->Rows(), QStringList{"inside.wav"});
}

TEST_F(Chooser, AClickChoosesAFileAndPlaysNothing) {
  Write(folder.filePath("a.wav"), Wave(1));
  Open();

  QTest::mouseClick(files, Qt::LeftButton, {}, files->RowMiddle(0));

  EXPECT_EQ(main.File1.FileName.Get(), "a.wav");
  EXPECT_FALSE(work.platform.SoundIsOpen());
  EXPECT_TRUE(main.P_Dir_Holder.Visible);
}

TEST_F(Chooser, ADoubleClickOpensASoundAndClosesTheChooser) {
  Write(folder.filePath("a.wav"), Wave(2));
  Open();

  DoubleClickOn(*files, 0);

  EXPECT_THAT(work.platform.Effects, IsEmpty());
  EXPECT_TRUE(work.platform.SoundIsOpen());
  EXPECT_NEAR(work.platform.SoundLength(), 2000, 100);
  EXPECT_FALSE(main.P_Dir_Holder.Visible);
  Click(work.desk, main.StMsc, Reach::Forced);
  EXPECT_FALSE(work.platform.SoundIsOpen());
}

TEST_F(Chooser, AFileThatIsEmptyOrNotASoundEndsInTheBox) {
  Write(folder.filePath("empty.wav"), "");
  Write(folder.filePath("text.wav"), "This is no sound at all, whatever its name says.\n");
  Open();

  DoubleClickOn(*files, 0);
  EXPECT_THAT(work.platform.Effects, ElementsAre("warning ÎØÃ ÛíÑ ãÚÑæÝ (2)."));
  work.platform.Effects.clear();
  Open();
  DoubleClickOn(*files, 1);
  EXPECT_THAT(work.platform.Effects, ElementsAre("warning ÎØÃ ÛíÑ ãÚÑæÝ (2)."));
  EXPECT_FALSE(work.platform.SoundIsOpen());
}

TEST_F(Chooser, AFileThatHasGoneEndsInTheBox) {
  Write(folder.filePath("a.wav"), Wave(1));
  Open();
  ASSERT_TRUE(QFile::remove(folder.filePath("a.wav")));

  DoubleClickOn(*files, 0);

  EXPECT_THAT(work.platform.Effects, ElementsAre("warning ÎØÃ ÛíÑ ãÚÑæÝ (1)."));
}

TEST(Sound, TheBoxOfAMissingStockTuneReadsAsAlways) {
  struct : QtPlatform {
    void EndProgram() override {}
  } platform;
  const auto desk = StartDesk(platform);
  QString title, text;
  QTimer::singleShot(50, [&] {
    auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    title = box->windowTitle();
    text = box->text();
    QTest::keyClick(box, Qt::Key_Escape);
  });

  Click(*desk, desk->main.PMSC1, Reach::Forced);

  EXPECT_EQ(title, "Orvane");
  EXPECT_EQ(text, "ÎØÃ ÛíÑ ãÚÑæÝ (1).");
}

TEST(Sound, StoppingWithNothingOpenDoesNothing) {
  WindowAtWork work;

  Click(work.desk, work.main.StMsc, Reach::Forced);

  EXPECT_THAT(work.platform.Effects, IsEmpty());
  EXPECT_EQ(work.platform.SoundLength(), 0);
}

}  // namespace
}  // namespace orvane
