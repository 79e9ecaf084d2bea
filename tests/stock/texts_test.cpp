// What holds for every stock text: its records, and the counts that the program finds in it.

#include <cmath>
#include <gtest/gtest.h>

#include "core/record.h"
#include "stock/stock_texts.h"
#include "stock/structure.h"

namespace orvane {
namespace {

// Successive residues of one text, and the atoms of each.
struct Stretch {
  const char* Residues;
  int First;  // number of the first residue
  char Chain;
  const char* Atoms;
};

constexpr const char* kBackbone = "N CA C O R";
constexpr const char* kPolyalanine = "N CA C O CB H1 H4 H5 H6 H7";
constexpr const char* kSixAlanines = "ALA ALA ALA ALA ALA ALA";

struct Text {
  Rows List;
  const char* Row;
  int Records;
  int Bonds;     // entries of the bond list
  int Contacts;  // those of them that are not chemical bonds
  int HydrogenBonds;
  std::vector<Stretch> Stretches;
  bool EndsInBlank = false;
  bool Centred = true;  // false if the coordinates depend on another text's, or are fixed
};

std::string Sugar(const char* base) {
  return std::string("O3* C3* C4* C5* O5* O4* C1* C2* ") + base;
}

const std::vector<Text>& Texts() {
  static const char* const kA = "N9 C4 C8 N3 C5 N7 C2 C6 N6 N1";
  static const char* const kC = "N1 C2 C6 O2 N3 C5 C4 N4";
  static const char* const kG = "N9 C4 C8 N3 C5 N7 C2 C6 O6 N1 N2";
  static const char* const kT = "N1 C2 C6 O2 N3 C5 C4 C5M O4";
  static const std::string kSugarA = Sugar(kA), kSugarC = Sugar(kC), kSugarG = Sugar(kG),
                           kSugarT = Sugar(kT);
  static const char* const kTideA =
      "P O1P O2P O3P O5* C5* C4* O4* C3* O3* C2* C1* N9 C8 N7 C5 C6 N6 N1 C2 N3 C4";
  static const char* const kTideC =
      "P O1P O2P O3P O5* C5* C4* O4* C3* O3* C2* C1* N1 C2 O2 N3 C4 N4 C5 C6";
  static const char* const kTideG =
      "P O1P O2P O3P O5* C5* C4* O4* C3* O3* C2* C1* N9 C8 N7 C5 C6 O6 N1 C2 N2 N3 C4";
  static const char* const kTideT =
      "P O1P O2P O3P O5* C5* C4* O4* C3* O3* C2* C1* N1 C2 O2 N3 C4 O4 C5 C5M C6";
  static const char* const kStrandA =
      "P O1P O2P O5* C5* C4* O4* C3* O3* C2* C1* N9 C8 N7 C5 C6 N6 N1 C2 N3 C4";
  static const char* const kStrandC =
      "P O1P O2P O5* C5* C4* O4* C3* O3* C2* C1* N1 C2 O2 N3 C4 N4 C5 C6";
  static const char* const kStrandG =
      "P O1P O2P O5* C5* C4* O4* C3* O3* C2* C1* N9 C8 N7 C5 C6 O6 N1 C2 N2 N3 C4";
  static const char* const kStrandT =
      "P O1P O2P O5* C5* C4* O4* C3* O3* C2* C1* N1 C2 O2 N3 C4 O4 C5 C5M C6";
  static const std::vector<Stretch> kFirst = {
      {"A", 2, 'A', kStrandA}, {"G", 3, 'A', kStrandG}, {"T", 4, 'A', kStrandT}};
  static const std::vector<Stretch> kSecond = {
      {"A", 18, 'B', kStrandA}, {"C", 19, 'B', kStrandC}, {"T", 20, 'B', kStrandT}};
  static const std::vector<Stretch> kBoth = {kFirst[0],  kFirst[1],  kFirst[2],
                                             kSecond[0], kSecond[1], kSecond[2]};
  constexpr Rows kAcids = &MainWindow::AA_Lst;

  // Residue A has 11 ring atoms and so on: 24 bonds of a nucleotide A are 11 of the base, one to
  // the sugar, 8 of the sugar, and 4 of the phosphate. A strand has no O3P (one bond less each) and
  // two links: 23 + 24 + 21 + 2 = 70.
  static const std::vector<Text> texts = {
      {kAcids, "Gen", 10, 12, 3, 1, {{"GLY", 1, ' ', "N CA C O R H1 H2 H3 H4 O2"}}, false, false},
      {kProteins,
       "PEP",
       17,
       21,
       5,
       2,
       {{"ALA", 1, ' ', "N CA1 C! O! R H1 H2 H3 H4"}, {"ALA", 2, ' ', "N! CA2 C O R' H! H4 O3"}},
       false,
       false},
      {kProteins,
       "Alfa",
       60,
       59,
       0,
       8,
       {{kSixAlanines, 1, ' ', kBackbone}, {kSixAlanines, 7, ' ', kBackbone}}},
      {kProteins, "Alfb", 60, 83, 24, 2, {{kSixAlanines, 1, ' ', kPolyalanine}}},
      {kProteins, "Beta", 30, 29, 0, 0, {{kSixAlanines, 1, ' ', kBackbone}}},
      {kProteins,
       "Betb",
       60,
       109,
       32,
       0,
       {{"ALA ALA ALA ALA ALA", 1, ' ', kPolyalanine}, {"ALA", 5, ' ', kPolyalanine}},
       true},
      {kProteins,
       "PBS",
       98,
       95,
       0,
       12,
       {{"ALA ALA ALA VAL ILE MET", 47, ' ', kBackbone},
        {"GLY", 53, ' ', "N CA C O"},
        {"ARG ILE ASN ILE VAL LEU", 70, ' ', kBackbone},
        {"ASP MET VAL TRP ILE VAL", 110, ' ', kBackbone},
        {"GLY", 116, ' ', "N CA C O"}}},
      {kProteins,
       "APBS",
       105,
       102,
       0,
       14,
       {{"THR LEU LEU VAL THR ARG LEU", 112, ' ', kBackbone},
        {"VAL SER SER ARG THR VAL GLU", 139, ' ', kBackbone},
        {"THR HIS THR TYR GLU VAL TRP", 152, ' ', kBackbone}}},
      {kNucleotides, "PHS", 7, 6, 0, 0, {{"PHS", 1, ' ', "HP4 OP4 P OP1 OP2 OP3 HP3"}}},
      {kNucleotides,
       "RIB",
       19,
       21,
       2,
       0,
       {{"RIB", 1, ' ', "O1 C1 H1A H1B C2 H2A O2 H2B C3 H3A O3 H3B C4 H4 C5 H5A H5B O4 H4"}}},
      {kNucleotides,
       "DRB",
       18,
       20,
       2,
       0,
       {{"DRB", 1, ' ', "O1 C1 H1A H1B C2 H2A H2B C3 H3A O3 H3B C4 H4 C5 H5A H5B O4 H4"}},
       false,
       false},
      {kNucleotides, "dA", 10, 11, 0, 0, {{"dA", 1, ' ', kA}}},
      {kNucleotides, "As", 18, 20, 0, 0, {{"A", 1, ' ', kSugarA.c_str()}}},
      {kNucleotides, "A ", 22, 24, 0, 0, {{"A", 7, ' ', kTideA}}},
      {kNucleotides, "dC", 8, 8, 0, 0, {{"dC", 1, ' ', kC}}},
      {kNucleotides, "Cs", 16, 17, 0, 0, {{"C", 1, ' ', kSugarC.c_str()}}},
      {kNucleotides, "C ", 20, 21, 0, 0, {{"C", 6, ' ', kTideC}}},
      {kNucleotides, "dG", 11, 12, 0, 0, {{"dG", 1, ' ', kG}}},
      {kNucleotides, "Gs", 19, 21, 0, 0, {{"G", 1, ' ', kSugarG.c_str()}}},
      {kNucleotides, "G ", 23, 25, 0, 0, {{"G", 3, ' ', kTideG}}},
      {kNucleotides, "dT", 9, 9, 0, 0, {{"dT", 1, ' ', kT}}},
      {kNucleotides, "Ts", 17, 18, 0, 0, {{"T", 1, ' ', kSugarT.c_str()}}},
      {kNucleotides, "T ", 21, 22, 0, 0, {{"T", 4, ' ', kTideT}}},
      {kStrands, "S1DNA", 63, 70, 0, 3, kFirst, true, false},
      {kStrands, "S2DNA", 60, 66, 0, 3, kSecond, false, false},
      {kStrands, "DNA3", 123, 136, 0, 13, kBoth},
  };
  return texts;
}

std::string RightAligned(const std::string& text, std::size_t width) {
  return std::string(width - text.size(), ' ') + text;
}

TEST(StockTexts, AtomsAndResiduesAreInTheirOrderAndTheirColumns) {
  for (const Text& text : Texts()) {
    Structure structure(text.List, text.Row);
    const std::string& records = structure.Store().MolText;
    int position = 1;
    for (const Stretch& run : text.Stretches) {
      int number = run.First;
      for (const std::string& residue : WordsOf(run.Residues)) {
        for (const std::string& atom : WordsOf(run.Atoms)) {
          const std::string_view record = Mid(records, position, kRecordWidth);
          EXPECT_EQ(Mid(record, 1, 4), "ATOM") << text.Row;
          EXPECT_EQ(Mid(record, 12, 6), "  " + atom + std::string(4 - atom.size(), ' '))
              << text.Row;
          EXPECT_EQ(Mid(record, 18, 4), RightAligned(residue, 3) + " ") << text.Row;
          EXPECT_EQ(Mid(record, 22, 1), std::string(1, run.Chain)) << text.Row;
          EXPECT_EQ(Mid(record, 23, 8), RightAligned(std::to_string(number), 4) + "    ")
              << text.Row;
          for (const int column : {31, 39, 47}) {
            EXPECT_EQ(Mid(record, column + 4, 1), ".") << text.Row;
          }
          position += kRecordWidth;
        }
        ++number;
      }
    }
    EXPECT_EQ(position, 1 + kRecordWidth * text.Records) << text.Row;
    EXPECT_EQ(static_cast<int>(records.size()),
              kRecordWidth * text.Records - (text.EndsInBlank ? 0 : 1))
        << text.Row;
    EXPECT_EQ(records.find("-0.000"), std::string::npos) << text.Row;
  }
}

TEST(StockTexts, TheFrameIsFiveAtomsOfTheGeneralAminoAcid) {
  const std::string general(stock::TextGeneral);
  // N, CA, C, O and, as the tenth record, O2.
  EXPECT_EQ(stock::TextFrame, general.substr(0, 4 * 55) + general.substr(9 * 55));
}

TEST(StockTexts, EveryAtomIsLoadedAndTheListsHaveTheirLengths) {
  for (const Text& text : Texts()) {
    Structure structure(text.List, text.Row);
    int contacts = 0;
    for (const Pair& bond : structure.Bonds()) contacts += structure.IsContact(bond) ? 1 : 0;
    EXPECT_EQ(structure.Count(), text.Records) << text.Row;
    EXPECT_EQ(structure.Store().BondCount, text.Bonds) << text.Row;
    EXPECT_EQ(contacts, text.Contacts) << text.Row;
    EXPECT_EQ(structure.Store().HBondCount, text.HydrogenBonds) << text.Row;
  }
}

// Bonds end at 1.85. Nothing may come near that limit from above; a coincident pair is not a bond.
TEST(StockTexts, NoPairIsNearlyABond) {
  for (const Text& text : Texts()) {
    Structure structure(text.List, text.Row);
    for (int i = 1; i <= structure.Count(); ++i) {
      for (int j = 1; j < i; ++j) {
        const double length = structure.Length(i, j);
        if (length == 0) continue;
        EXPECT_FALSE(length > 1.85 && length < 1.90)
            << text.Row << ": " << structure.Label(i) << " to " << structure.Label(j);
        EXPECT_GT(length, 0.85) << text.Row;
      }
    }
  }
}

// The last two atoms give the sense of a turn, and an equal coordinate would flatten it.
TEST(StockTexts, TheLastTwoAtomsDifferInEveryDirection) {
  for (const Text& text : Texts()) {
    Structure structure(text.List, text.Row);
    const Point apart = Minus(structure.At(structure.Count()), structure.At(structure.Count() - 1));
    EXPECT_GE(std::abs(apart.X), 0.03) << text.Row;
    EXPECT_GE(std::abs(apart.Y), 0.03) << text.Row;
    EXPECT_GE(std::abs(apart.Z), 0.03) << text.Row;
  }
}

TEST(StockTexts, TheBoxHasItsCentreAtZero) {
  for (const Text& text : Texts()) {
    if (!text.Centred) continue;
    const Structure structure(text.List, text.Row);
    EXPECT_NEAR(structure.Store().BoxCentreX, 0, 0.001) << text.Row;
    EXPECT_NEAR(structure.Store().BoxCentreY, 0, 0.001) << text.Row;
    EXPECT_NEAR(structure.Store().BoxCentreZ, 0, 0.001) << text.Row;
  }
}

// A torsion divides by differences of bonded atoms along z and x.
TEST(StockTexts, NoBondLiesFlatInZOrX) {
  for (const Text& text : Texts()) {
    Structure structure(text.List, text.Row);
    for (const Pair& bond : structure.Bonds()) {
      const Point along = Minus(structure.At(bond.A), structure.At(bond.B));
      EXPECT_NE(along.Z, 0) << text.Row << ": " << structure.Label(bond.A);
      EXPECT_NE(along.X, 0) << text.Row << ": " << structure.Label(bond.A);
    }
  }
}

std::vector<int> SerialsOf(const Structure& structure) {
  std::vector<int> serials;
  serials.reserve(static_cast<std::size_t>(structure.Count()));
  for (int i = 0; i < structure.Count(); ++i) {
    serials.push_back(std::stoi(structure.Store().MolText.substr(55u * i + 4, 7)));
  }
  return serials;
}

TEST(StockTexts, SerialNumbersRunFromOneWhereNothingIsLeftOut) {
  for (const Text& text : Texts()) {
    const std::string row = text.Row;
    if (row == "Gen" || row == "PEP" || row == "Betb" || row == "PBS" || row == "APBS") continue;
    const Structure structure(text.List, text.Row);
    int expected = row == "S2DNA" ? 64 : 1;  // the second strand goes on after the first
    for (const int serial : SerialsOf(structure)) EXPECT_EQ(serial, expected++) << row;
  }
}

// Each residue of the doubled strand counts thirteen atoms, of which ten are there; the copy
// repeats them.
TEST(StockTexts, SerialNumbersOfTheDoubledStrandLeaveGaps) {
  std::vector<int> expected;
  for (const int residue : {1, 2, 3, 4, 5, 5}) {
    for (const int place : {1, 2, 3, 4, 5, 6, 9, 10, 11, 12}) {
      expected.push_back(13 * (residue - 1) + place);
    }
  }
  EXPECT_EQ(expected.back(), 64);
  EXPECT_EQ(SerialsOf(Structure(kProteins, "Betb")), expected);
}

// In the sheets R stands for a whole side chain, whose atoms are counted.
TEST(StockTexts, SerialNumbersOfTheSheetsCountWholeSideChains) {
  const std::map<std::string, int> heavy_atoms = {{"GLY", 4},  {"ALA", 5},  {"SER", 6}, {"THR", 7},
                                                  {"VAL", 7},  {"LEU", 8},  {"ILE", 8}, {"MET", 8},
                                                  {"ASN", 8},  {"ASP", 8},  {"GLU", 9}, {"HIS", 10},
                                                  {"ARG", 11}, {"TYR", 12}, {"TRP", 14}};
  for (const char* const row : {"PBS", "APBS"}) {
    const Structure structure(kProteins, row);
    const std::vector<int> serials = SerialsOf(structure);
    int next = 1;
    for (int i = 1, last = 0; i <= structure.Count(); ++i) {
      if (structure.Store().ResSeq[i] == last) continue;  // not the first of its residue
      last = structure.Store().ResSeq[i];
      if (std::string_view(row) == "PBS" && last == 110) next += 13;  // another chain between them
      const std::string residue(std::string_view(structure.Store().ResName[i]));
      for (int k = 0; i + k <= structure.Count() && structure.Store().ResSeq[i + k] == last; ++k) {
        EXPECT_EQ(serials[static_cast<std::size_t>(i + k - 1)], next + k) << row << " " << last;
      }
      next += heavy_atoms.at(residue);
    }
    EXPECT_EQ(serials.back(), std::string_view(row) == "PBS" ? 161 : 166);
  }
}

}  // namespace
}  // namespace orvane
