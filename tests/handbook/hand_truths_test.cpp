// docs/handbook/truths.md, "Hands": each claim and each row of its table.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "handbook/student.h"

namespace orvane {
namespace {

constexpr std::string_view kPage = "docs/handbook/truths.md";

// The direction in which you meet three atoms on the screen when you go round the fourth. Positive
// is clockwise, since y grows downward.
double Round(const Molecule& store, int centre, int a, int b, int c) {
  const auto way = [&](int from, int to) {
    const double x1 = store.ScrX[from] - store.ScrX[centre];
    const double y1 = store.ScrY[from] - store.ScrY[centre];
    const double x2 = store.ScrX[to] - store.ScrX[centre];
    const double y2 = store.ScrY[to] - store.ScrY[centre];
    return std::atan2(x1 * y2 - y1 * x2, x1 * x2 + y1 * y2);
  };
  return way(a, b) + way(b, c) + way(c, a);
}

TEST(Truths, AnAminoAcidReadsClockwiseWithH4InFront) {
  DeskAtWork lists;
  for (const std::string& key : KeysOf(lists.desk.main.AA_Lst)) {
    if (key == "GLY") continue;
    const Student student(kAminoAcids, key);
    const int ca = student.Atom("1 CA");
    const int side = student.Atom(key == "Gen" ? "1 R" : "1 CB");
    // The eye looks along z, which grows away from it: x to the right, y down.
    EXPECT_LT(student.At(student.Atom("1 H4")).Z, student.At(ca).Z) << key;
    // Once round, clockwise.
    EXPECT_NEAR(Round(student.Store(), ca, student.Atom("1 C"), side, student.Atom("1 N")),
                2 * std::numbers::pi, 1e-9)
        << key;
  }
}

TEST(Truths, TheHelicesAreRightHanded) {
  for (const char* row : {"Alfa", "Alfb"}) {
    const Student helix(kProteins, row);
    const std::vector<int> trace = helix.Named("CA");
    for (std::size_t i = 0; i + 3 < trace.size(); ++i) {
      // Four successive alpha carbons of a right-handed alpha helix turn by about +50.
      const double turn = helix.Torsion(trace[i], trace[i + 1], trace[i + 2], trace[i + 3]);
      EXPECT_GT(turn, 40) << row;
      EXPECT_LT(turn, 60) << row;
    }
  }
}

TEST(Truths, TheRightFormIsTheMirroredOutline) {
  Student alanine(kAminoAcids, "ALA");
  Click(alanine.Desk(), alanine.Main().Bt3_Isomers);
  const std::vector<Stroke> left = alanine.Lines(alanine.Main().L_Img);
  const std::vector<Stroke> right = alanine.Lines(alanine.Main().R_Img);
  ASSERT_EQ(left.size(), right.size());
  ASSERT_GT(left.size(), 20u);
  const int doubled = 2;  // pixels between a line and its second line, the same in both
  for (std::size_t i = 0; i < left.size(); ++i) {
    // The pivot is at the middle of 360 pixels. The second lines of C=O keep their offset, so they
    // are mirrored except for twice that offset.
    EXPECT_NEAR(right[i].Y1, left[i].Y1, 1e-3);
    EXPECT_NEAR(right[i].Y2, left[i].Y2, 1e-3);
    const double off = 360 - left[i].X1 - right[i].X1;
    EXPECT_TRUE(std::abs(off) < 1e-3 || std::abs(off + 2 * doubled) < 1e-3) << off;
  }
}

// What the eye gets: whether atoms in front are further to the left in the right picture, as they
// are for a right eye.
bool IsForParallelEyes(Student& student) {
  const std::vector<Stroke> left = student.Lines(student.Main().L_Img);
  const std::vector<Stroke> right = student.Lines(student.Main().R_Img);
  EXPECT_EQ(left.size(), right.size());
  const Molecule& store = student.Store();
  double depth = 0;
  for (std::size_t i = 0; i < left.size(); ++i) {
    for (int atom = 1; atom <= student.Count(); ++atom) {
      if (static_cast<float>(store.ScrX[atom]) != left[i].X1 ||
          static_cast<float>(store.ScrY[atom]) != left[i].Y1) {
        continue;
      }
      depth += (right[i].X1 - left[i].X1) * (store.CurZ[atom] - store.PivotZ);
    }
  }
  EXPECT_GT(std::abs(depth), 1);
  return depth > 0;
}

TEST(Truths, ThePairsAreForTheEyesOfTheTable) {
  std::string parallel, crossed;
  for (const Rows list : {kAminoAcids, kProteins, kNucleotides, kStrands}) {
    DeskAtWork lists;
    for (const std::string& row : (lists.desk.main.*list).Rows.Get()) {
      Student student(list, row);
      Click(student.Desk(), student.Main().Bt3_Sterio);
      std::string& line = IsForParallelEyes(student) ? parallel : crossed;
      if (!line.empty()) line += ", ";
      line += "`" + row.substr(0, row.find(' ')) + "`";
    }
  }
  EXPECT_TRUE(Says(kPage, "| parallel eyes, or a stereoscope | " + parallel + " |")) << parallel;
  EXPECT_TRUE(Says(kPage, "| crossed eyes | " + crossed + " |")) << crossed;
}

TEST(Truths, TheTopmostAtomMakesAPairForParallelEyesTheLowestOneForCrossed) {
  for (const Rows list : {kProteins, kStrands}) {
    DeskAtWork lists;
    for (const std::string& row : (lists.desk.main.*list).Rows.Get()) {
      for (const bool topmost : {true, false}) {
        Student student(list, row);
        int chosen = 1, middle = 0;
        for (int atom = 1; atom <= student.Count(); ++atom) {
          const double down = student.At(atom).Y - student.At(chosen).Y;
          if (topmost ? down < 0 : down > 0) chosen = atom;
        }
        for (int atom = 1; atom <= student.Count() && middle == 0; ++atom) {
          if (student.At(atom).Y != student.At(chosen).Y && student.CanPressAlone(atom)) {
            middle = atom;
          }
        }
        Click(student.Desk(), student.Main().Bt3_Dts);
        student.PressOn(middle);
        student.PressOn(chosen);
        Click(student.Desk(), student.Main().Bt3_Sterio);
        EXPECT_EQ(IsForParallelEyes(student), topmost) << row;
      }
    }
  }
}

// Red is the turned view. If that is the right eye's view, atoms in front are further left in red,
// and it is the right eye that should see red.
TEST(Truths, RedBelongsToTheRightEyeInRowsForParallelEyes) {
  for (const auto& [row, parallel] : {std::pair("VAL", true), std::pair("ALA", false)}) {
    Student student(kAminoAcids, row);
    Click(student.Desk(), student.Main().R_G_Stereo);
    const int front = student.Atom("1 H4");  // in front of CA, near which little moves
    const auto at_h4 = [&](Colour ink) {
      for (const Stroke& line : student.Lines(student.Main().Picture1)) {
        if (line.Ink == ink && line.Y1 == static_cast<float>(student.Store().ScrY[front])) {
          return line.X1;
        }
      }
      ADD_FAILURE() << "no line at H4";
      return 0.0F;
    };
    const float red = at_h4(Rgb(255, 0, 0)), green = at_h4(Rgb(0, 255, 0));
    EXPECT_EQ(red < green, parallel) << row;
  }
}

// The hand of a carbon by the rule of Cahn, Ingold and Prelog: its three heavier neighbours in the
// order of their rank, seen with the lightest pointing away. In right-handed coordinates the triple
// product is positive for S.
char HandOf(const Student& student, const char* centre, const char* first, const char* second,
            const char* third) {
  return student.Hand(student.Atom(centre), student.Atom(first), student.Atom(second),
                      student.Atom(third)) > 0
             ? 'S'
             : 'R';
}

TEST(Truths, IsoleucineIsAlloAndThreonineIsNatural) {
  const Student isoleucine(kAminoAcids, "ILE");
  EXPECT_EQ(HandOf(isoleucine, "1 CA", "1 N", "1 C", "1 CB"), 'S');
  // At CB: CA carries N and comes first, then CG1, which carries carbon, then the methyl group.
  EXPECT_EQ(HandOf(isoleucine, "1 CB", "1 CA", "1 CG1", "1 CG2"), 'R');
  const Student threonine(kAminoAcids, "THR");
  EXPECT_EQ(HandOf(threonine, "1 CA", "1 N", "1 C", "1 CB"), 'S');
  EXPECT_EQ(HandOf(threonine, "1 CB", "1 OG1", "1 CA", "1 CG2"), 'R');
  EXPECT_TRUE(Says(kPage, "(2S,3R), where the natural form is (2S,3S)"));
}

}  // namespace
}  // namespace orvane
