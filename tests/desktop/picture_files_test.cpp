// Picture files, read back by a program that is not ours and compared with the screen.
#include "desktop/outside/picture_files.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "output/picture_gif.h"
#include "raster/raster.h"
#include "runtime/failure.h"
#include "window_fixture.h"

namespace orvane {
namespace {

QByteArray Said(const QString& program, const QStringList& words) {
  QProcess process;
  process.start(program, words);
  process.waitForFinished();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput();
}

QImage ReadBack(const QString& path) {
  return QImage::fromData(Said("convert", {path, "-depth", "8", "ppm:-"}))
      .convertToFormat(QImage::Format_RGB32);
}

QImage OnThePalette(QImage image) {
  GifColours colours(PicturePalette());
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixel(x, y, PicturePalette().Words[colours.IndexOf(image.pixel(x, y))]);
    }
  }
  return image;
}

// In decibels, for all three channels together.
double PeakSignalToNoise(const QImage& a, const QImage& b) {
  double squares = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      squares += std::pow(qRed(p) - qRed(q), 2) + std::pow(qGreen(p) - qGreen(q), 2) +
                 std::pow(qBlue(p) - qBlue(q), 2);
    }
  }
  return 10 * std::log10(255.0 * 255.0 * 3 * a.width() * a.height() / squares);
}

struct PictureFiles : WindowAtWork, testing::Test {
  PictureFiles() {
    outer.mkdir("own");
    platform.Folder = folder.toStdString();
    SelectRow(desk, main.Pro_Lst, 1);  // the alpha helix
    main.Timer1.Interval = 1000000;    // no ticks but the test's own
  }

  QTemporaryDir place;
  QDir outer{place.path()};
  QString folder = place.path() + "/own";

  QString Save(Control& command, const std::string& name = "abc") {
    platform.Answers = {name};
    Click(desk, command);
    const QStringList files = Files();
    return files.empty() ? QString() : folder + "/" + files.front();
  }
  QStringList Files() const {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  // As large as it is on the screen.
  QImage Surface() {
    const QSize size = ViewOf(main.Picture1).Stand().Face.size();
    QImage image(size, QImage::Format_RGB32);
    Raster().Paint(*main.Picture1.Image(), size.width() / 360.0,
                   reinterpret_cast<std::uint32_t*>(image.bits()), size.width(), size.height(),
                   size.width());
    return image;
  }
  int Side() { return ViewOf(main.Picture1).Stand().Face.width(); }
  bool Failed() const {
    return std::any_of(platform.Effects.begin(), platform.Effects.end(),
                       [](const std::string& effect) { return effect.starts_with("failure "); });
  }
};

TEST_F(PictureFiles, ABmpHoldsTheSurfacePixelForPixel) {
  const QString path = Save(main.S_bmp);
  EXPECT_TRUE(path.endsWith("/abc.bmp"));
  EXPECT_EQ(Side(), std::lround(360 * window.devicePixelRatioF()));
  EXPECT_EQ(ReadBack(path), Surface());
}

TEST_F(PictureFiles, AJpegComesCloseToTheSurfaceAtItsQuality) {
  const QString path = Save(main.S_JPG);
  EXPECT_TRUE(path.endsWith("/abc.jpg"));
  EXPECT_EQ(Said("identify", {"-format", "%Q", path}), "75");
  const QImage image = ReadBack(path);
  ASSERT_EQ(image.size(), Surface().size());
  EXPECT_GT(PeakSignalToNoise(image, Surface()), 30);
}

TEST_F(PictureFiles, AGifHoldsEachPixelInTheNearestColourOfThePalette) {
  const QString path = Save(main.S_Gif);
  EXPECT_TRUE(path.endsWith("/abc.gif"));
  EXPECT_EQ(ReadBack(path), OnThePalette(Surface()));
}

TEST_F(PictureFiles, TwoSavesLeaveOneFile) {
  Save(main.S_bmp);
  main.Picture1.ResetSurface();
  const QString path = Save(main.S_bmp);
  EXPECT_EQ(Files(), QStringList{"abc.bmp"});
  EXPECT_EQ(ReadBack(path), Surface());
}

TEST_F(PictureFiles, ARecordingIsAFilmOfEighteenFramesThatLoops) {
  platform.Answers = {"abc"};
  Click(desk, main.S_AnGif);
  std::vector<QImage> screens;
  for (int tick = 0; tick < 36; ++tick) {
    const QImage now = OnThePalette(Surface());
    if (tick % 2 == 0 && tick < 35) screens.push_back(now);
    Tick(desk, main.Timer1);
  }

  const QString path = folder + "/abc.gif";
  EXPECT_EQ(Files(), QStringList{"abc.gif"});
  EXPECT_EQ(Said("identify", {"-format", "%T,", path}), QByteArray("10,").repeated(18));
  const QByteArray blocks = Said("giftext", {path});
  EXPECT_EQ(blocks.count("GIF89 application block"), 1) << "the one that says that it loops";
  EXPECT_TRUE(blocks.contains("GIF file terminated normally"));
  Said("convert", {path, "-coalesce", "-depth", "8", folder + "/%d.ppm"});
  for (int frame = 0; frame < 18; ++frame) {
    const QImage read(folder + QString("/%1.ppm").arg(frame));
    EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), screens.at(frame)) << frame;
  }
  EXPECT_NE(screens.front(), screens.back());
}

TEST_F(PictureFiles, ANewRecordingStartsTheFileAgain) {
  for (int round = 0; round < 2; ++round) {
    platform.Answers = {"abc"};
    Click(desk, main.S_AnGif);
    for (int tick = 0; tick < 36; ++tick) Tick(desk, main.Timer1);
  }
  EXPECT_EQ(Said("identify", {"-format", "x", folder + "/abc.gif"}).size(), 18);
}

TEST_F(PictureFiles, AFrameIsNotAddedToAFileThatIsNotARecording) {
  platform.Answers = {"abc"};
  Click(desk, main.S_AnGif);
  for (int tick = 0; tick < 4; ++tick) Tick(desk, main.Timer1);
  QFile file(folder + "/abc.gif");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("a letter");
  file.close();
  ASSERT_FALSE(Failed());

  Tick(desk, main.Timer1);

  EXPECT_TRUE(Failed());
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "a letter");
  EXPECT_EQ(Files(), QStringList{"abc.gif"});
}

TEST_F(PictureFiles, ASplitViewIsTakenWithItsCaptionsAsTheWindowShowsIt) {
  Click(desk, main.Bt3_Sterio);
  const QRect panel = ViewOf(main.P_Sterio).Stand().Face;
  const QImage saved = ReadBack(Save(main.S_bmp));

  ASSERT_EQ(saved.size(), panel.size());
  const QImage shown = Shot().copy(panel);
  EXPECT_TRUE(saved == shown) << "also at its round corners, where the frame looks through";
  const double ratio = window.scale.Ratio;
  QWidget& heading = WidgetOf(main.Str_Entm);
  const QPointF corner_of_heading = heading.mapTo(&WidgetOf(main.P_Sterio), QPointF(0, 0)) * ratio;
  const QRect caption(corner_of_heading.toPoint(), heading.size() * ratio);
  QSet<QRgb> inks;
  for (int x = caption.left(); x < caption.right(); ++x) {
    for (int y = caption.top(); y < caption.bottom(); ++y) inks.insert(saved.pixel(x, y));
  }
  EXPECT_GT(inks.size(), 3) << "letters stand in the caption";
}

TEST_F(PictureFiles, AClickOnThePairWritesTestGifUnasked) {
  Click(desk, main.Bt3_Sterio);
  Click(desk, main.P_Sterio);
  EXPECT_EQ(Files(), QStringList{"test.gif"});
  EXPECT_EQ(ReadBack(folder + "/test.gif").size(), ViewOf(main.P_Sterio).Stand().Face.size());
}

TEST_F(PictureFiles, ThePlotWindowIsTakenWholeEvenWithAPairOn) {
  Click(desk, main.Bt3_Sterio);
  Click(desk, main.RCDP);
  ASSERT_TRUE(desk.plot.Visible);
  const QImage saved = ReadBack(Save(main.S_bmp));
  EXPECT_EQ(saved, skin.WindowOf(desk.plot).grab().toImage().convertToFormat(QImage::Format_RGB32));
}

TEST_F(PictureFiles, ALargerPictureOnTheScreenIsALargerFile) {
  window.showMaximized();
  QApplication::processEvents();
  if (window.scale.Factor == 1) GTEST_SKIP() << "nobody maximises windows on this screen";
  EXPECT_NEAR(Side(), 360 * window.scale.Unit(), 1);
  EXPECT_GT(Side(), 360);
  EXPECT_EQ(ReadBack(Save(main.S_bmp)), Surface());
}

TEST_F(PictureFiles, AHiddenSurfaceIsSavedAllTheSame) {
  Click(desk, main.Bt3_D_L_Str);
  EXPECT_EQ(ReadBack(Save(main.S_bmp)), Surface());
}

TEST_F(PictureFiles, NamesThatLeadElsewhereWriteNothingOutsideTheFolder) {
  for (const char* name : {"..", "a/b", "/x", "../", "."}) {
    for (Control* command :
         std::initializer_list<Control*>{&main.S_bmp, &main.S_JPG, &main.S_Gif}) {
      Save(*command, name);
    }
  }
  EXPECT_EQ(outer.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{"own"});
  // ".." and "." with a suffix after them are names like any other, of files in the folder.
  EXPECT_EQ(Files(), (QStringList{"...bmp", "...gif", "...jpg", "..bmp", "..gif", "..jpg"}));
}

TEST_F(PictureFiles, AFolderThatIsNotOneEndsInAFailureAndTheProgramGoesOn) {
  QFile file(place.path() + "/file");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  platform.Folder = file.fileName().toStdString();
  for (Control* command : std::initializer_list<Control*>{&main.S_bmp, &main.S_JPG, &main.S_Gif}) {
    platform.Effects.clear();
    Save(*command);
    EXPECT_TRUE(Failed()) << command->Name;
    EXPECT_EQ(main.MousePointer, kPointerDefault);
  }
}

TEST_F(PictureFiles, AFullDiskLeavesTheOlderFileAsItWas) {
  if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=64k", "tmpfs", folder}) != 0) {
    GTEST_SKIP() << "only root can have a small disk for a test";
  }
  const QString path = Save(main.S_Gif);  // 3 KB
  const QImage before = ReadBack(path);
  platform.Effects.clear();
  Save(main.S_bmp);  // 380 KB
  const bool failed = Failed();
  const std::string told = platform.Effects.empty() ? "" : platform.Effects.back();
  const QStringList files = Files();
  const QImage after = ReadBack(path);
  QProcess::execute("umount", {folder});

  EXPECT_TRUE(failed);
  EXPECT_NE(told.find("the disk is full"), std::string::npos) << told;
  EXPECT_EQ(files, QStringList{"abc.gif"});
  EXPECT_EQ(after, before);
}

TEST(ThePictureFolder, IsTheProgramsOwnWhereTheUserMayWrite) {
  const QTemporaryDir program;
  EXPECT_EQ(PictureFolder(program.path().toStdString()), program.path().toStdString());
}

TEST(ThePictureFolder, OtherwiseIsAFolderAmongTheUsersPicturesMadeWhenNeeded) {
  const QTemporaryDir home;
  const QByteArray old_home = qgetenv("HOME"), old_config = qgetenv("XDG_CONFIG_HOME");
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", (home.path() + "/.config").toUtf8());
  const std::string folder = PictureFolder("/nowhere/at/all");
  qputenv("HOME", old_home);
  old_config.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", old_config);

  EXPECT_EQ(folder, home.path().toStdString() + "/Pictures/Orvane");
  EXPECT_TRUE(QDir(QString::fromStdString(folder)).exists());
}

}  // namespace
}  // namespace orvane
