// What a student does and reads, and what the pages for students and teachers say about it.
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
// Whether the page has that phrase, no matter where its lines break.
bool Says(std::string_view path, std::string_view phrase);

// A number between back quotes. The pages show numbers from the panel like that: `-123`, `1.46`.
std::string Quoted(double value, int decimals);

// A student looking at the structure of one row.
class Student : public Structure {
 public:
  using Structure::Structure;

  MainWindow& Main() { return Desk().main; }

  // A whole pixel at which a press takes this atom and no other.
  bool CanPressAlone(int atom) const;
  // Presses on an atom, on it alone if possible.
  void PressOn(int atom);
  // Presses on the atoms one after the other, each alone; the test fails if that is impossible.
  void PressOn(const std::vector<std::string>& labels);
  // Presses on the atoms, then on the button for that many: distance, angle or torsion. Returns the
  // panel.
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

// The first word of each row of a list, by which the pages name the rows.
std::vector<std::string> KeysOf(const List& list);

}  // namespace orvane
