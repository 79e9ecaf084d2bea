// The store: the one structure that is loaded, as it was read, as the view has changed it, and
// where it lies on the surface.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/fixed_text.h"
#include "runtime/int16.h"
#include "runtime/slots.h"

namespace orvane {

struct Point {
  double X = 0, Y = 0, Z = 0;
};

using NameField = FixedText<5>;     // atom name with its blanks, "  CA "
using ResidueField = FixedText<3>;  // residue name as stored, "ALA", "  A"

// Atoms and bonds are numbered from 1 in load order; slot 0 is never filled. A load does not clear
// what an earlier, larger structure left above the counts. Lengths in Angstrom.
struct Molecule {
  // Atom i, 1 to AtomCount.
  Slots<double> AtomX, AtomY, AtomZ;  // as read; written by the loader alone, used by all measures
  Slots<double> CurX, CurY, CurZ;     // working copy, turned and zoomed in place
  Slots<double> ScrX, ScrY;           // place on the surface, pixels, y downward
  Slots<Int16> AtomSerial;            // i itself, whatever number the record has
  Slots<Int16> ResSeq;
  Slots<NameField> AtomName;
  Slots<ResidueField> ResName;

  // Bond b, 1 to BondCount: BondA is the higher atom number.
  Slots<Int16> BondA, BondB;
  Slots<Int16> BondSerial;  // b itself
  // Hydrogen bond h, 1 to HBondCount: HBondA is the later atom.
  Slots<Int16> HBondA, HBondB;

  Int16 AtomCount;
  Int16 BondCount;
  Int16 HBondCount;  // reset by the hydrogen-bond search, not by the loader

  std::string MolText;  // records of 55 characters back to back; stays after the load
  std::string AtomRec;  // the record that the loader is reading

  double MaxX = 0, MaxY = 0, MaxZ = 0;
  // During a load, the smallest coordinates; after FitBox, the centre of the box, which the
  // projection reads under these names.
  double MinX = 0, MinY = 0, MinZ = 0;
  double BoxCentreX = 0, BoxCentreY = 0, BoxCentreZ = 0;
  double PivotX = 0, PivotY = 0, PivotZ = 0;  // the centre of all turns and zooms
  double FitScale = 0;                        // 1 / largest extent of the box

  // The pair that a scan is testing; also the pair that a measure line names. BondAtomB is 2 after
  // every load.
  Int16 BondAtomA, BondAtomB;
  // Scratch points passed between routines. The next turn takes its sense from what they hold.
  Point PointA, PointB;
  double DistResult = 0;  // last distance

  int MoleculeReady = 0;  // 1: commands work; else they beep

  // Loads begun, including those that failed. What keeps the number of an atom keeps this beside
  // it: after another load the number means another atom.
  std::uint64_t Loads = 0;
};

// The parts of a name field that painters and measures compare, blanks included. Each begins at the
// third character; an empty name gives empty parts.
inline std::string_view NameCut(const NameField& name, std::size_t width) {
  const std::string_view text = name;
  return text.size() < 3 ? std::string_view() : text.substr(2, width);
}
inline std::string_view ElementLetter(const NameField& name) { return NameCut(name, 1); }  // "C"
inline std::string_view ShortName(const NameField& name) { return NameCut(name, 2); }      // "CA"
inline std::string_view FullName(const NameField& name) { return NameCut(name, 3); }       // "CA1"

// Sets the bond and hydrogen-bond slots from 1 to the current AtomCount to 0.
void ClearBondTables(Molecule& molecule);

}  // namespace orvane
