#include "draw/atom_painter.h"

#include "draw/backdrop.h"
#include "draw/elements.h"

namespace orvane {
namespace {

// Pairs that lie within bonding distance but are no bond, as first and second atom. The order
// counts: CB followed by H4 is a bond and is drawn.
struct UnmeantPair {
  std::string_view First, Second;
};
constexpr UnmeantPair kUnmeantPairs[] = {
    {"H4 ", "CB "},
    {"H4 ", "C! "},
    {"C  ", "H4 "},
    {"H4 ", "C  "},
};

// Second line of a double bond: right and down, whichever way the bond runs.
constexpr double kDoubleShift = 2;

bool IsElement(const NameField& name, char letter) {
  const std::string_view element = ElementLetter(name);
  return !element.empty() && element.front() == letter;
}

bool IsDrawn(const NameField& first, const NameField& second) {
  const bool first_is_hydrogen = IsElement(first, 'H');
  const bool second_is_hydrogen = IsElement(second, 'H');
  if (first_is_hydrogen && second_is_hydrogen) return false;
  if (!first_is_hydrogen && !second_is_hydrogen) return true;  // H4 is in every pair
  for (const UnmeantPair& pair : kUnmeantPairs) {
    if (FullName(first) == pair.First && FullName(second) == pair.Second) return false;
  }
  return true;
}

void TakeName(Orvane_Desk& desk, int atom) {
  desk.drawing.DrawName = desk.molecule.AtomName[atom];
  PickLineColour(desk);
}

Colour LineInk(const Orvane_Desk& desk) { return static_cast<Colour>(desk.drawing.LineColour); }

// LineColour is already that of atom `a`.
void PaintHalves(Orvane_Desk& desk, int a, int b) {
  const Molecule& molecule = desk.molecule;
  Drawing& drawing = desk.drawing;
  PictureBox& surface = desk.main.Picture1;
  const double ax = molecule.ScrX[a], ay = molecule.ScrY[a];
  const double bx = molecule.ScrX[b], by = molecule.ScrY[b];
  const double mx = (ax + bx) / 2, my = (ay + by) / 2;

  surface.Line(ax, ay, mx, my, LineInk(desk));
  // "O " with its blank is the oxygen of a carbonyl; O1 or OG is not.
  if (ShortName(drawing.DrawName) == "O ") {
    surface.Line(ax + kDoubleShift, ay + kDoubleShift, mx + kDoubleShift, my + kDoubleShift,
                 LineInk(desk));
    drawing.HalfIsDouble = 1;
  } else {
    drawing.HalfIsDouble = 0;
  }

  TakeName(desk, b);
  surface.Line(mx, my, bx, by, LineInk(desk));
  if (IsElement(drawing.DrawName, 'C') && drawing.HalfIsDouble == 1) {
    surface.Line(mx + kDoubleShift, my + kDoubleShift, bx + kDoubleShift, by + kDoubleShift,
                 LineInk(desk));
  }
}

void PaintBond(Orvane_Desk& desk, int bond) {
  const Molecule& molecule = desk.molecule;
  const int a = molecule.BondA[bond];
  const int b = molecule.BondB[bond];
  TakeName(desk, a);
  if (IsDrawn(molecule.AtomName[a], molecule.AtomName[b])) PaintHalves(desk, a, b);
  if (desk.drawing.HBondShown == 1) PaintHBond(desk, bond);
}

void PrintLabel(Orvane_Desk& desk, int atom) {
  PictureBox& surface = desk.main.Picture1;
  surface.CurrentX = desk.molecule.ScrX[atom];
  surface.CurrentY = desk.molecule.ScrY[atom];
  surface.ForeColor = desk.colours.LabelColour;
  surface.Print(desk.molecule.AtomName[atom]);
  surface.ForeColor = kPalette0;  // the outline of a ball uses it
}

void PaintBall(Orvane_Desk& desk, int atom) {
  PickBallStyle(desk);
  desk.main.Picture1.Circle(desk.molecule.ScrX[atom], desk.molecule.ScrY[atom],
                            desk.drawing.BallSize + desk.drawing.BallRadius);
  desk.drawing.LineColour = kPalette7;
}

// The label comes before the ball, so the ball covers the start of the text.
void PaintAtom(Orvane_Desk& desk, int atom) {
  desk.drawing.DrawName = desk.molecule.AtomName[atom];
  if (desk.drawing.LabelsOn == 1) PrintLabel(desk, atom);
  if (desk.drawing.BallsOn == 1) PaintBall(desk, atom);
}

}  // namespace

void PickLineColour(Orvane_Desk& desk) {
  if (desk.colours.ColourByElement != 1) {
    desk.drawing.LineColour = desk.colours.PenColour;
    return;
  }
  const ElementRow* element = FindElement(ElementLetter(desk.drawing.DrawName));
  if (element == nullptr) return;
  const bool vanishes = element->Letter == 'H' && desk.main.Picture1.PlainColour() == kPalette15;
  desk.drawing.LineColour = vanishes ? kPalette0 : element->Ink;
}

void PickBallStyle(Orvane_Desk& desk) {
  const ElementRow* element = FindElement(ElementLetter(desk.drawing.DrawName));
  if (element == nullptr) return;
  desk.main.Picture1.FillColor =
      desk.colours.ColourByElement == 1 ? element->Ink : desk.colours.PenColour;
  desk.drawing.BallRadius = element->BallRadius;
}

void PaintHBond(Orvane_Desk& desk, int n) {
  const Molecule& molecule = desk.molecule;
  PictureBox& surface = desk.main.Picture1;
  const int a = molecule.HBondA[n];
  const int b = molecule.HBondB[n];
  const double mx = (molecule.ScrX[a] + molecule.ScrX[b]) / 2;
  const double my = (molecule.ScrY[a] + molecule.ScrY[b]) / 2;

  surface.DrawWidth = 1;
  surface.DrawStyle = 2;
  TakeName(desk, a);
  surface.Line(molecule.ScrX[a], molecule.ScrY[a], mx, my, LineInk(desk));
  TakeName(desk, b);
  surface.Line(mx, my, molecule.ScrX[b], molecule.ScrY[b], LineInk(desk));
  surface.DrawStyle = 0;
}

void PaintAtomFamily(Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  PictureBox& surface = desk.main.Picture1;
  desk.drawing.HalfIsDouble = 0;
  if (desk.drawing.OverdrawPass != 1) ResetToBackground(desk);

  // There may be more bonds than atoms, but never more than twice as many. Both fit 16 bits or
  // fail.
  const Int16 last_step = 2 * molecule.AtomCount;
  for (Int16 i = 1; i <= last_step; ++i) {
    surface.DrawWidth = desk.drawing.BondWidth;
    if (i <= molecule.BondSerial[molecule.BondCount]) PaintBond(desk, i);
    surface.DrawWidth = 1;  // the outline of a ball stays thin
    if (i <= molecule.AtomCount) PaintAtom(desk, i);
  }
}

}  // namespace orvane
