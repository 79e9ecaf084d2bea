// A stock structure as a student gets it, by a click on its row, with the measures that a chemist
// wants.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "desk_fixture.h"
#include "stock_check/geometry.h"

namespace orvane {

using Rows = List MainWindow::*;
inline constexpr Rows kProteins = &MainWindow::Pro_Lst;
inline constexpr Rows kNucleotides = &MainWindow::Nuc_Lst;
inline constexpr Rows kStrands = &MainWindow::DNA_Lst;

struct Pair {
  int A = 0, B = 0;  // atom numbers, A above B
};

// One line of a picture, by the atoms at its ends; 0 where there is no atom.
struct AtomLine {
  int From = 0, To = 0;
};

class Structure {
 public:
  // Clicks the row of the list that begins like this.
  Structure(Rows list, std::string_view row);

  Orvane_Desk& Desk() { return work_.desk; }
  const Molecule& Store() const { return work_.desk.molecule; }

  int Count() const { return Store().AtomCount; }
  std::string Name(int atom) const;        // without its blanks: "CA"
  std::string Label(int atom) const;       // with its residue: "5 CA"
  int Atom(std::string_view label) const;  // the first atom of that label; the test fails if none
  std::vector<int> Named(std::string_view name) const;
  Point At(int atom) const;

  // Measured by the program's own routines on the coordinates as read; Angstrom and degrees.
  double Length(int a, int b);
  double Angle(int a, int b, int c);
  // The torsion with its sign and full size, which the program's one-argument arctangent loses.
  double Torsion(int a, int b, int c, int d) const;
  // What the program's routine makes of it, with the sign that the stock chains get.
  double ShownTorsion(int a, int b, int c, int d, int kind);
  // (a - centre) x (b - centre) . (c - centre): positive for one hand, negative for the other.
  double Hand(int centre, int a, int b, int c) const;

  std::vector<Pair> Bonds() const;
  std::vector<Pair> HydrogenBonds() const;
  // Entries of the bond list that are not chemical bonds: two hydrogens, or a hydrogen too far
  // away.
  bool IsContact(Pair pair);
  // Chemical bonds as "C1-O1", each with its names in alphabetical order, sorted, without residues.
  std::vector<std::string> BondNames();

  // The lines now on the surface.
  std::vector<AtomLine> Lines();

 private:
  DeskAtWork work_;
};

// Splits "a b c" into its words.
std::vector<std::string> WordsOf(std::string_view text);

// How far the farthest of these atoms lies from a plane through all of them; Angstrom.
double LargestDistanceFromPlane(const Structure& structure, const std::vector<int>& atoms);

}  // namespace orvane
