#include "core/loader.h"

#include "core/record.h"
#include "draw/redraw_chain.h"
#include "measure/distance.h"
#include "measure/hydrogen_bonds.h"
#include "runtime/arithmetic.h"
#include "runtime/number_text.h"

namespace orvane {
namespace {

// Beyond every coordinate that eight columns with three decimals can hold.
constexpr double kBeyondAll = 10000;

void OpenBox(Molecule& molecule) {
  molecule.MaxX = molecule.MaxY = molecule.MaxZ = -kBeyondAll;
  molecule.MinX = molecule.MinY = molecule.MinZ = kBeyondAll;
}

void Widen(double& max, double& min, double value) {
  if (value > max) max = value;
  if (value < min) min = value;
}

void ReadAtom(Molecule& molecule, int i) {
  const std::string_view record = molecule.AtomRec;
  molecule.AtomName[i] = Cut(record, kAtomNameField);
  molecule.ResName[i] = Cut(record, kResNameField);
  molecule.ResSeq[i] = StrictInt16(Cut(record, kResSeqField));
  molecule.AtomX[i] = LenientNumber(Cut(record, kXField));
  molecule.AtomY[i] = LenientNumber(Cut(record, kYField));
  molecule.AtomZ[i] = LenientNumber(Cut(record, kZField));
  molecule.CurX[i] = molecule.AtomX[i];
  molecule.CurY[i] = molecule.AtomY[i];
  molecule.CurZ[i] = molecule.AtomZ[i];
  Widen(molecule.MaxX, molecule.MinX, molecule.AtomX[i]);
  Widen(molecule.MaxY, molecule.MinY, molecule.AtomY[i]);
  Widen(molecule.MaxZ, molecule.MinZ, molecule.AtomZ[i]);
}

void ReadRecords(Molecule& molecule) {
  molecule.AtomCount = 0;
  molecule.BondCount = 0;
  Int16 i;
  Int16 position = 1;
  molecule.AtomRec = "AT";
  while (IsAtomRecord(molecule.AtomRec)) {
    ++i;
    molecule.AtomRec = StepToRecord(molecule.MolText, i, position);
    if (!IsAtomRecord(molecule.AtomRec)) break;
    ++molecule.AtomCount;
    molecule.AtomSerial[i] = molecule.AtomCount;
    ReadAtom(molecule, i);
  }
}

}  // namespace

void LoadMolecule(Orvane_Desk& desk) {
  ++desk.molecule.Loads;
  TellWatcher(desk.main.Picture1, Aspect::Walk);  // a walk over the previous atoms ends
  OpenBox(desk.molecule);
  ReadRecords(desk.molecule);
  desk.main.Drive1.Visible = false;  // the file panel is never open during a load
  FindBonds(desk);
  FindHydrogenBonds(desk);
  FitBox(desk.molecule);
  RedrawView(desk);
  desk.molecule.BondAtomB = 2;
}

void FindBonds(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  molecule.BondCount = 0;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.PointA = {molecule.AtomX[i], molecule.AtomY[i], molecule.AtomZ[i]};
    molecule.BondAtomA = i;
    for (int j = 1; j < i; ++j) {
      molecule.PointB = {molecule.AtomX[j], molecule.AtomY[j], molecule.AtomZ[j]};
      molecule.BondAtomB = j;
      Distance(desk);
      const auto length = static_cast<float>(molecule.DistResult);
      if (length > 0.0F && length <= kBondLimit) {  // atoms on one spot are not bonded
        AppendBond(molecule);
        molecule.DistResult = 0;
      }
    }
  }
}

void AppendBond(Molecule& molecule) {
  const int b = molecule.BondCount + 1;
  molecule.BondSerial[b] = b;  // fails where there is no slot left; the count then stays in bounds
  molecule.BondA[b] = molecule.AtomSerial[molecule.BondAtomA];
  molecule.BondB[b] = molecule.AtomSerial[molecule.BondAtomB];
  molecule.BondCount = b;
}

void FitBox(Molecule& molecule) {
  const double rx = molecule.MaxX - molecule.MinX;
  const double ry = molecule.MaxY - molecule.MinY;
  const double rz = molecule.MaxZ - molecule.MinZ;
  double extent = 0;
  for (const double range : {rx, ry, rz}) {
    if (range >= extent) extent = range;
  }
  molecule.FitScale = Divide(1.0, extent);
  molecule.MinX = molecule.MinX + rx / 2;
  molecule.MinY = molecule.MinY + ry / 2;
  molecule.MinZ = molecule.MinZ + rz / 2;
  molecule.BoxCentreX = molecule.PivotX = molecule.MinX;
  molecule.BoxCentreY = molecule.PivotY = molecule.MinY;
  molecule.BoxCentreZ = molecule.PivotZ = molecule.MinZ;
}

}  // namespace orvane
