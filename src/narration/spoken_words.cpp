#include "narration/spoken_words.h"

#include "controls/spoken.h"
#include "narration/atom_walk.h"
#include "narration/picture_words.h"

namespace orvane {

std::string NameNow(const Orvane_Desk& desk, const Control& control) {
  const bool shows = &control == &desk.main.Picture1 || &control == &desk.main.P_Sterio;
  return shows ? PictureWords(desk) : SpokenName(control);
}

std::string DescriptionNow(const Orvane_Desk& desk, const Control& control) {
  const std::string walk = &control == &desk.main.Picture1 ? WalkWordsAndRecipe(desk) : "";
  return walk.empty() ? std::string(control.Row.Tip) : walk;
}

}  // namespace orvane
