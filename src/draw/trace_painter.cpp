#include "draw/trace_painter.h"

#include <cmath>
#include <span>

#include "draw/atom_painter.h"
#include "draw/backdrop.h"

namespace orvane {
namespace {

// Consecutive alpha carbons of a chain lie 3.8 Angstrom apart; the next but one never comes this
// near, nor does the end of another chain.
constexpr double kJoinedBelow = 4.0;  // Angstrom

// With five atoms and five bonds a residue, the bond list runs CA-N, C-CA, O-C, R-CA, N'-C, CA'-N',
// C'-CA': the second atom of the entry six places after CA-N is the next alpha carbon.
constexpr int kNextAlphaCarbon = 6;

// Lines side by side, displaced along the screen's diagonal and not across the segment: the band
// changes its width as the molecule turns, and that is how it should look.
constexpr double kThinOffsets[] = {0};
constexpr double kRibbonOffsets[] = {-4, -2, 0, 2, 4};
constexpr double kCartoonOffsets[] = {-4, 0, 4};

struct TraceLook {
  int LineWidth;
  std::span<const double> Offsets;  // pixels, in the order of drawing
};
constexpr TraceLook kThin{2, kThinOffsets};
constexpr TraceLook kRibbon{2, kRibbonOffsets};
constexpr TraceLook kCartoon{10, kCartoonOffsets};

const TraceLook& LookInForce(const Drawing& drawing) {
  if (drawing.RibbonOn == 1) return kRibbon;
  if (drawing.CartoonOn == 1) return kCartoon;
  return kThin;
}

// As read, so that neither zoom nor turn opens or closes a gap.
double DistanceAsRead(const Molecule& molecule, int a, int b) {
  const double dy = molecule.AtomY[a] - molecule.AtomY[b];
  const double dx = molecule.AtomX[a] - molecule.AtomX[b];
  const double dz = molecule.AtomZ[a] - molecule.AtomZ[b];
  return std::sqrt(dy * dy + dx * dx + dz * dz);
}

void PaintSegment(PictureBox& surface, const Molecule& molecule, int a, int b,
                  const TraceLook& look, Colour colour) {
  surface.DrawWidth = look.LineWidth;
  for (const double k : look.Offsets) {
    surface.Line(molecule.ScrX[a] + k, molecule.ScrY[a] + k, molecule.ScrX[b] + k,
                 molecule.ScrY[b] + k, colour);
  }
}

}  // namespace

void PaintTraceFamily(Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  const Colour colour = desk.colours.PenColour;
  const TraceLook& look = LookInForce(desk.drawing);
  ResetToBackground(desk);
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    if (desk.drawing.HBondShown == 1) PaintHBond(desk, i);
    // Found by position, with the atom number as bond number: in a structure with another order
    // nothing is found, or an alpha carbon is joined to itself, which paints a dot.
    const int a = molecule.BondA[i];
    const int b = molecule.BondB[i + kNextAlphaCarbon];
    if (ShortName(molecule.AtomName[a]) != "CA" || ShortName(molecule.AtomName[b]) != "CA")
      continue;
    if (DistanceAsRead(molecule, a, b) < kJoinedBelow) {
      PaintSegment(desk.main.Picture1, molecule, a, b, look, colour);
    }
  }
}

}  // namespace orvane
