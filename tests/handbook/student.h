// What a student does and reads, and what the pages for students and teachers say of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stock/structure.h"

namespace orvane {

inline constexpr Rows kAminoAcids = &MainWindow::AA_Lst;

using MeasureButton = Control MainWindow::*;

// A page of the project as one line: line breaks and runs of blanks become one blank.
std::string PageAsLine(std::string_view path);
// Whether the page has that phrase, wherever its lines break.
bool Says(std::string_view path, std::string_view phrase);

// A number between back quotes, as the pages give what is read off the panel: `-123`, `1.46`.
std::string Quoted(double value, int decimals);

// A student before the structure of one row.
class Student : public Structure {
 public:
  using Structure::Structure;

  MainWindow& Main() { return Desk().main; }

  // A whole pixel at which a press takes this atom and no other.
  bool CanPressAlone(int atom) const;
  // Presses on an atom, alone if that can be.
  void PressOn(int atom);
  // Presses on the atoms, each alone, one after the other; the test fails where that cannot be.
  void PressOn(const std::vector<std::string>& labels);
  // Presses on the atoms, then on the button for so many: distance, angle or torsion. The panel.
  std::string Measure(const std::vector<std::string>& labels);
  double Value();  // the number on the panel

  std::vector<Stroke> Lines(const PictureBox& box) const;
  std::vector<Stroke> Lines(const ImageBox& box) const;

 private:
  struct Pixel {
    int X = 0, Y = 0;
    bool IsThere = false;
  };
  Pixel PlaceOf(int atom) const;
};

// The first word of each row of a list, as the pages name rows.
std::vector<std::string> KeysOf(const List& list);

}  // namespace orvane
