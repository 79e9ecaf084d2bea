#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "core/record.h"
#include "stock/stock_texts.h"
#include "stock_maker/record.h"
#include "stock_maker/source.h"
#include "stock_maker/table.h"
#include "stock_maker/texts.h"

namespace orvane {
namespace {

using namespace stock_maker;
using testing::HasSubstr;

const std::string kTables = ORVANE_SOURCE_DIR "/tools/stock_maker/tables";

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// The message of a run that is refused; empty if it is not refused.
template <class Run>
std::string RefusalOf(Run run) {
  try {
    run();
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
  return "";
}

// A copy of the tables with one word replaced by another.
class ChangedTables {
 public:
  ChangedTables(const std::string& table, const std::string& from, const std::string& to)
      : folder_(testing::TempDir() + "stock_tables_" +
                testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(folder_);
    std::filesystem::copy(kTables, folder_);
    std::string text = FileText(folder_ + "/" + table);
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
    std::ofstream(folder_ + "/" + table, std::ios::binary) << text;
  }
  ~ChangedTables() { std::filesystem::remove_all(folder_); }
  ChangedTables(const ChangedTables&) = delete;
  ChangedTables& operator=(const ChangedTables&) = delete;

  std::string Refusal() const {
    return RefusalOf([this] { MakeTexts(folder_); });
  }

 private:
  std::string folder_;
};

TEST(StockMaker, TheSourceThatIsCompiledInIsWhatTheMakerGives) {
  EXPECT_EQ(FileText(ORVANE_SOURCE_DIR "/src/stock/stock_texts.cpp"), SourceOf(MakeTexts(kTables)));
}

TEST(StockMaker, EveryTextOfTheProgramIsWhatTheMakerGives) {
  const std::map<std::string, std::string_view> compiled = {
      {"TextGeneral", stock::TextGeneral},
      {"TextFrame", stock::TextFrame},
      {"TextDipeptide", stock::TextDipeptide},
      {"TextAlfa", stock::TextAlfa},
      {"TextAlfb", stock::TextAlfb},
      {"TextBeta", stock::TextBeta},
      {"TextBetbResidues1To4", stock::TextBetbResidues1To4},
      {"TextBetbResidue5", stock::TextBetbResidue5},
      {"TextPbs", stock::TextPbs},
      {"TextApbs", stock::TextApbs},
      {"TextPhosphate", stock::TextPhosphate},
      {"TextRibose", stock::TextRibose},
      {"TextDeoxyribose", stock::TextDeoxyribose},
      {"TextBaseA", stock::TextBaseA},
      {"TextNucleosideA", stock::TextNucleosideA},
      {"TextNucleotideA", stock::TextNucleotideA},
      {"TextBaseC", stock::TextBaseC},
      {"TextNucleosideC", stock::TextNucleosideC},
      {"TextNucleotideC", stock::TextNucleotideC},
      {"TextBaseG", stock::TextBaseG},
      {"TextNucleosideG", stock::TextNucleosideG},
      {"TextNucleotideG", stock::TextNucleotideG},
      {"TextBaseT", stock::TextBaseT},
      {"TextNucleosideT", stock::TextNucleosideT},
      {"TextNucleotideT", stock::TextNucleotideT},
      {"TextS1Dna", stock::TextS1Dna},
      {"TextS2Dna", stock::TextS2Dna},
  };
  const std::vector<StockText> made = MakeTexts(kTables);

  EXPECT_EQ(made.size(), compiled.size());
  for (const StockText& text : made) {
    ASSERT_TRUE(compiled.contains(text.name)) << text.name;
    EXPECT_EQ(compiled.at(text.name), text.records) << text.name;
  }
}

TEST(StockMaker, ARecordHasItsFieldsInTheirColumns) {
  EXPECT_EQ(WriteRecord({1, "N", "GLY", ' ', 1, {11.14, 8.02, 1.544}}),
            "ATOM      1  N   GLY     1      11.140   8.020   1.544 ");
  EXPECT_EQ(WriteRecord({123, "O4*", "T", 'B', 20, {-0.5, -999.9994, 1000}}),
            "ATOM    123  O4*   T B  20      -0.500-999.9991000.000 ");
}

TEST(StockMaker, AZeroHasNoMinus) {
  const std::string record = WriteRecord({1, "N", "GLY", ' ', 1, {-0.0, -0.0004, 0.0004}});
  EXPECT_EQ(Cut(record, kXField), "   0.000");
  EXPECT_EQ(Cut(record, kYField), "   0.000");
  EXPECT_EQ(Cut(record, kZField), "   0.000");
}

TEST(StockMaker, AFieldThatOverflowsItsColumnsIsRefusedByTheRecordsName) {
  const AtomRecord good{7, "CA", "ALA", ' ', 2, {1, 2, 3}};
  ASSERT_EQ(WriteRecord(good).size(), kRecordLength);
  struct Case {
    const char* Field;
    AtomRecord Record;
  };
  AtomRecord name = good, residue = good, serial = good, number = good, x = good, y = good,
             z = good;
  name.atom = "HG11";
  residue.residue = "ALAN";
  serial.serial = 10000000;  // eight digits for seven columns
  number.number = 10000;
  x.at.x = 10000;      // 10000.000 has nine characters
  y.at.y = -999.9996;  // rounds to -1000.000
  z.at.z = -1000;
  for (const Case& wrong :
       {Case{"atom name", name}, Case{"residue name", residue}, Case{"serial number", serial},
        Case{"residue number", number}, Case{"x", x}, Case{"y", y}, Case{"z", z}}) {
    const std::string refusal = RefusalOf([&] { WriteRecord(wrong.Record); });
    EXPECT_THAT(refusal, HasSubstr(std::string(": ") + wrong.Field + " \""));
    EXPECT_THAT(refusal, HasSubstr("record " + std::to_string(wrong.Record.serial) + ", atom " +
                                   wrong.Record.atom + " of " + wrong.Record.residue + " " +
                                   std::to_string(wrong.Record.number)));
  }
}

TEST(StockMaker, AnOverflowInATableEndsTheWholeRun) {
  const ChangedTables tables("fixed_texts.tsv", "11.140\t8.020", "99999\t8.020");
  EXPECT_EQ(tables.Refusal(),
            "record 1, atom N of GLY 1: x \"99999.000\" is wider than its 8 columns");
}

TEST(StockMaker, AFieldThatIsNotANumberIsRefusedWithItsRow) {
  const ChangedTables tables("sheet_unit.tsv", "0.3620", "0,3620");
  EXPECT_THAT(tables.Refusal(), testing::MatchesRegex("sheet_unit.tsv, line [0-9]+: \"0,3620\" in "
                                                      "column x is no number"));
}

TEST(StockMaker, ARowOfAnotherWidthIsRefused) {
  const ChangedTables tables("places.tsv", "helix\thelix", "helix");
  EXPECT_THAT(tables.Refusal(), HasSubstr("7 fields for 8 columns"));
}

TEST(StockMaker, AnAtomThatItsUnitLacksIsRefused) {
  const ChangedTables chain("texts.tsv", "N CA C O R", "N CA C OXT R");
  EXPECT_THAT(chain.Refusal(), HasSubstr("the unit has no atom OXT"));
  const ChangedTables base("texts.tsv", "N9 C4", "N99 C4");
  EXPECT_THAT(base.Refusal(), HasSubstr("neither sugar nor base has an atom N99"));
}

TEST(StockMaker, SerialNumbersMustSufficeForTheRecords) {
  const ChangedTables tables("texts.tsv", "1-30", "1-29");
  EXPECT_THAT(tables.Refusal(), HasSubstr("29 serial numbers for 30 records"));
}

TEST(StockMaker, ATextWithoutAPictureIsRefused) {
  const ChangedTables tables("pictures.tsv", "Alfa\t", "Other\t");
  EXPECT_EQ(tables.Refusal(), "pictures.tsv: no picture Alfa for TextAlfa");
}

TEST(StockMaker, ATurnAboutNoAxisIsRefused) {
  const ChangedTables tables("pictures.tsv", "x+20 y+20", "w+20 y+20");
  EXPECT_THAT(tables.Refusal(), HasSubstr("\"w+20\" is no turn"));
}

TEST(StockMaker, AFolderWithoutTablesIsRefused) {
  EXPECT_EQ(RefusalOf([] { MakeTexts("/nowhere"); }), "/nowhere/fixed_texts.tsv: cannot be read");
}

}  // namespace
}  // namespace orvane
