#include "draw/fast_wire.h"

#include "runtime/arithmetic.h"

namespace orvane {
namespace {

class PointTable {
 public:
  struct Place {
    Int16 X, Y;
  };
  Place& operator[](int number) {
    if (number < 1 || number > 1000) FailSubscript(number);
    return places_[static_cast<std::size_t>(number)];
  }

 private:
  std::array<Place, 1001> places_{};
};

}  // namespace

void PaintFastWire(Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  PictureBox& surface = desk.main.Picture1;
  PointTable points;
  for (int b = 1; b <= molecule.BondCount; ++b) {
    points[b] = {RoundToInt16(molecule.ScrX[b]), RoundToInt16(molecule.ScrY[b])};
    const auto from = points[molecule.BondA[b]];
    const auto to = points[molecule.BondB[b]];
    surface.Line(from.X, from.Y, to.X, to.Y, surface.ForeColor);
  }
}

}  // namespace orvane
