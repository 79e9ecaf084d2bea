#include "narration/atom_words.h"

#include <cmath>

#include "narration/names.h"

namespace orvane {
namespace {

// The third character of an atom's name, and the word for what it means.
struct WordOfElement {
  char Letter;
  std::string_view Word;
};
constexpr WordOfElement kElementWords[] = {
    {'N', "Nitrogen"},   {'C', "Carbon"},   {'O', "Oxygen"},     {'S', "Sulphur"},
    {'P', "Phosphorus"}, {'H', "Hydrogen"}, {'R', "Side chain"},
};

std::string_view ElementWordOf(const NameField& name) {
  const std::string_view letter = ElementLetter(name);
  return letter.empty() ? "Atom" : ElementWord(letter.front());
}

// Strokes are narrowed to 32 bits, and a turn there and back leaves a trace of rounding.
constexpr double kSameSpot = 0.01;  // surface pixels

bool Meet(double a, double b) { return std::fabs(a - b) < kSameSpot; }

// The atom whose place on the surface is there; the last of several.
int AtomThere(const Molecule& molecule, float x, float y) {
  for (int i = molecule.AtomCount; i >= 1; --i) {
    if (Meet(molecule.ScrX[i], x) && Meet(molecule.ScrY[i], y)) return i;
  }
  return 0;
}

// A pointer over a picture, in its pixels, and what was found under it so far.
class Search {
 public:
  Search(const Molecule& molecule, double x, double y, double reach)
      : molecule_(molecule), x_(x), y_(y), nearest_(reach) {}

  // `held` is the stroke on the surface, whose places are those of the atoms; `shown` is the same
  // stroke in the picture under the pointer.
  void Ask(const Stroke& held, const Stroke& shown) {
    const double ball = shown.Kind == StrokeKind::Circle ? shown.X2 + shown.Width / 2.0 : -1;
    AskPlace(held.X1, held.Y1, Away(shown.X1, shown.Y1), ball);
    if (shown.Kind != StrokeKind::Line) return;
    AskPlace(held.X2, held.Y2, Away(shown.X2, shown.Y2), ball);
  }

  int Found() const { return in_front_ != 0 ? in_front_ : beside_; }

 private:
  double Away(double x, double y) const {
    const double dx = x - x_, dy = y - y_;
    return std::sqrt(dx * dx + dy * dy);
  }

  void AskPlace(float x, float y, double away, double ball) {
    if (away > ball && away > nearest_) return;
    const int atom = AtomThere(molecule_, x, y);
    if (atom == 0) return;
    if (away <= ball) in_front_ = atom;
    if (away > nearest_) return;
    nearest_ = away;
    beside_ = atom;
  }

  const Molecule& molecule_;
  const double x_, y_;
  double nearest_;
  int in_front_ = 0, beside_ = 0;
};

// The painters draw the same strokes in the same order from any side, and a turn about the vertical
// leaves every height as it is.
bool IsTurned(const Picture& held, const Picture& shown) {
  if (held.Strokes.size() != shown.Strokes.size()) return false;
  for (std::size_t k = 0; k < held.Strokes.size(); ++k) {
    const Stroke& a = held.Strokes[k];
    const Stroke& b = shown.Strokes[k];
    if (a.Kind != b.Kind || !Meet(a.Y1, b.Y1) || !Meet(a.Y2, b.Y2)) return false;
  }
  return true;
}

}  // namespace

std::string_view ElementWord(char letter) {
  for (const WordOfElement& row : kElementWords) {
    if (letter == row.Letter) return row.Word;
  }
  return "Atom";
}

std::string AtomWords(const Orvane_Desk& desk, int atom) {
  const Molecule& molecule = desk.molecule;
  if (atom < 1 || atom > molecule.AtomCount) return {};
  std::string words(ElementWordOf(molecule.AtomName[atom]));
  words += " " + std::string(Trimmed(molecule.AtomName[atom]));
  words += " of " + ResidueName(desk, atom);
  if (HasSeveralResidues(molecule)) words += " " + std::to_string(molecule.ResSeq[atom]);
  return words + ", atom " + std::to_string(atom);
}

int AtomAt(const Orvane_Desk& desk, float x, float y, float reach) {
  Search search(desk.molecule, x, y, reach);
  const auto picture = desk.main.Picture1.Image();
  for (const Stroke& stroke : picture->Strokes) search.Ask(stroke, stroke);
  return search.Found();
}

int AtomAt(const Orvane_Desk& desk, const ImageBox& half, float x, float y, float reach) {
  const auto& shown = half.Shown();
  const auto held = desk.main.Picture1.Image();
  if (shown == nullptr || !IsTurned(*held, *shown)) return 0;
  // A half of a split view shows its whole picture across the control.
  const double scale = shown->Width * static_cast<double>(TwipsPerPixel) / half.At.Get().Width;
  Search search(desk.molecule, x * scale, y * scale, reach * scale);
  for (std::size_t k = 0; k < held->Strokes.size(); ++k) {
    search.Ask(held->Strokes[k], shown->Strokes[k]);
  }
  return search.Found();
}

}  // namespace orvane
