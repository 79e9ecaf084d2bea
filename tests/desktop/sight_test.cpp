// The filter for eyes that lack a cone changes only the screen, and nothing that leaves the
// program.
#include <gtest/gtest.h>

#include <QPainter>
#include <QTemporaryDir>
#include <QToolTip>

#include "desktop/outside/picture_files.h"
#include "desktop/outside/printed_page.h"
#include "draw/elements.h"
#include "window_fixture.h"

namespace orvane {
namespace {

struct SightAtWork : WindowAtWork {
  SightAtWork() {
    SelectRow(desk, main.AA_Lst, 2);  // alanine
    if (desk.drawing.BallsOn == 0) Click(desk, main.Bt_BlS);
  }

  void Turn(int times = 1) {
    for (int i = 0; i < times; ++i) TurnSight(skin.sight, WidgetOf(main.Picture1));
  }
  QImage Screen(const Control& control) {
    return WidgetOf(control).grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  // The ball that is painted last, so nothing lies over it.
  char LastLetter() {
    const std::string_view name = desk.molecule.AtomName[Last()];
    return name[2];
  }
  QRgb LastPixel() {
    const double ratio = window.devicePixelRatioF();
    return Screen(main.Picture1)
        .pixel(static_cast<int>(desk.molecule.ScrX[Last()] * ratio),
               static_cast<int>(desk.molecule.ScrY[Last()] * ratio));
  }
  std::size_t Last() const {
    return static_cast<std::size_t>(static_cast<int>(desk.molecule.AtomCount));
  }
  QByteArray File(FileFormat format, Control& source) {
    QTemporaryDir folder;
    SavePictureFile(skin, {.Format = format, .Name = "picture", .Source = &source},
                    folder.path().toStdString());
    QFile file(folder.filePath("picture"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  QImage Page() {
    QImage paper(330, 360, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    DrawPrintPage(painter, paper.rect(), 96, skin, desk.page);
    return paper;
  }
  QImage WindowOnPaper(Window& shown) {
    QImage paper(330, 360, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    DrawWindow(painter, paper.rect(), 96, skin, shown);
    return paper;
  }
};

QRgb PixelOf(Colour colour) { return qRgb(Red(colour), Green(colour), Blue(colour)); }

TEST(TheSight, IsWithoutAFilterAtTheStartAndAgainAfterTheThreeEyes) {
  SightAtWork work;
  const QImage start = work.Screen(work.main.Picture1);
  EXPECT_FALSE(work.skin.sight.IsFiltered());

  for (int eye = 0; eye < 3; ++eye) {
    work.Turn();
    EXPECT_TRUE(work.skin.sight.IsFiltered());
    EXPECT_NE(work.Screen(work.main.Picture1), start);
  }
  work.Turn();
  EXPECT_FALSE(work.skin.sight.IsFiltered());
  EXPECT_EQ(work.Screen(work.main.Picture1), start);
}

TEST(TheSight, ShowsABallInTheColourOfItsElementForEachEye) {
  SightAtWork work;
  const char letter = work.LastLetter();
  const Colour own = FindElement({&letter, 1})->Ink;
  ASSERT_EQ(work.LastPixel(), PixelOf(own));

  for (const Eye eye : kEyes) {
    work.Turn();
    EXPECT_EQ(work.LastPixel(), PixelOf(DisplayFilter(eye).Shown(own))) << NameOf(eye);
  }
}

TEST(TheSight, ChangesByOneKeyWhereverTheKeyboardIs) {
  SightAtWork work;
  for (const Control* stop :
       {static_cast<Control*>(&work.main.AA_Lst), static_cast<Control*>(&work.main.Bt3_Reset)}) {
    work.WidgetOf(*stop).setFocus();
    const bool before = work.skin.sight.IsFiltered();
    for (int i = 0; i < (before ? 3 : 1); ++i) {
      QTest::keyClick(&work.WidgetOf(*stop), Qt::Key_F8);
    }
    EXPECT_NE(work.skin.sight.IsFiltered(), before) << stop->Name;
  }
}

TEST(TheSight, ChangesByTheSameKeyInEveryWindow) {
  SightAtWork work;
  Paints paints;
  work.WidgetOf(work.main.Picture1).installEventFilter(&paints);
  work.skin.ShowKeySheet();
  std::vector<QWidget*> windows;
  for (Window* window : work.desk.windows) {
    if (window == &work.desk.page) continue;  // never shown
    window->Show();
    windows.push_back(&work.skin.WindowOf(*window));
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("KeySheet")) windows.push_back(window);
  }
  ASSERT_EQ(windows.size(), 6U);
  for (QWidget* window : windows) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::qWait(50);
    const QString before = work.skin.sight.Words();
    paints.Count = 0;

    QTest::keyClick(window, Qt::Key_F8);

    EXPECT_NE(work.skin.sight.Words(), before) << window->objectName().toStdString();
    EXPECT_EQ(QToolTip::text(), work.skin.sight.Words()) << window->objectName().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.Count > 0; }, 1000))
        << window->objectName().toStdString();
  }
  QToolTip::hideText();
}

TEST(TheSight, SaysWhichEyeItIsForInATipAndNotInTheTitle) {
  SightAtWork work;
  const QString title = work.window.windowTitle();

  work.Turn();
  EXPECT_EQ(QToolTip::text(), "Colours for protan eyes, on the screen only");
  work.Turn(3);
  EXPECT_EQ(QToolTip::text(), "Colours as they are");
  EXPECT_EQ(work.window.windowTitle(), title);
  QToolTip::hideText();
}

TEST(TheSight, SwatchesShowWhatThePictureWillShow) {
  SightAtWork work;
  Control& red = work.main.P_Clr[21];
  work.main.P_Clr_Holder.Visible = true;
  const auto middle = [&] {
    const QImage shot = work.Screen(red);
    return shot.pixel(shot.rect().center());
  };
  ASSERT_EQ(middle(), qRgb(255, 0, 0));

  work.Turn();

  EXPECT_EQ(middle(), PixelOf(DisplayFilter(Eye::Protan).Shown(Rgb(255, 0, 0))));
  EXPECT_EQ(red.BackColor, Rgb(255, 0, 0));
}

TEST(TheSight, ChangesNoFile) {
  SightAtWork work;
  Click(work.desk, work.main.Bt3_Sterio);
  ASSERT_EQ(work.desk.stereo.StereoOn, 1);
  std::vector<QByteArray> before;
  const auto files = [&] {
    std::vector<QByteArray> written;
    for (const FileFormat format :
         {FileFormat::Bmp, FileFormat::Jpeg, FileFormat::Gif, FileFormat::GifFrame}) {
      written.push_back(work.File(format, work.main.Picture1));
      written.push_back(work.File(format, work.main.P_Sterio));
      written.push_back(work.File(format, work.desk.plot));
    }
    return written;
  };
  const QImage screen = work.Screen(work.main.P_Sterio);
  before = files();

  for (int eye = 0; eye < 3; ++eye) {
    work.Turn();
    EXPECT_NE(work.Screen(work.main.P_Sterio), screen);
    EXPECT_EQ(files(), before);
  }
}

TEST(TheSight, ChangesNoPaper) {
  SightAtWork work;
  qputenv("CUPS_SERVER", "127.0.0.1:1");  // nobody listens there: no printer
  Click(work.desk, work.main.Bt3_Sterio);
  Click(work.desk, work.main.PrImg);
  const QImage page = work.Page(), window = work.WindowOnPaper(work.main);
  EXPECT_EQ(page.pixel(20, 120), qRgb(0, 0, 0)) << "the left view of the pair is on the page";

  for (int eye = 0; eye < 3; ++eye) {
    work.Turn();
    EXPECT_EQ(work.Page(), page);
    EXPECT_EQ(work.WindowOnPaper(work.main), window);
  }
}

TEST(TheSight, ChangesNoStrokeAndNoStoredColour) {
  SightAtWork work;
  const auto picture = work.main.Picture1.Image();

  work.Turn();

  EXPECT_EQ(work.main.Picture1.Image(), picture);
}

TEST(TheSight, LeavesTheRedGreenPictureToTheGlasses) {
  SightAtWork work;
  Click(work.desk, work.main.R_G_Stereo);
  ASSERT_EQ(work.desk.stereo.RedGreenOn, 1);
  const QImage before = work.Screen(work.main.Picture1);

  work.Turn();

  EXPECT_EQ(work.Screen(work.main.Picture1), before);
}

}  // namespace
}  // namespace orvane
