#include "draw/plane_painter.h"

#include "draw/backdrop.h"

namespace orvane {
namespace {

// A line of a plane, found by place: from the first atom of bond i to the second atom of bond
// i + Ahead, or from atom i to atom i + Ahead, if their short names are these.
struct PlaneLine {
  bool ByBond;
  int Ahead;
  std::string_view From, To;
};

// The lines of a stock chain with hydrogens, whose atoms and bonds stand in one fixed order.
constexpr PlaneLine kChainLines[] = {
    {true, 13, "C ", "N "},  // the peptide bond
    {true, 1, "O ", "CA"},   // the oxygen to the alpha carbons on both sides
    {true, 13, "O ", "CA"},  {true, 1, "H1", "CA"},  // the amide hydrogen likewise
    {false, 14, "CA", "H1"},
};

// The peptide bond of the dipeptide with the marked names.
constexpr PlaneLine kMarkedBond{true, 12, "C!", "N!"};

void Join(Orvane_Desk& desk, int a, int b) {
  const Molecule& molecule = desk.molecule;
  desk.main.Picture1.Line(molecule.ScrX[a], molecule.ScrY[a], molecule.ScrX[b], molecule.ScrY[b],
                          desk.colours.PlaneColour);
}

void PaintPlaneLine(Orvane_Desk& desk, const PlaneLine& line, int i) {
  const Molecule& molecule = desk.molecule;
  const int a = line.ByBond ? int(molecule.BondA[i]) : i;
  const int b = line.ByBond ? int(molecule.BondB[i + line.Ahead]) : i + line.Ahead;
  // Both names are read before either is compared: every i is checked against the end of the
  // arrays.
  const std::string_view from = ShortName(molecule.AtomName[a]);
  const std::string_view to = ShortName(molecule.AtomName[b]);
  if (from == line.From && to == line.To) Join(desk, a, b);
}

void MarkPlaneAtom(Orvane_Desk& desk, int i) {
  Drawing& drawing = desk.drawing;
  const NameField& name = desk.molecule.AtomName[i];
  if (ShortName(name) == "H!") drawing.PlaneH = i;
  if (ShortName(name) == "O!") drawing.PlaneO = i;
  if (FullName(name) == "CA1") drawing.PlaneCA1 = i;
  if (FullName(name) == "CA2") drawing.PlaneCA2 = i;
}

// The marks outlive the structure in which they were seen, so the names are checked again.
void CloseMarkedPlane(Orvane_Desk& desk) {
  const Drawing& drawing = desk.drawing;
  const auto& names = desk.molecule.AtomName;
  const bool all_seen =
      drawing.PlaneCA2 != 0 && drawing.PlaneH != 0 && drawing.PlaneO != 0 && drawing.PlaneCA1 != 0;
  if (!all_seen) return;
  if (ShortName(names[drawing.PlaneO]) != "O!" || ShortName(names[drawing.PlaneH]) != "H!") return;
  Join(desk, drawing.PlaneH, drawing.PlaneCA2);
  Join(desk, drawing.PlaneCA2, drawing.PlaneO);
  Join(desk, drawing.PlaneO, drawing.PlaneCA1);
  Join(desk, drawing.PlaneCA1, drawing.PlaneH);
}

}  // namespace

void PaintPlanes(Orvane_Desk& desk) {
  Drawing& drawing = desk.drawing;
  PictureBox& surface = desk.main.Picture1;
  ++drawing.PlanePaintCount;
  if (drawing.PlanesOnly == 1) ResetToBackground(desk);
  surface.DrawWidth = drawing.PlaneWidth;
  surface.FillStyle = 1;
  const Int16 bound = 2 * desk.molecule.AtomCount;
  for (drawing.PlaneIndex = 1; drawing.PlaneIndex <= bound; ++drawing.PlaneIndex) {
    const int i = drawing.PlaneIndex;
    if (drawing.ChainPlanes == 1) {
      for (const PlaneLine& line : kChainLines) PaintPlaneLine(desk, line, i);
    }
    MarkPlaneAtom(desk, i);
    PaintPlaneLine(desk, kMarkedBond, i);
  }
  CloseMarkedPlane(desk);
  surface.FillStyle = 0;  // the balls of the next picture are filled
}

}  // namespace orvane
