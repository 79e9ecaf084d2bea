// Measures all rows of the four lists: what is built, and what the page of the bends says about the
// rest.
#include <gtest/gtest.h>

#include "house/source_tree.h"
#include "stock_check/bends_page.h"
#include "stock_check/check.h"
#include "stock_check/constitution.h"
#include "stock_check/hydrogen_bonds.h"

namespace orvane::stock_check {
namespace {

const std::vector<StockRow>& Rows() {
  static const std::vector<StockRow> rows = StockRows();
  return rows;
}

const StockRow& RowOf(std::string_view key) {
  for (const StockRow& row : Rows()) {
    if (row.Key == key) return row;
  }
  ADD_FAILURE() << key;
  return Rows().front();
}

bool IsSound(const StockRow& row) { return CheckRow(row).Wrong.empty(); }

TEST(StockCheck, FindsNothingWrongInAnyRow) {
  EXPECT_EQ(Rows().size(), 46u);  // 21 + 7 + 15 + 3
  for (const StockRow& row : Rows()) {
    for (const std::string& words : CheckRow(row).Wrong) ADD_FAILURE() << row.Key << ": " << words;
  }
}

// The purpose of the check: it sees an atom that is out of place.
TEST(StockCheck, SeesEachHeavyAtomThatIsMovedInABuiltRow) {
  for (const StockRow& row : Rows()) {
    if (row.IsAminoAcid() || row.Key == "PEP") continue;
    for (std::size_t i = 0; i < row.Atoms.size(); ++i) {
      if (row.Atoms[i].Name.front() == 'H') continue;
      StockRow moved = row;
      moved.Atoms[i].At.X += 0.25;
      moved.Atoms[i].At.Z += 0.25;
      EXPECT_FALSE(IsSound(moved)) << row.Key << " " << row.Atoms[i].Name;
    }
  }
}

TEST(StockCheck, SeesAMirroredRow) {
  int with_hands = 0;
  for (const StockRow& row : Rows()) {
    if (StereocentresOf(row).empty()) continue;
    StockRow mirrored = row;
    for (StockAtom& atom : mirrored.Atoms) atom.At.X = -atom.At.X;
    EXPECT_FALSE(IsSound(mirrored)) << row.Key;
    ++with_hands;
  }
  // All but glycine, phosphate and the four bases.
  EXPECT_EQ(with_hands, 46 - 6);
}

TEST(StockCheck, SeesABondThatIsMissingAndOneTooMany) {
  for (const StockRow& row : Rows()) {
    StockRow cut = row;
    cut.Joined.clear();
    for (const AtomPair& pair : row.Joined) {
      if (&pair == &row.Joined.front()) continue;
      cut.Joined.push_back(pair);
    }
    EXPECT_FALSE(IsSound(cut)) << row.Key;
    StockRow joined = row;
    // The first atom with the last; in proline these two do close the ring.
    joined.Joined.push_back({row.Key == "PRO" ? 1 : 0, static_cast<int>(row.Atoms.size()) - 1});
    EXPECT_FALSE(IsSound(joined)) << row.Key;
  }
}

TEST(StockCheck, SeesAHydrogenBondThatItsEnergyRulesOut) {
  for (const char* key : {"Alfa", "PBS", "APBS", "Beta"}) {
    StockRow more = RowOf(key);
    const int n = more.Find(more.Atoms.back().Residue, "N");
    more.HydrogenBonds.push_back({more.Find("O"), n});
    EXPECT_FALSE(IsSound(more)) << key;
  }
}

std::string WordsOfBends(const StockRow& row) {
  std::string words;
  for (const Bend& bend : BendsOf(row)) {
    words += MeasureWords(bend) + " " + DrawnWords(bend) + "\n";
  }
  return words;
}

TEST(TheBends, ArePrintedAsTheAtomsHaveThem) {
  EXPECT_EQ(house::ReadProjectFile("docs/bends.md"), BendsPage(Rows()))
      << "cmake --build --preset dev --target bends_page writes it anew";
}

TEST(TheBends, ChangeWithEachAtomThatIsMoved) {
  for (const StockRow& row : Rows()) {
    if (!row.IsAminoAcid() || row.Key == "Gen") continue;
    for (std::size_t i = 0; i < row.Atoms.size(); ++i) {
      StockRow moved = row;
      moved.Atoms[i].At.X += 0.2;
      moved.Atoms[i].At.Y -= 0.2;
      EXPECT_NE(WordsOfBends(moved), WordsOfBends(row)) << row.Key << " " << row.Atoms[i].Name;
    }
  }
}

// Each length, each angle and each group of the amino acids has a published value, so whatever the
// page does not list has been checked.
TEST(TheBends, LeaveNoBondAndNoAngleOut) {
  for (const StockRow& row : Rows()) {
    if (!row.IsAminoAcid() || row.Key == "Gen") continue;
    std::size_t lengths = 0, angles = 0;
    for (const Bend& measure : MeasuresOf(row)) {
      lengths += measure.Kind == BendOf::Length ? 1 : 0;
      angles += measure.Kind == BendOf::Angle ? 1 : 0;
    }
    std::size_t heavy_bonds = 0, all_angles = 0;
    std::vector<std::size_t> neighbours(row.Atoms.size());
    for (const AtomPair& pair : row.Joined) {
      if (IsContact(row, pair)) continue;
      const bool heavy = row.Element(pair.A) != 'H' && row.Element(pair.B) != 'H';
      heavy_bonds += heavy ? 1 : 0;
      ++neighbours[static_cast<std::size_t>(pair.A)];
      ++neighbours[static_cast<std::size_t>(pair.B)];
    }
    for (const std::size_t count : neighbours) all_angles += count * (count - 1) / 2;
    EXPECT_EQ(lengths, heavy_bonds) << row.Key;
    EXPECT_EQ(angles, all_angles) << row.Key;
  }
}

TEST(TheBends, SuggestNothingBentToBeMeasuredInstead) {
  EXPECT_EQ(BendsPage(Rows()).find("BENT"), std::string::npos);
}

TEST(TheBends, CompareTheRingOfHistidineWithTheFormThatItIsNearer) {
  EXPECT_LT(RingOff(RowOf("HIS"), "HIS"), RingOff(RowOf("HIS"), "HIE"));
}

}  // namespace
}  // namespace orvane::stock_check
