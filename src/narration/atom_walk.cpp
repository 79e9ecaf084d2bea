#include "narration/atom_walk.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "desk/press_life.h"
#include "measure/picks.h"
#include "narration/atom_words.h"
#include "narration/recipe.h"

namespace orvane {
namespace {

constexpr int kFarthest = 3;  // surface pixels beside the atom, the reach of a press

bool CanWalk(const Orvane_Desk& desk) {
  return desk.molecule.MoleculeReady == 1 && desk.molecule.AtomCount > 0 &&
         desk.main.Picture1.IsOpenToUser();
}

void TellOfWalk(Orvane_Desk& desk) { TellWatcher(desk.main.Picture1, Aspect::Walk); }

void WalkTo(Orvane_Desk& desk, int atom) {
  if (!CanWalk(desk)) return desk.platform.Beep();
  desk.walk = {.Number = std::clamp<int>(atom, 1, desk.molecule.AtomCount),
               .Load = desk.molecule.Loads};
  TellOfWalk(desk);
}

int CountTakenAt(const Molecule& molecule, float x, float y) {
  int taken = 0;
  for (int i = 1; i <= molecule.AtomCount; ++i) taken += IsTakenAt(molecule, i, x, y) ? 1 : 0;
  return taken;
}

struct PlaceToPress {
  float X = 0, Y = 0;
  int Taken = 0;     // atoms that a press there takes
  int Distance = 0;  // from the atom, squared

  bool IsBetterThan(const PlaceToPress& other) const {
    return std::pair(Taken, Distance) < std::pair(other.Taken, other.Distance);
  }
};

// Of the whole pixels around the atom, the one where a press takes the fewest other atoms, and of
// those the nearest. None when all of them lie outside the picture.
std::optional<PlaceToPress> BestPlace(const Orvane_Desk& desk, int atom) {
  const Molecule& molecule = desk.molecule;
  const auto on_picture = [](float at, int side) {
    return at >= 0 && at < static_cast<float>(side);
  };
  std::optional<PlaceToPress> best;
  for (int dy = -kFarthest; dy <= kFarthest; ++dy) {
    for (int dx = -kFarthest; dx <= kFarthest; ++dx) {
      PlaceToPress place{.X = static_cast<float>(molecule.ScrX[atom] + dx),
                         .Y = static_cast<float>(molecule.ScrY[atom] + dy),
                         .Distance = dx * dx + dy * dy};
      if (!on_picture(place.X, desk.main.Picture1.ScaleWidth()) ||
          !on_picture(place.Y, desk.main.Picture1.ScaleHeight()) ||
          !IsTakenAt(molecule, atom, place.X, place.Y)) {
        continue;
      }
      place.Taken = CountTakenAt(molecule, place.X, place.Y);
      if (!best || place.IsBetterThan(*best)) best = place;
    }
  }
  return best;
}

// The atom that was taken as the first, second, third or fourth of the cycle.
int PickOf(const Orvane_Desk& desk, int order) {
  const int picks[] = {desk.molecule.BondAtomA, desk.molecule.BondAtomB, desk.measure.PickAtomC,
                       desk.measure.PickAtomD};
  return picks[order - 1];
}

bool IsOnPicture(const Orvane_Desk& desk, int atom) {
  const double x = desk.molecule.ScrX[atom], y = desk.molecule.ScrY[atom];
  return x >= 0 && x < desk.main.Picture1.ScaleWidth() && y >= 0 &&
         y < desk.main.Picture1.ScaleHeight();
}

// Picks by the pointer continue the cycle, and four of them bring it back to the same state.
bool IsPickInForce(const Orvane_Desk& desk) {
  const WalkedAtom& walk = desk.walk;
  return walk.Picked != 0 && desk.measure.PickState == walk.Order % 4 &&
         PickOf(desk, walk.Order) == walk.Picked;
}

// A press that failed on the way has not taken every atom there, so nothing is said of it.
void KeepPick(Orvane_Desk& desk, const PlaceToPress& place, int state_before) {
  const int state = desk.measure.PickState;
  if (state != (state_before + place.Taken) % 4) return;
  desk.walk.Taken = place.Taken;
  desk.walk.Order = state == 0 ? 4 : state;
  desk.walk.Picked = PickOf(desk, desk.walk.Order);
}

constexpr std::string_view kOrders[] = {"", "first", "second", "third", "fourth"};

}  // namespace

std::string WalkWords(const Orvane_Desk& desk) {
  const int atom = AtomOfWalk(desk);
  if (atom == 0) return "";
  std::string words = AtomWords(desk, atom);
  if (!IsOnPicture(desk, atom)) words += ", outside the picture";
  if (!IsPickInForce(desk)) return words;
  const std::string order(kOrders[desk.walk.Order]);
  if (desk.walk.Taken == 1) return words + ", picked as the " + order;
  return words + ", picked with " + std::to_string(desk.walk.Taken - 1) + " more close by; the " +
         order + " pick is atom " + std::to_string(desk.walk.Picked);
}

std::string WalkWordsAndRecipe(const Orvane_Desk& desk) {
  const std::string recipe = RecipeWords(desk, AtomOfWalk(desk));
  return WalkWords(desk) + (recipe.empty() ? "" : "\n") + recipe;
}

int AtomOfWalk(const Orvane_Desk& desk) {
  const bool is_there = CanWalk(desk) && desk.walk.Load == desk.molecule.Loads;
  return is_there ? desk.walk.Number : 0;
}

void WalkToNext(Orvane_Desk& desk) { WalkTo(desk, AtomOfWalk(desk) + 1); }

void WalkToPrevious(Orvane_Desk& desk) {
  const int from = AtomOfWalk(desk);
  WalkTo(desk, from == 0 ? int{desk.molecule.AtomCount} : from - 1);
}

void WalkToFirst(Orvane_Desk& desk) { WalkTo(desk, 1); }
void WalkToLast(Orvane_Desk& desk) { WalkTo(desk, desk.molecule.AtomCount); }

void PickWalked(Orvane_Desk& desk) {
  const int atom = AtomOfWalk(desk);
  if (atom == 0) return desk.platform.Beep();
  const auto place = BestPlace(desk, atom);
  desk.walk = {.Number = atom, .Load = desk.molecule.Loads};
  if (place) {
    const int state_before = desk.measure.PickState;
    PressAndClick(desk, desk.main.Picture1, place->X, place->Y);
    KeepPick(desk, *place, state_before);
  } else {
    desk.platform.Beep();
  }
  TellOfWalk(desk);
}

}  // namespace orvane
