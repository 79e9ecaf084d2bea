#include "narration/names.h"

#include <algorithm>
#include <array>
#include <span>

#include "stock/catalogue_tables.h"
#include "stock/generator.h"

namespace orvane {
namespace {

// The lists whose keys are names of residues; a protein's or a strand's key names none.
constexpr std::array<std::span<const std::string_view>, 2> kResidueLists = {
    catalogue::kAminoRows, catalogue::kNucleotideRows};

bool IsSmall(char letter) { return letter >= 'a' && letter <= 'z'; }
bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

std::string_view FirstWord(std::string_view text) { return text.substr(0, text.find(' ')); }

std::string_view RowOfKey(std::string_view key) {
  for (const auto& rows : kResidueLists) {
    const auto row = std::ranges::find(rows, key, FirstWord);
    if (row != rows.end()) return *row;
  }
  return {};
}

// "ALANINE" and "(ALA A)" of "ALANINE (ALA A)"; the bracket may be missing.
struct NameAndBracket {
  std::string_view Name, Bracket;
};
NameAndBracket Parted(std::string_view title) {
  const std::size_t at = title.find(" (");
  if (at == std::string_view::npos) return {title, {}};
  return {title.substr(0, at), title.substr(at + 1)};
}

bool RepeatsAKey(std::string_view bracket) {
  const std::string_view within = bracket.substr(1, bracket.find(')') - 1);
  return !RowOfKey(FirstWord(within)).empty();
}

// The amino acids are in capitals in their list. A name that mixes both, "DeoxyAdenosine", is left
// as it is.
std::string Calm(std::string_view name) {
  std::string text(name);
  if (std::ranges::any_of(text, IsSmall)) return text;
  for (char& letter : text) {
    if (IsCapital(letter)) letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

std::string_view TitleName(const Orvane_Desk& desk) {
  const std::string& title = desk.main.Caption.Get();
  if (!title.starts_with(desk.stock.TitlePrefix)) return {};
  return Trimmed(std::string_view(title).substr(desk.stock.TitlePrefix.size()));
}

bool HasResidue(const Molecule& molecule, int atom, int first) {
  return molecule.ResSeq[atom] == molecule.ResSeq[first];
}

// The generator remembers the four atoms of the frame from which others are placed, then its own in
// order.
constexpr std::size_t kRemembered = 4;

bool WasBuiltBy(const Orvane_Desk& desk, std::string_view key) {
  const std::span placed(desk.generator.Placed);
  if (placed.size() < kRemembered) return false;
  return std::ranges::equal(placed.subspan(kRemembered), PlacementsOf(key), {}, &PlacedAtom::Name,
                            &Placement::Atom);
}

// An amino acid in general: its records name glycine, but it has a side chain.
bool IsGeneral(const Orvane_Desk& desk) {
  return desk.molecule.MolText == *catalogue::kAminoStock.front().Constant;
}

}  // namespace

std::string_view Trimmed(std::string_view field) {
  const std::size_t first = field.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return field.substr(first, field.find_last_not_of(' ') - first + 1);
}

std::string WithCapital(std::string text) {
  if (!text.empty() && IsSmall(text.front())) {
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
  }
  return text;
}

bool HasSeveralResidues(const Molecule& molecule) {
  for (int i = 2; i <= molecule.AtomCount; ++i) {
    if (!HasResidue(molecule, i, 1)) return true;
  }
  return false;
}

std::string_view GeneratedKey(const Orvane_Desk& desk) {
  const std::string& text = desk.molecule.MolText;
  if (!text.starts_with(stock::TextFrame)) return {};
  for (const std::string_view key : catalogue::kGeneratedKeys) {
    if (WasBuiltBy(desk, key)) return key;
  }
  return {};
}

std::string StructureName(const Orvane_Desk& desk) {
  const std::string_view title = TitleName(desk);
  const auto [name, bracket] = Parted(title);
  const bool keeps_bracket = !bracket.empty() && !RepeatsAKey(bracket);
  return WithCapital(Calm(keeps_bracket ? title : name));
}

std::string ResidueName(const Orvane_Desk& desk, int atom) {
  if (IsGeneral(desk)) return StructureName(desk);
  const std::string_view stored = Trimmed(desk.molecule.ResName[atom]);
  const std::string_view generated = GeneratedKey(desk);
  const std::string_view row = RowOfKey(generated.empty() ? stored : generated);
  if (row.empty()) return std::string(stored);
  return Calm(Parted(Trimmed(row.substr(FirstWord(row).size()))).Name);
}

}  // namespace orvane
