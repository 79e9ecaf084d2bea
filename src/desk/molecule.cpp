#include "desk/molecule.h"

namespace orvane {

void ClearBondTables(Molecule& molecule) {
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.BondA[i] = 0;
    molecule.BondB[i] = 0;
    molecule.HBondA[i] = 0;
    molecule.HBondB[i] = 0;
  }
}

}  // namespace orvane
