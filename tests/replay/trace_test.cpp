// The form in which calls on the drawing surface are traced.
#include <gtest/gtest.h>

#include "replay/played.h"

namespace orvane {
namespace {

struct Traced : Session {
  Traced() : Session(true) { stream.str(""); }
  PictureBox& Surface() const { return Desk().main.Picture1; }
};

TEST(Trace, OfALineHasEndsColourWidthAndStyle) {
  Traced traced;
  traced.Surface().DrawWidth = 3;
  traced.Surface().DrawStyle = 2;
  traced.Surface().Line(1, 2.5, 0.1, 359, kPalette3);  // palette 3 is 256 * 128 + 65536 * 128
  EXPECT_EQ(traced.stream.str(), "surface Line 1 2.5 0.100000001 359 8421376 3 2\n");
}

TEST(Trace, OfACircleHasFillFillStyleOutlineAndWidth) {
  Traced traced;
  traced.Surface().FillColor = Rgb(255, 0, 0);
  traced.Surface().FillStyle = 1;
  traced.Surface().ForeColor = Rgb(0, 1, 0);
  traced.Surface().DrawWidth = 2;
  traced.Surface().Circle(10, 20, 3.25);
  EXPECT_EQ(traced.stream.str(), "surface Circle 10 20 3.25 255 1 256 2\n");
}

TEST(Trace, OfAPrintHasItsPlaceColourAndText) {
  Traced traced;
  traced.Surface().CurrentX = 7;
  traced.Surface().CurrentY = 8;
  traced.Surface().ForeColor = kPalette15;
  traced.Surface().Print("  CA \"1\"");
  EXPECT_EQ(traced.stream.str(), "surface Print 7 8 16777215 \"  CA \\\"1\\\"\"\n");
}

TEST(Trace, OfAResetHasTheBackgroundPictureOrNone) {
  Traced traced;
  traced.Surface().ResetSurface();
  traced.Surface().ResetSurface(std::make_shared<const Bitmap>(), 4);
  traced.Surface().SetBackColor(kPalette14);  // 255 + 256 * 255
  EXPECT_EQ(traced.stream.str(),
            "surface Picture none\nsurface Picture 4\nsurface BackColor 65535\n");
}

TEST(Trace, IsBetweenTheEffectsInTheOrderOfTheCalls) {
  Traced traced;
  traced.Desk().molecule.MoleculeReady = 1;
  // Reset on an empty store: the back colour, the wipe, then the chain, whose painter wipes again.
  EXPECT_EQ(traced.Do("force click Bt3_Reset").substr(0, 41),
            "surface BackColor 0\nsurface Picture none\n");
}

TEST(Trace, OfThePlotHasCirclesOnItsAreasAlone) {
  Traced traced;
  PictureBox& area = traced.Desk().plot.Area[2];
  area.ResetSurface();
  area.SetBackColor(1);
  area.Line(0, 0, 1, 1, 0);
  area.Circle(12.5, 0.1, 2);
  traced.Desk().plot.Area[0].Circle(1, 2, 2);
  EXPECT_EQ(traced.stream.str(), "plot 2 12.5 0.100000001\nplot 0 1 2\n");
}

// Both torsions of a helix are below 0, which is the area with index 1. Of its twelve residues the
// first is skipped, and the last has no next neighbour for a torsion.
TEST(Trace, OfASurveyHasAMarkForEachResidueOfAHelix) {
  Traced traced;
  traced.Do("enter\nselect Pro_Lst 1");
  const std::string printed = traced.Do("click RCDP");
  int marks = 0;
  for (auto at = printed.find("\nplot 1 "); at != std::string::npos;
       at = printed.find("\nplot 1 ", at + 1)) {
    ++marks;
  }
  EXPECT_GE(marks, 10);
}

TEST(Trace, LeavesOtherPicturesOut) {
  Traced traced;
  traced.Desk().main.PC.Line(0, 0, 1, 1, 0);
  EXPECT_EQ(traced.stream.str(), "");
}

TEST(WithoutTrace, NothingOfTheSurfaceIsPrinted) {
  Session session;
  session.Desk().main.Picture1.Line(0, 0, 1, 1, 0);
  session.Desk().main.Picture1.ResetSurface();
  session.Desk().plot.Area[0].Circle(1, 2, 2);
  EXPECT_EQ(session.stream.str(), "");
}

}  // namespace
}  // namespace orvane
