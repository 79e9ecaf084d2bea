#include "commands/size_keys.h"

#include "draw/redraw_chain.h"
#include "stereo/refresh_tail.h"
#include "windows/panels.h"

namespace orvane {
namespace {

constexpr int kSmallest = 1;
constexpr int kLargest = 6;

bool Always(const Drawing&) { return true; }
bool BallsShown(const Drawing& drawing) { return drawing.BallsOn == 1; }
bool PlanesShown(const Drawing& drawing) {
  return drawing.PlanesOnly == 1 || drawing.PeptideOn == 1;
}

struct SizeKey {
  Int16 Drawing::*Field;
  int Step;
  bool (*Acts)(const Drawing&);
};

// By index of the key.
constexpr std::array kSizeKeys = {
    SizeKey{&Drawing::BallSize, +1, BallsShown},     // "Bs+"
    SizeKey{&Drawing::BallSize, -1, BallsShown},     // "Bs-"
    SizeKey{&Drawing::BondWidth, +1, Always},        // "Mw+"
    SizeKey{&Drawing::BondWidth, -1, Always},        // "Mw-"
    SizeKey{&Drawing::PlaneWidth, +1, PlanesShown},  // "Pw+"
    SizeKey{&Drawing::PlaneWidth, -1, PlanesShown},  // "Pw-"
};

void StepSize(Drawing& drawing, const SizeKey& key) {
  if (!key.Acts(drawing)) return;
  Int16& size = drawing.*key.Field;
  if (key.Step > 0 ? size < kLargest : size > kSmallest) size += key.Step;
}

}  // namespace

void Sz_Balls_MouseDown(Orvane_Desk& desk, const Event& event) {
  HidePanels(desk.main);
  if (event.Button != kLeftButton) return;
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  StepSize(desk.drawing, kSizeKeys.at(static_cast<std::size_t>(event.Index)));
  RepaintPasses(desk);
  RefreshTail(desk);
}

}  // namespace orvane
