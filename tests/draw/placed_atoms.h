// Atoms put straight onto the surface, for tests of painters: no record, no load, no projection.
#pragma once

#include "desk_fixture.h"
#include "draw/strokes_text.h"

namespace orvane {

struct PlacedAtoms : DeskAtWork {
  // The whole name field, "  CA ".
  int Atom(std::string_view name, double x, double y) {
    Molecule& molecule = desk.molecule;
    molecule.AtomCount += 1;
    const int i = molecule.AtomCount;
    molecule.AtomSerial[i] = i;
    molecule.AtomName[i] = NameField(name);
    molecule.ScrX[i] = x;
    molecule.ScrY[i] = y;
    molecule.MoleculeReady = 1;
    return i;
  }

  // First and second atom, in the roles the painter gives them.
  void Bond(int a, int b) {
    Molecule& molecule = desk.molecule;
    molecule.BondCount += 1;
    const int bond = molecule.BondCount;
    molecule.BondA[bond] = a;
    molecule.BondB[bond] = b;
    molecule.BondSerial[bond] = bond;
  }

  void HBond(int number, int a, int b) {
    desk.molecule.HBondA[number] = a;
    desk.molecule.HBondB[number] = b;
  }

  std::string Strokes() const { return StrokesAsText(*desk.main.Picture1.Image()); }
};

}  // namespace orvane
