#include "narration/atom_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "narration/chosen_row.h"
#include "narration/names.h"
#include "stock/catalogue_tables.h"

namespace orvane {
namespace {

using ::testing::StartsWith;

struct AtomWordsTest : testing::Test, DeskAtWork {
  MainWindow& main = desk.main;
  std::string Words(int atom) const { return AtomWords(desk, atom); }
};

TEST_F(AtomWordsTest, GiveElementNameResidueAndNumber) {
  Choose(*this, main.AA_Lst, "ALA");
  EXPECT_EQ(Words(1), "Nitrogen N of alanine, atom 1");
  EXPECT_EQ(Words(2), "Carbon CA of alanine, atom 2");
  EXPECT_EQ(Words(13), "Hydrogen H7 of alanine, atom 13");
}

// Its records say glycine, like those of every residue on the frame.
TEST_F(AtomWordsTest, NameABuiltResidueAsItsListDoes) {
  Choose(*this, main.AA_Lst, "CYS");
  EXPECT_EQ(Words(1), "Nitrogen N of cysteine, atom 1");
  EXPECT_EQ(Words(11), "Sulphur SG of cysteine, atom 11");
}

TEST_F(AtomWordsTest, GiveTheNumberOfTheResidueIfThereAreSeveral) {
  Choose(*this, main.Pro_Lst, "Alfa");
  EXPECT_EQ(Words(7), "Carbon CA of alanine 2, atom 7");
  EXPECT_EQ(Words(10), "Side chain R of alanine 2, atom 10");
}

// A sheet has residues of many kinds, numbered as in their chains.
TEST_F(AtomWordsTest, TakeTheNameOfEachResidueOfASheetFromTheListOfAminoAcids) {
  Choose(*this, main.Pro_Lst, "PBS");
  EXPECT_EQ(Words(16), "Nitrogen N of valine 50, atom 16");
}

TEST_F(AtomWordsTest, TakeTheNameOfANucleotideFromItsOwnList) {
  Choose(*this, main.Nuc_Lst, "A ");
  EXPECT_EQ(Words(1), "Phosphorus P of DeoxyAdenosine, atom 1");
  Choose(*this, main.Nuc_Lst, "dA");
  EXPECT_THAT(Words(1), testing::EndsWith(" of Adenine, atom 1"));
}

TEST_F(AtomWordsTest, DoNotCallTheGeneralAminoAcidGlycine) {
  Choose(*this, main.AA_Lst, "Gen");
  EXPECT_EQ(Words(5), "Side chain R of General Amino Acid Conformation, atom 5");
}

TEST_F(AtomWordsTest, AreEmptyForANumberThatNoAtomHas) {
  EXPECT_EQ(Words(1), "");
  Choose(*this, main.AA_Lst, "ALA");
  EXPECT_EQ(Words(0), "");
  EXPECT_EQ(Words(-1), "");
  EXPECT_EQ(Words(14), "");
}

// The last row was a protein, so the key of the list of amino acids is out of date.
TEST_F(AtomWordsTest, ForgetTheBuiltResidueWithTheNextStructure) {
  Choose(*this, main.AA_Lst, "TRP");
  EXPECT_EQ(GeneratedKey(desk), "TRP");
  Choose(*this, main.Pro_Lst, "Beta");
  EXPECT_EQ(GeneratedKey(desk), "");
  EXPECT_EQ(Words(2), "Carbon CA of alanine 1, atom 2");
}

// A click beside the rows removes the name from the title and leaves the structure.
TEST_F(AtomWordsTest, KnowABuiltResidueWithoutTheRow) {
  Choose(*this, main.AA_Lst, "SER");
  SelectRow(desk, main.AA_Lst, -1);
  EXPECT_EQ(Words(2), "Carbon CA of serine, atom 2");
  EXPECT_EQ(StructureName(desk), "");
}

TEST_F(AtomWordsTest, TellEveryBuiltResidueFromTheOthers) {
  for (const std::string_view key : catalogue::kGeneratedKeys) {
    Choose(*this, main.AA_Lst, key);
    EXPECT_EQ(GeneratedKey(desk), key);
  }
}

// Every row of the four lists: each atom has a word for its element and a residue that a list
// names.
TEST_F(AtomWordsTest, LeaveNoAtomOfTheStockWithoutAName) {
  for (List* list : {&main.AA_Lst, &main.Pro_Lst, &main.Nuc_Lst, &main.DNA_Lst}) {
    for (int row = 0; row < static_cast<int>(list->Rows.Get().size()); ++row) {
      SelectRow(desk, *list, row);
      ASSERT_GT(desk.molecule.AtomCount, 0);
      std::set<std::string> said;
      for (int i = 1; i <= desk.molecule.AtomCount; ++i) {
        EXPECT_THAT(Words(i), testing::Not(StartsWith("Atom "))) << list->Text();
        EXPECT_NE(ResidueName(desk, i), Trimmed(desk.molecule.ResName[i])) << list->Text();
        EXPECT_TRUE(said.insert(Words(i)).second) << Words(i);
      }
    }
  }
}

TEST_F(AtomWordsTest, KeepTheBracketOfAStructureThatSaysMoreThanItsKey) {
  const auto name = [&](List& list, std::string_view start) {
    Choose(*this, list, start);
    return StructureName(desk);
  };
  EXPECT_EQ(name(main.AA_Lst, "ALA"), "Alanine");
  EXPECT_EQ(name(main.Pro_Lst, "Alfa"), "Alpha helix structure (polypeptide)");
  EXPECT_EQ(name(main.Nuc_Lst, "dA"), "Adenine");
  EXPECT_EQ(name(main.Nuc_Lst, "As"), "DeoxyAdenosine (Nucleoside A)");
  EXPECT_EQ(name(main.DNA_Lst, "DNA3"), "Double stranded DNA");
}

}  // namespace
}  // namespace orvane
