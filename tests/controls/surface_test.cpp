#include "controls/surface.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "draw/strokes_text.h"

namespace orvane {
namespace {

constexpr ControlRow kTable[] = {
    {.Name = "Test_Window", .Kind = ControlKind::Window},
    {.Name = "Picture1", .Kind = ControlKind::PictureBox},
};

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);

struct SurfaceTest : testing::Test, SurfaceTrace, ControlWatcher {
  SurfaceTest() {
    Host.Watcher = this;
    Surface.Trace = this;
  }

  void PictureSet(int background) override {
    Calls.push_back("Picture " + std::to_string(background));
  }
  void BackColorSet(Colour colour) override {
    Calls.push_back("BackColor " + ColourAsText(colour));
  }
  void Drawn(const Stroke& stroke, std::string_view text) override {
    constexpr const char* kKinds[] = {"Line", "Circle", "Print"};
    Calls.push_back(kKinds[static_cast<int>(stroke.Kind)] + std::string(text));
  }
  void Changed(Control&, Aspect aspect) override { SurfaceTold += aspect == Aspect::Surface; }

  std::string Strokes() const { return StrokesAsText(*Surface.Image()); }

  Window Host{kTable, ""};
  PictureBox Surface{Host, "Picture1", 360, 360};
  std::vector<std::string> Calls;
  int SurfaceTold = 0;
};

TEST_F(SurfaceTest, ACallAppendsOneStrokeInCallOrder) {
  Surface.DrawWidth = 3;
  Surface.Line(1, 2, 3.5, 4, kRed);
  Surface.DrawWidth = 1;
  Surface.FillColor = kBlue;
  Surface.Circle(10, 20, 4.85);
  Surface.DrawStyle = 2;
  Surface.Line(5, 6, 7, 8, Rgb(1, 2, 3));
  Surface.ForeColor = kRed;
  Surface.CurrentX = 30;
  Surface.CurrentY = 40;
  Surface.Print("  CA ");

  EXPECT_EQ(Strokes(),
            "Line 1 2 3.5 4 #ff0000 w3\n"
            "Circle 10 20 4.85 #0000ff on #000000 w1\n"
            "Line 5 6 7 8 #010203 w1 dotted\n"
            "Print 30 40 #ff0000 \"  CA \"\n");
}

TEST_F(SurfaceTest, CoordinatesAreNarrowedTo32Bits) {
  Surface.Line(0.1, 16777217.0, 1e39, 0, kRed);  // 2^24 + 1 has no 32-bit float

  const Stroke& stroke = Surface.Image()->Strokes[0];
  EXPECT_EQ(stroke.X1, 0.1f);
  EXPECT_EQ(stroke.Y1, 16777216.0f);
  EXPECT_GT(stroke.X2, 3.4e38f);
}

TEST_F(SurfaceTest, TheEndOfALineIsWhereTheNextTextBegins) {
  Surface.Line(1, 2, 30, 40, kRed);
  Surface.Print("N");

  EXPECT_EQ(Strokes(),
            "Line 1 2 30 40 #ff0000 w1\n"
            "Print 30 40 #000000 \"N\"\n");
}

TEST_F(SurfaceTest, FillStyle1LeavesACircleEmpty) {
  Surface.FillStyle = 1;
  Surface.Circle(1, 2, 3);

  EXPECT_EQ(Strokes(), "Circle 1 2 3 empty on #000000 w1\n");
}

TEST_F(SurfaceTest, ACircleCanHaveAnOutlineOfItsOwn) {
  Surface.FillColor = kPalette14;
  Surface.Circle(1, 2, 1, kPalette14);

  EXPECT_EQ(Strokes(), "Circle 1 2 1 #ffff00 on #ffff00 w1\n");
  EXPECT_EQ(Surface.ForeColor, 0u);
}

TEST_F(SurfaceTest, ATextThatIsPrintedTwiceIsKeptOnce) {
  for (const char* text : {"  CA ", "  N  ", "  CA "}) Surface.Print(text);

  const auto image = Surface.Image();
  EXPECT_EQ(image->Texts, (std::vector<std::string>{"  CA ", "  N  "}));
  EXPECT_EQ(image->Strokes[2].Text, 0u);
}

TEST_F(SurfaceTest, ManyDistinctTextsAreAllTold) {
  for (int round = 0; round < 2; ++round) {
    for (int number = 0; number < 1000; ++number) Surface.Print(std::to_string(number));
  }

  const auto image = Surface.Image();
  ASSERT_EQ(image->Texts.size(), 1000u);
  EXPECT_EQ(image->Texts[image->Strokes[1999].Text], "999");
}

TEST_F(SurfaceTest, ASnapshotStaysAsItWasWhateverIsDrawnLater) {
  Surface.Line(1, 2, 3, 4, kRed);
  const auto snapshot = Surface.Image();

  Surface.Print("later");
  Surface.SetBackColor(kBlue);
  Surface.ResetSurface(std::make_shared<Bitmap>(), 2);
  Surface.Circle(1, 1, 1);

  EXPECT_EQ(StrokesAsText(*snapshot), "Line 1 2 3 4 #ff0000 w1\n");
  EXPECT_TRUE(snapshot->Texts.empty());
  EXPECT_EQ(snapshot->BackColor, 0u);
  EXPECT_EQ(snapshot->Backdrop, nullptr);
  EXPECT_EQ(snapshot->Width, 360);
}

TEST_F(SurfaceTest, SnapshotsOfAnUntouchedSurfaceShareOneList) {
  Surface.Line(1, 2, 3, 4, kRed);

  EXPECT_EQ(Surface.Image(), Surface.Image());
}

TEST_F(SurfaceTest, ListsOfDroppedSnapshotsAreUsedAgain) {
  std::shared_ptr<const Picture> shown = Surface.Image();
  const Picture* first = shown.get();
  Surface.ResetSurface();  // the first list is put aside, since a snapshot still shows it
  shown = Surface.Image();
  Surface.ResetSurface();

  EXPECT_EQ(Surface.Image().get(), first);
  EXPECT_EQ(Surface.Image()->Width, 360);
}

TEST_F(SurfaceTest, AResetWipesTheStrokesAndSetsTheBackdrop) {
  const auto backdrop = std::make_shared<const Bitmap>();
  Surface.Print("old");
  Surface.ResetSurface(backdrop, 3);

  EXPECT_EQ(Strokes(), "");
  EXPECT_TRUE(Surface.Image()->Texts.empty());
  EXPECT_EQ(Surface.Image()->Backdrop, backdrop);

  Surface.ResetSurface();
  EXPECT_EQ(Surface.Image()->Backdrop, nullptr);
}

TEST_F(SurfaceTest, AResetKeepsThePenAndTheBackColour) {
  Surface.SetBackColor(kBlue);
  Surface.DrawWidth = 6;
  Surface.ResetSurface();

  EXPECT_EQ(Surface.DrawWidth, 6);
  EXPECT_EQ(Surface.PlainColour(), kBlue);
  EXPECT_EQ(Surface.Image()->BackColor, kBlue);
}

TEST_F(SurfaceTest, TheChangeEventOfAResetComesAfterTheWipe) {
  std::string seen = "not run";
  Surface.Bind(EventKind::Change, [&](const Event&) { seen = Strokes(); });
  Surface.Line(1, 2, 3, 4, kRed);
  Surface.ResetSurface();

  EXPECT_EQ(seen, "");
}

TEST_F(SurfaceTest, OnlyAResetRaisesTheChangeEvent) {
  int changes = 0;
  Surface.Bind(EventKind::Change, [&](const Event&) { ++changes; });
  Surface.Line(1, 2, 3, 4, kRed);
  Surface.Cls();
  Surface.SetBackColor(kRed);
  EXPECT_EQ(changes, 0);

  Surface.ResetSurface();
  EXPECT_EQ(changes, 1);
}

TEST_F(SurfaceTest, ClsWipesTheStrokesAndKeepsTheBackdrop) {
  const auto backdrop = std::make_shared<const Bitmap>();
  Surface.ResetSurface(backdrop, 0);
  Surface.Circle(1, 2, 3);
  Surface.Cls();

  EXPECT_EQ(Strokes(), "");
  EXPECT_EQ(Surface.Image()->Backdrop, backdrop);
}

TEST_F(SurfaceTest, TheTraceHearsEveryCallInOrder) {
  Surface.SetBackColor(kRed);
  Surface.SetBackColor(kRed);  // setting the same colour counts too
  Surface.ResetSurface(std::make_shared<Bitmap>(), 4);
  Surface.Line(1, 2, 3, 4, kRed);
  Surface.Print(" O");
  Surface.Circle(1, 2, 3);
  Surface.ResetSurface();

  EXPECT_EQ(Calls, (std::vector<std::string>{"BackColor #ff0000", "BackColor #ff0000", "Picture 4",
                                             "Line", "Print O", "Circle", "Picture -1"}));
}

TEST_F(SurfaceTest, TheTraceHearsOfAResetBeforeWhatItsChangeEventDraws) {
  Surface.Bind(EventKind::Change, [&](const Event&) { Surface.Circle(1, 2, 3); });
  Surface.ResetSurface();

  EXPECT_EQ(Calls, (std::vector<std::string>{"Picture -1", "Circle"}));
}

TEST_F(SurfaceTest, TheWatcherIsToldOnceUntilSomebodyLooks) {
  for (int count = 0; count < 5; ++count) Surface.Line(1, 2, 3, 4, kRed);
  EXPECT_EQ(SurfaceTold, 1);

  Surface.Image();
  Surface.ResetSurface();
  Surface.Line(1, 2, 3, 4, kRed);
  EXPECT_EQ(SurfaceTold, 2);
}

TEST_F(SurfaceTest, AListThatNobodyWipesIsPaintedDownIntoItsBackdrop) {
  Surface.SetBackColor(kBlue);
  Surface.Line(10, 20, 12, 20, kRed);
  Surface.Print("first");
  for (std::size_t count = 2; count < kMostStrokes; ++count) Surface.Line(5, 5, 7, 5, kRed);
  const auto full = Surface.Image();
  EXPECT_EQ(full->Strokes.size(), kMostStrokes);
  EXPECT_EQ(full->Backdrop, nullptr);

  Surface.Print("next");

  const auto image = Surface.Image();
  ASSERT_EQ(Strokes(), "Print 7 5 #000000 \"next\"\n");
  ASSERT_NE(image->Backdrop, nullptr);
  EXPECT_EQ(image->Backdrop->Width, 360);
  EXPECT_EQ(image->Backdrop->Words[20 * 360 + 11], 0xFFFF0000u);  // the first line
  EXPECT_EQ(image->Backdrop->Words[30 * 360 + 1], 0xFF0000FFu);   // the plain colour
  EXPECT_EQ(full->Strokes.size(), kMostStrokes);                  // a snapshot keeps its list
}

TEST_F(SurfaceTest, ClsWipesWhatWasPaintedDownToo) {
  for (std::size_t count = 0; count <= kMostStrokes; ++count) Surface.Line(5, 5, 7, 5, kRed);
  ASSERT_NE(Surface.Image()->Backdrop, nullptr);
  Surface.Cls();

  EXPECT_EQ(Surface.Image()->Backdrop, nullptr);
}

TEST_F(SurfaceTest, AWidthIsKeptAsGivenWithinAByte) {
  for (const int width : {0, 10, 300, -1}) {
    Surface.DrawWidth = width;
    Surface.Line(0, 0, 1, 1, kRed);
  }

  const auto image = Surface.Image();
  EXPECT_EQ(image->Strokes[0].Width, 0);
  EXPECT_EQ(image->Strokes[1].Width, 10);
  EXPECT_EQ(image->Strokes[2].Width, 255);
  EXPECT_EQ(image->Strokes[3].Width, 0);
}

}  // namespace
}  // namespace orvane
