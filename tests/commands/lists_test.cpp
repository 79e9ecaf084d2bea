#include "commands/lists.h"

#include <gtest/gtest.h>
#include <set>

#include "core/record.h"
#include "core/records.h"
#include "desk_fixture.h"
#include "stock/catalogue_tables.h"
#include "stock/residue_table.h"

namespace orvane {
namespace {

using namespace catalogue;

// Chooses the row that begins like this.
void Select(DeskAtWork& work, List& list, std::string_view beginning) {
  const auto& rows = list.Rows.Get();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (!rows[row].starts_with(beginning)) continue;
    SelectRow(work.desk, list, static_cast<int>(row));
    return;
  }
  FAIL() << "no row " << beginning;
}

TEST(Catalogue, TheListsAreFilledAtTheStart) {
  DeskAtWork work;
  const MainWindow& main = work.desk.main;

  ASSERT_EQ(main.AA_Lst.Rows.Get().size(), 21u);
  EXPECT_EQ(main.AA_Lst.Rows.Get().front(), "Gen General Amino Acid Conformation");
  EXPECT_EQ(main.AA_Lst.Rows.Get().back(), "LYS LYSINE (LYS K)");
  ASSERT_EQ(main.Pro_Lst.Rows.Get().size(), 7u);
  EXPECT_EQ(main.Pro_Lst.Rows.Get().back(), "APBS Anti-Parallel Beta Sheet structure");
  ASSERT_EQ(main.Nuc_Lst.Rows.Get().size(), 15u);
  EXPECT_EQ(main.Nuc_Lst.Rows.Get()[5], "A   DeoxyAdenosine (Nucleotide A)");
  ASSERT_EQ(main.DNA_Lst.Rows.Get().size(), 3u);
  EXPECT_EQ(main.DNA_Lst.Rows.Get()[2], "DNA3 Double stranded DNA");
}

TEST(Catalogue, NoRowIsChosenAtTheStart) {
  DeskAtWork work;
  EXPECT_EQ(work.desk.main.AA_Lst.ListIndex, -1);
  EXPECT_EQ(work.desk.main.AA_Lst.Text(), "");
}

TEST(Catalogue, EveryRowEndsInAPictureWithItsNameInTheTitle) {
  // Column of the row at which the title begins.
  struct Case {
    List MainWindow::*Rows;
    std::size_t TitleFrom;
  };
  for (const Case& list : {Case{&MainWindow::AA_Lst, 5}, Case{&MainWindow::Pro_Lst, 5},
                           Case{&MainWindow::Nuc_Lst, 4}, Case{&MainWindow::DNA_Lst, 6}}) {
    DeskAtWork work;
    List& rows = work.desk.main.*list.Rows;
    for (int row = 0; row < static_cast<int>(rows.Rows.Get().size()); ++row) {
      SelectRow(work.desk, rows, row);
      const std::string text = rows.Text();
      EXPECT_TRUE(work.platform.Effects.empty()) << text;
      EXPECT_EQ(work.desk.molecule.MoleculeReady, 1) << text;
      EXPECT_GT(work.desk.molecule.BondCount, 0) << text;
      EXPECT_FALSE(work.desk.main.Picture1.Image()->Strokes.empty()) << text;
      EXPECT_EQ(work.desk.main.Caption.Get(),
                "Orvane (OVN) v2.0: " + text.substr(list.TitleFrom - 1));
    }
  }
}

// Every key of a list's rows, in capitals, has a text, and every text has a row.
void ExpectKeysMatch(std::span<const std::string_view> rows, int width,
                     std::span<const StockRow> stock, std::span<const std::string_view> generated) {
  std::set<std::string> wanted, offered;
  for (const std::string_view row : rows) {
    std::string key(Mid(row, 1, width));
    for (char& letter : key) letter = static_cast<char>(std::toupper(letter));
    EXPECT_TRUE(wanted.insert(key).second) << key << " twice";
  }
  for (const StockRow& row : stock) {
    EXPECT_TRUE(offered.insert(std::string(row.Key)).second) << row.Key << " twice";
    EXPECT_NE(row.Constant == nullptr, row.Assembled == nullptr) << row.Key;
  }
  for (const std::string_view key : generated) offered.insert(std::string(key));
  EXPECT_EQ(wanted, offered);
}

TEST(Catalogue, EveryRowHasAKeyAndEveryKeyAText) {
  ExpectKeysMatch(kAminoRows, 3, kAminoStock, kGeneratedKeys);
  ExpectKeysMatch(kProteinRows, 4, kProteinStock, {});
  ExpectKeysMatch(kNucleotideRows, 2, kNucleotideStock, {});
  ExpectKeysMatch(kDnaRows, 5, kDnaStock, {});
}

TEST(Catalogue, TheGeneralAminoAcidIsNotGenerated) {
  DeskAtWork work;
  Select(work, work.desk.main.AA_Lst, "Gen");

  EXPECT_EQ(work.desk.molecule.AtomCount, 10);
  EXPECT_EQ(work.desk.molecule.MolText, stock::TextGeneral);
  EXPECT_EQ(work.desk.main.Caption, "Orvane (OVN) v2.0: General Amino Acid Conformation");
  EXPECT_EQ(work.desk.stock.AminoKey, "Gen");
}

TEST(Catalogue, KeysAreKeptAsTheRowHasThem) {
  DeskAtWork work;
  Select(work, work.desk.main.Pro_Lst, "Alfa");
  EXPECT_EQ(work.desk.stock.ProKey, "Alfa");
  Select(work, work.desk.main.Pro_Lst, "PBS");
  EXPECT_EQ(work.desk.stock.ProKey, "PBS ");
  Select(work, work.desk.main.Nuc_Lst, "dA");
  EXPECT_EQ(work.desk.stock.NucKey, "dA");
  Select(work, work.desk.main.Nuc_Lst, "A ");
  EXPECT_EQ(work.desk.stock.NucKey, "A ");
  Select(work, work.desk.main.DNA_Lst, "DNA3");
  EXPECT_EQ(work.desk.stock.DnaKey, "DNA3 ");
}

TEST(Catalogue, AStrandTurnsTheBasePairsOnAndKeepsTheBlankInItsTitle) {
  DeskAtWork work;
  Select(work, work.desk.main.DNA_Lst, "S1DNA");
  EXPECT_EQ(work.desk.drawing.NucleicMode, 1);
  // The prefix ends in a blank, and the row's own blank follows.
  EXPECT_EQ(work.desk.main.Caption, "Orvane (OVN) v2.0:  Single stranded DNA");

  Select(work, work.desk.main.Nuc_Lst, "RIB");
  EXPECT_EQ(work.desk.drawing.NucleicMode, 0);
}

TEST(Catalogue, TheDoubleStrandIsBothStrandsInOneText) {
  DeskAtWork work;
  Select(work, work.desk.main.DNA_Lst, "DNA3");

  EXPECT_EQ(work.desk.molecule.AtomCount, 123);
  EXPECT_EQ(work.desk.molecule.MolText, work.desk.stock.TextS1Dna + work.desk.stock.TextS2Dna);
  EXPECT_EQ(work.desk.molecule.MolText, work.desk.stock.TextDna3);
}

TEST(Catalogue, ThePolyalanineStrandHasItsLastResidueTwiceInOnePlace) {
  DeskAtWork work;
  Select(work, work.desk.main.Pro_Lst, "Betb");

  const Molecule& molecule = work.desk.molecule;
  ASSERT_EQ(molecule.AtomCount, 60);
  for (int i = 41; i <= 50; ++i) {
    EXPECT_EQ(molecule.AtomX[i], molecule.AtomX[i + 10]);
    EXPECT_EQ(molecule.AtomY[i], molecule.AtomY[i + 10]);
    EXPECT_EQ(molecule.AtomZ[i], molecule.AtomZ[i + 10]);
    EXPECT_EQ(molecule.AtomName[i], molecule.AtomName[i + 10]);
  }
  EXPECT_EQ(molecule.MolText.size(), 60u * kRecordWidth);
}

TEST(Catalogue, TheSixProteinTextsAreEqualToMolTextWhenSelected) {
  struct Case {
    const char* Row;
    std::string Catalogue::*Text;
  };
  DeskAtWork work;
  for (const Case& chain : {Case{"Alfa", &Catalogue::TextAlfa}, Case{"Alfb", &Catalogue::TextAlfb},
                            Case{"Beta", &Catalogue::TextBeta}, Case{"Betb", &Catalogue::TextBetb},
                            Case{"PBS", &Catalogue::TextPbs}, Case{"APBS", &Catalogue::TextApbs}}) {
    Select(work, work.desk.main.Pro_Lst, chain.Row);
    EXPECT_FALSE(work.desk.molecule.MolText.empty());
    EXPECT_EQ(work.desk.molecule.MolText, work.desk.stock.*chain.Text) << chain.Row;
  }
}

// "yes", "no" for D_Ca, M_Rbn, Ppt, OPB, RCDP, Bt3_Isomers, and the two numbers.
std::string MenuState(const Orvane_Desk& desk) {
  const MainWindow& main = desk.main;
  std::string state;
  for (const bool open :
       {main.D_Ca.Enabled.Get(), main.M_Rbn.Enabled.Get(), main.Ppt.Enabled.Get(),
        main.OPB.Enabled.Get(), main.RCDP.Enabled.Get(), main.Bt3_Isomers.Enabled.Get()}) {
    state += open ? "yes " : "no ";
  }
  return state + std::to_string(desk.drawing.ChainPlanes) +
         std::to_string(desk.drawing.NucleicMode);
}

TEST(Catalogue, EachKindOfStructureEnablesItsOwnMenus) {
  struct Case {
    List MainWindow::*Rows;
    const char* Row;
    const char* Expected;  // D_Ca M_Rbn Ppt OPB RCDP Bt3_Isomers ChainPlanes+NucleicMode
  };
  const Case cases[] = {
      {&MainWindow::AA_Lst, "Gen", "no no no no no yes 00"},
      {&MainWindow::Pro_Lst, "PEP", "no no yes no no no 00"},
      {&MainWindow::Pro_Lst, "Alfb", "no no yes yes no no 10"},
      {&MainWindow::Pro_Lst, "Alfa", "yes yes no yes yes no 00"},  // OPB as it was
      {&MainWindow::Pro_Lst, "PEP", "no no yes yes no no 00"},     // OPB as it was
      {&MainWindow::DNA_Lst, "S2DNA", "no no no no no no 01"},
      {&MainWindow::Pro_Lst, "Beta", "yes yes no no yes no 00"},
      {&MainWindow::Pro_Lst, "PBS", "yes yes no no yes no 00"},
      {&MainWindow::Pro_Lst, "APBS", "yes yes no no yes no 00"},
      {&MainWindow::Pro_Lst, "Betb", "no no yes yes no no 10"},
      {&MainWindow::Nuc_Lst, "PHS", "no no no no no no 00"},
      {&MainWindow::AA_Lst, "SER", "no no no no no yes 00"},
  };
  DeskAtWork work;
  EXPECT_FALSE(work.desk.main.DWn.Enabled);
  for (const Case& selection : cases) {
    Select(work, work.desk.main.*selection.Rows, selection.Row);
    EXPECT_EQ(MenuState(work.desk), selection.Expected) << selection.Row;
    EXPECT_TRUE(work.desk.main.DWn.Enabled);
  }
}

TEST(Catalogue, OpbStaysEnabledAfterAPolypeptideAndAnAminoAcidDisablesIt) {
  DeskAtWork work;
  Select(work, work.desk.main.Pro_Lst, "Alfb");
  Select(work, work.desk.main.Pro_Lst, "Alfa");
  EXPECT_TRUE(work.desk.main.OPB.Enabled);
  Select(work, work.desk.main.AA_Lst, "GLY");
  EXPECT_FALSE(work.desk.main.OPB.Enabled);
}

TEST(Catalogue, ThePlotIsDisabledForPolyalanine) {
  DeskAtWork work;
  Select(work, work.desk.main.Pro_Lst, "Alfa");
  EXPECT_TRUE(work.desk.main.RCDP.Enabled);
  Select(work, work.desk.main.Pro_Lst, "Alfb");
  EXPECT_FALSE(work.desk.main.RCDP.Enabled);
}

TEST(Catalogue, NoSelectionTouchesTheOtherDrawingEntries) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  main.Cartn.Enabled = false;
  main.D_StB.Enabled = false;
  Select(work, main.Pro_Lst, "Alfa");
  Select(work, main.AA_Lst, "Gen");

  EXPECT_FALSE(main.Cartn.Enabled);
  EXPECT_FALSE(main.D_StB.Enabled);
  EXPECT_TRUE(main.D_Wf.Enabled);
  EXPECT_TRUE(main.M_Stk.Enabled);
  EXPECT_TRUE(main.PPB_SB.Enabled);
}

TEST(Catalogue, ASelectionKeepsModesAndColoursAndResetsTheView) {
  DeskAtWork work;
  Select(work, work.desk.main.Pro_Lst, "Alfa");
  Orvane_Desk& desk = work.desk;
  desk.drawing.BallsOn = 1;
  desk.drawing.LabelsOn = 1;
  desk.drawing.HBondShown = 1;
  desk.colours.LabelColour = kPalette14;
  desk.colours.BackgroundIndex = 3;
  desk.measure.PickState = 2;
  desk.view.AxisX = 1;
  desk.view.AxisY = 0;
  desk.view.PanX = 12;
  desk.drawing.BallSize = 6;
  desk.drawing.BondWidth = 5;
  desk.drawing.PlaneWidth = 4;
  desk.main.Rt_speed.SetValue(50);
  Select(work, desk.main.Nuc_Lst, "RIB");

  EXPECT_EQ(desk.drawing.BallsOn, 1);
  EXPECT_EQ(desk.drawing.LabelsOn, 1);
  EXPECT_EQ(desk.drawing.HBondShown, 1);
  EXPECT_EQ(desk.colours.LabelColour, kPalette14);
  EXPECT_EQ(desk.colours.BackgroundIndex, 3);
  EXPECT_EQ(desk.measure.PickState, 2);
  EXPECT_EQ(desk.view.AxisX, 1);
  EXPECT_EQ(desk.view.PanX, 0);
  EXPECT_EQ(desk.drawing.BallSize, 3);
  EXPECT_EQ(desk.drawing.BondWidth, 1);
  EXPECT_EQ(desk.drawing.PlaneWidth, 1);
  EXPECT_EQ(desk.main.Rt_speed.Value, 200);
}

TEST(Catalogue, ASelectionClosesTheFloatingPanels) {
  DeskAtWork work;
  work.desk.main.P_Clr_Holder.Visible = true;
  work.desk.main.V_RGB_H.Visible = true;
  work.desk.main.P_Dir_Holder.Visible = true;
  Select(work, work.desk.main.DNA_Lst, "S1DNA");

  EXPECT_FALSE(work.desk.main.P_Clr_Holder.Visible);
  EXPECT_FALSE(work.desk.main.V_RGB_H.Visible);
  EXPECT_FALSE(work.desk.main.P_Dir_Holder.Visible);
}

TEST(Catalogue, WithoutARowTheAminoListLoadsNothing) {
  DeskAtWork work;
  Select(work, work.desk.main.Nuc_Lst, "PHS");
  work.desk.molecule.MolText = "";  // a load would fail
  SelectRow(work.desk, work.desk.main.AA_Lst, -1);

  EXPECT_TRUE(work.platform.Effects.empty());
  EXPECT_EQ(work.desk.stock.AminoKey, "");
  EXPECT_EQ(work.desk.main.Caption, "Orvane (OVN) v2.0: ");
  EXPECT_EQ(work.desk.molecule.AtomCount, 7);
}

TEST(Catalogue, WithoutARowTheOtherListsLoadThePreviousTextAgain) {
  for (List MainWindow::*list :
       {&MainWindow::Pro_Lst, &MainWindow::Nuc_Lst, &MainWindow::DNA_Lst}) {
    DeskAtWork work;
    Select(work, work.desk.main.Nuc_Lst, "PHS");
    const std::string text = work.desk.molecule.MolText;
    work.desk.molecule.AtomX[1] = 99;  // overwritten by a load
    SelectRow(work.desk, work.desk.main.*list, -1);

    EXPECT_TRUE(work.platform.Effects.empty());
    EXPECT_EQ(work.desk.molecule.MolText, text);
    EXPECT_NE(work.desk.molecule.AtomX[1], 99);
    EXPECT_EQ(work.desk.main.Caption, "Orvane (OVN) v2.0: ");
  }
}

TEST(Catalogue, AClickWithNothingToLoadEndsInABoxAndTheDeskGoesOn) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Pro_Lst, -1);
  EXPECT_EQ(work.platform.Effects,
            (std::vector<std::string>{"failure Alpha/Beta structure could not be finished: a "
                                      "number was divided by zero."}));

  Select(work, work.desk.main.Pro_Lst, "PEP");
  EXPECT_EQ(work.platform.Effects.size(), 1u);
  EXPECT_EQ(work.desk.molecule.AtomCount, 17);
}

}  // namespace
}  // namespace orvane
