#include "measure/readout.h"

#include "runtime/number_text.h"

namespace orvane {

void ShowReadout(Orvane_Desk& desk, const Readout& readout) {
  const Molecule& molecule = desk.molecule;
  std::string names, residues;
  for (const int atom : readout.Atoms) {
    if (!residues.empty()) {
      names += " -";
      residues += " - ";
    }
    names += std::string_view(molecule.AtomName[atom]);
    residues += std::string(molecule.ResName[atom]) + " " + std::to_string(molecule.ResSeq[atom]);
  }
  desk.main.P_Dst_Show.Caption = std::string(readout.Label) + names + ": " +
                                 TwoDecimals(readout.Value) + std::string(readout.Unit) + "\n" +
                                 "   " + residues;
}

void EmptyReadout(Orvane_Desk& desk) {
  auto& caption = desk.main.P_Dst_Show.Caption;
  if (!caption.Get().empty()) caption = "";
}

}  // namespace orvane
