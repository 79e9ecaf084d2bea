#include "handbook/student.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

#include "house/source_tree.h"

namespace orvane {
namespace {

constexpr int kReach = 3;  // a press takes what lies within this many pixels, down and across

bool Takes(const Molecule& molecule, int atom, int x, int y) {
  return std::abs(std::floor(molecule.ScrX[atom]) - x) <= kReach &&
         std::abs(std::floor(molecule.ScrY[atom]) - y) <= kReach;
}

std::vector<Stroke> LinesAmong(const std::vector<Stroke>& strokes) {
  std::vector<Stroke> lines;
  for (const Stroke& stroke : strokes) {
    if (stroke.Kind == StrokeKind::Line) lines.push_back(stroke);
  }
  return lines;
}

}  // namespace

std::string PageAsLine(std::string_view path) {
  const std::string text = house::ReadProjectFile(path);
  EXPECT_FALSE(text.empty()) << path;
  std::string line;
  for (const std::string& word : WordsOf(text)) {
    if (!line.empty()) line += ' ';
    line += word;
  }
  return line;
}

bool Says(std::string_view path, std::string_view phrase) {
  return PageAsLine(path).find(phrase) != std::string::npos;
}

std::string Quoted(double value, int decimals) {
  char text[32];
  std::snprintf(text, sizeof text, "`%.*f`", decimals, value);
  return text;
}

Student::Pixel Student::PlaceOf(int atom) const {
  const int x = static_cast<int>(std::floor(Store().ScrX[atom]));
  const int y = static_cast<int>(std::floor(Store().ScrY[atom]));
  for (int dx = -kReach; dx <= kReach; ++dx) {
    for (int dy = -kReach; dy <= kReach; ++dy) {
      bool alone = true;
      for (int other = 1; other <= Count() && alone; ++other) {
        alone = other == atom || !Takes(Store(), other, x + dx, y + dy);
      }
      if (alone) return {x + dx, y + dy, true};
    }
  }
  return {};
}

bool Student::CanPressAlone(int atom) const { return PlaceOf(atom).IsThere; }

void Student::PressOn(int atom) {
  Pixel pixel = PlaceOf(atom);
  if (!pixel.IsThere) {
    pixel = {static_cast<int>(std::floor(Store().ScrX[atom])),
             static_cast<int>(std::floor(Store().ScrY[atom]))};
  }
  Press(Desk(), Main().Picture1, kLeftButton, static_cast<float>(pixel.X),
        static_cast<float>(pixel.Y));
}

void Student::PressOn(const std::vector<std::string>& labels) {
  for (const std::string& label : labels) {
    EXPECT_TRUE(CanPressAlone(Atom(label))) << label;
    PressOn(Atom(label));
  }
}

std::string Student::Measure(const std::vector<std::string>& labels) {
  PressOn(labels);
  Control& button = labels.size() == 2   ? static_cast<Control&>(Main().Bt3_Dts)
                    : labels.size() == 3 ? static_cast<Control&>(Main().Bt3_Ang)
                                         : static_cast<Control&>(Main().Bt3_Trg);
  Click(Desk(), button);
  return Main().P_Dst_Show.Caption;
}

double Student::Value() {
  const std::string panel = Main().P_Dst_Show.Caption;
  const std::size_t colon = panel.find(": ");
  EXPECT_NE(colon, std::string::npos) << panel;
  return std::atof(panel.c_str() + colon + 2);
}

std::vector<Stroke> Student::Lines(const PictureBox& box) const {
  return LinesAmong(box.Image()->Strokes);
}

std::vector<Stroke> Student::Lines(const ImageBox& box) const {
  return box.Shown() ? LinesAmong(box.Shown()->Strokes) : std::vector<Stroke>();
}

std::vector<std::string> KeysOf(const List& list) {
  std::vector<std::string> keys;
  for (const std::string& row : list.Rows.Get()) keys.push_back(row.substr(0, row.find(' ')));
  return keys;
}

}  // namespace orvane
