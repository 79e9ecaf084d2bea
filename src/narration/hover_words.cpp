#include "narration/hover_words.h"

#include "narration/atom_words.h"
#include "narration/map_words.h"
#include "narration/recipe.h"

namespace orvane {
namespace {

std::string AtomAndRecipe(const Orvane_Desk& desk, int atom) {
  if (desk.view.AutoRotateOn == 1) return {};  // the atom moves on before this is read
  const std::string recipe = RecipeWords(desk, atom);
  return AtomWords(desk, atom) + (recipe.empty() ? "" : "\n") + recipe;
}

}  // namespace

std::string RestWords(const Orvane_Desk& desk, const Control& control, float x, float y) {
  if (&control == &desk.main.Picture1) {
    return AtomAndRecipe(desk, AtomAt(desk, x, y, kRestReach));
  }
  if (const auto* half = dynamic_cast<const ImageBox*>(&control)) {
    return AtomAndRecipe(desk, AtomAt(desk, *half, x, y, kRestReach));
  }
  if (const auto* area = dynamic_cast<const MapArea*>(&control)) {
    return MapWords(desk, *area, x, y, kRestReach);
  }
  return {};
}

}  // namespace orvane
