// The printed page, drawn on an image as if it were paper. If a test printer is given, it is also
// printed on paper (print_to_paper.sh).
#include "desktop/outside/printed_page.h"

#include <gtest/gtest.h>

#include <QPrinterInfo>

#include "commands/print.h"
#include "raster/raster.h"
#include "window_fixture.h"

namespace orvane {
namespace {

struct PrintedPage : WindowAtWork, testing::Test {
  PrintedPage() {
    qputenv("CUPS_SERVER", "127.0.0.1:1");  // nobody listens there: no printer
    SelectRow(desk, main.Pro_Lst, 1);
  }

  // A pixel is ten twips when the paper is 660 pixels wide.
  QImage Drawn(int width = 660, int height = 900) {
    QImage paper(width, height, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    DrawPrintPage(painter, QRectF(paper.rect()), 100, skin, desk.page);
    return paper;
  }
  static QImage RasterOf(const Picture& picture, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    Raster().Paint(picture, static_cast<double>(size.width()) / picture.Width,
                   reinterpret_cast<std::uint32_t*>(image.bits()), size.width(), size.height(),
                   size.width());
    return image;
  }
  static QImage RasterOf(const Picture& picture, int side) {
    return RasterOf(picture, QSize(side, side));
  }
  // The smallest box round everything in `area` that is not white.
  static QRect InkIn(const QImage& paper, const QRect& area) {
    QRect ink;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        if ((paper.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }
};

TEST_F(PrintedPage, HoldsTheSurfaceAtItsPlaceAndItsNameAboveIt) {
  Click(desk, main.PrImg);
  const QImage paper = Drawn();

  EXPECT_EQ(paper.copy(60, 120, 540, 540), RasterOf(*main.Picture1.Image(), 540));
  // Mol_Name: 600, 840 twips, 315 high; it is as wide as its text.
  const QRect name = InkIn(paper, QRect(0, 0, 660, 120));
  EXPECT_GE(name.left(), 60);
  EXPECT_LE(name.left(), 63);
  EXPECT_GE(name.top(), 84);
  EXPECT_LE(name.bottom(), 84 + 31);
  EXPECT_GT(name.width(), 300) << "\"N) v2.0: Alpha helix structure (polypeptide)\" in 13 pixels";
  EXPECT_EQ(InkIn(paper, paper.rect()), QRect(60, name.top(), 540, 660 - name.top()));
}

TEST_F(PrintedPage, HoldsAPairAtItsPlacesWithItsCaptions) {
  Click(desk, main.Bt3_Sterio);
  Click(desk, main.PrImg);
  const QImage paper = Drawn();

  // 3135 twips are 313.5 pixels, so the comparison leaves out half a pixel all round.
  for (const int left : {12, 336}) {
    EXPECT_EQ(qRgb(0, 0, 0), paper.pixel(left + 3, 216 + 3));
    EXPECT_EQ(qRgb(0, 0, 0), paper.pixel(left + 310, 216 + 310));
    EXPECT_EQ(qRgb(255, 255, 255), paper.pixel(left - 2, 216 + 100));
  }
  // Str_Entm is centred on 2160 + 2145 / 2 twips; AA_name begins at 120.
  const QRect heading = InkIn(paper, QRect(0, 0, 660, 210));
  EXPECT_NEAR(heading.left() + heading.width() / 2.0, 323.25, 2);
  EXPECT_GE(heading.top(), 132);
  EXPECT_LE(heading.bottom(), 162);
  const QRect name = InkIn(paper, QRect(0, 540, 660, 300));
  EXPECT_GE(name.left(), 12);
  EXPECT_LE(name.left(), 15);
  EXPECT_GE(name.top(), 552);
  EXPECT_LE(name.bottom(), 552 + 29);
}

TEST_F(PrintedPage, NamesTheFormsOfAnEnantiomerPair) {
  SelectRow(desk, main.AA_Lst, 2);
  Click(desk, main.Bt3_Isomers);
  Click(desk, main.PrImg);
  const QImage paper = Drawn();
  // Centred on 600 + 2295 / 2 and 3720 + 2295 / 2 twips.
  const QRect left = InkIn(paper, QRect(0, 180, 330, 30)),
              right = InkIn(paper, {330, 180, 330, 30});
  EXPECT_NEAR(left.left() + left.width() / 2.0, 174.75, 2);
  EXPECT_NEAR(right.left() + right.width() / 2.0, 486.75, 2);
}

TEST_F(PrintedPage, IsAsWideAsThePaperAndAtItsTop) {
  Click(desk, main.PrImg);
  const QImage paper = Drawn(1320, 1800);
  EXPECT_EQ(paper.copy(120, 240, 1080, 1080), RasterOf(*main.Picture1.Image(), 1080));
}

TEST_F(PrintedPage, IsInTheMiddleOfPaperThatIsTooWide) {
  Click(desk, main.PrImg);
  // 7200 twips in 720 pixels: the page is 660 wide and leaves 170 on either side.
  const QImage paper = Drawn(1000, 720);
  EXPECT_EQ(paper.copy(170 + 60, 120, 540, 540), RasterOf(*main.Picture1.Image(), 540));
}

TEST_F(PrintedPage, ALongNameEndsBeforeThePagesEdge) {
  Click(desk, main.PrImg);
  desk.page.Mol_Name.Caption = std::string(200, 'm');
  const QRect name = InkIn(Drawn(), QRect(0, 0, 660, 120));
  EXPECT_LE(name.right(), 630);
  EXPECT_GT(name.right(), 620);
}

TEST_F(PrintedPage, OfThePlotIsItsWindowAsLargeAsThePaper) {
  Click(desk, main.RCDP);
  const Place plan = desk.plot.Row.At;
  const int width = 3 * plan.Width / TwipsPerPixel, height = 3 * plan.Height / TwipsPerPixel;
  QImage paper(width, height + 100, QImage::Format_RGB32);
  paper.fill(Qt::white);
  platform.Effects.clear();
  {
    QPainter painter(&paper);
    DrawWindow(painter, QRectF(paper.rect()), 100, skin, desk.plot);
  }

  // It is three times as large, and looks like the window on the screen when pixels are averaged.
  const QImage small =
      paper.copy(0, 0, width, height)
          .scaled(width / 3, height / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QImage shown = skin.WindowOf(desk.plot).grab().toImage().scaled(small.size());
  long difference = 0;
  for (int y = 0; y < small.height(); ++y) {
    for (int x = 0; x < small.width(); ++x) {
      difference += std::abs(qGray(small.pixel(x, y)) - qGray(shown.pixel(x, y)));
    }
  }
  EXPECT_LT(difference / (small.width() * small.height()), 8);
  EXPECT_TRUE(platform.Effects.empty());
  EXPECT_TRUE(desk.plot.Visible);
}

// An enlarged picture of the screen's size would not have these pixels.
TEST_F(PrintedPage, OfThePlotIsPaintedInThePixelsOfThePaper) {
  Click(desk, main.RCDP);
  const Place plan = desk.plot.Row.At;
  QImage paper(3 * plan.Width / TwipsPerPixel, 3 * plan.Height / TwipsPerPixel,
               QImage::Format_RGB32);
  {
    QPainter painter(&paper);
    DrawWindow(painter, QRectF(paper.rect()), 100, skin, desk.plot);
  }

  const Scale thrice{.Factor = 3, .Ratio = 1};
  for (const PictureBox& area : desk.plot.Area) {
    Place at = area.At;
    for (const Control* above = area.Parent; above != nullptr; above = above->Parent) {
      at.Left += above->At.Get().Left;
      at.Top += above->At.Get().Top;
    }
    const QRect face = RectOf(thrice.Device(at));
    const QImage drawn = RasterOf(*area.Image(), face.size());
    const QRect inner = drawn.rect().adjusted(3, 3, -3, -3);  // without the area's edge
    EXPECT_EQ(paper.copy(inner.translated(face.topLeft())), drawn.copy(inner)) << area.FullName();
  }
}

TEST_F(PrintedPage, WithoutAPrinterIsRefusedWithAMessageAndTheProgramGoesOn) {
  Click(desk, main.PrImg);
  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{"message Could'nt print.\nCheck if the Printer is installed "
                                     "properly."});
}

// Sends three pages to the default printer of the test's own print server.
TEST(OnPaper, ASurfaceAPairAndThePlotArePrinted) {
  if (!qEnvironmentVariableIsSet("ORVANE_TEST_PRINTER")) {
    GTEST_SKIP() << "print_to_paper.sh gives the printer";
  }
  ASSERT_EQ(QPrinterInfo::defaultPrinterName(), qEnvironmentVariable("ORVANE_TEST_PRINTER"));
  WindowAtWork work;
  SelectRow(work.desk, work.main.Pro_Lst, 1);
  Click(work.desk, work.main.PrImg);
  Click(work.desk, work.main.Bt3_Sterio);
  Click(work.desk, work.main.PrImg);
  Click(work.desk, work.main.RCDP);
  Click(work.desk, work.main.PrImg);
  EXPECT_TRUE(work.platform.Effects.empty()) << work.platform.Effects.front();
}

}  // namespace
}  // namespace orvane
