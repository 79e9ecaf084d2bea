// What the painters read: modes, widths, and the fields through which they pass on names and
// colours.
#pragma once

#include <string>

#include "desk/molecule.h"
#include "runtime/colour.h"
#include "runtime/int16.h"

namespace orvane {

struct Drawing {
  int DrawFamily = 0;  // 0 atoms and bonds, 1 trace
  int PeptideOn = 0;   // 1: peptide planes are painted as well
  int PlanesOnly = 0;  // 1: the plane painter wipes first
  int RibbonOn = 0;
  int CartoonOn = 0;
  int BallsOn = 0;
  int LabelsOn = 0;
  int HBondShown = 0;
  int NucleicMode = 0;   // table of hydrogen bonds: 1 base pairs, 0 nitrogen and oxygen
  int ChainPlanes = 0;   // 1: the structure is a stock chain with hydrogens
  Int16 BondWidth = 1;   // 1 to 6
  Int16 PlaneWidth = 1;  // 1 to 6
  Int16 BallSize = 3;    // 1 to 6
  int OverdrawPass = 0;  // 1 only while a red-green picture is composed: the wipe is left out
  Int16 FastWire = 0;    // no command sets it; the path it opens is kept dormant

  NameField DrawName;     // the atom being painted, for the colour pickers
  double LineColour = 0;  // colour of the next half-bond; an unknown element keeps the last one
  double BallRadius = 0;  // element radius of the next ball, kept the same way
  int HalfIsDouble = 0;   // 1: the first half of the current bond was doubled

  // The last seen atoms of the marked peptide plane; 0 until seen, never cleared.
  Int16 PlaneIndex, PlaneH, PlaneO, PlaneCA1, PlaneCA2;
  Int16 PlanePaintCount;  // runs of the plane painter; nothing reads it, and it overflows
};

}  // namespace orvane
