// The answers to a script that asks for the state.
#include "replay/dumps.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "replay/played.h"

namespace orvane {
namespace {

using Json = nlohmann::json;

Json Asked(Session& session, std::string_view dump) {
  const std::string printed = session.Do(dump);
  EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << dump;
  return Json::parse(printed);
}

TEST(Dump, HasTheStartValuesUnderTheirOwnNames) {
  Session session;
  const Json dump = Asked(session, "dump");
  EXPECT_EQ(dump["MoleculeReady"], 0);
  EXPECT_EQ(dump["BallSize"], 3);
  EXPECT_EQ(dump["BackgroundIndex"], -1);
  EXPECT_EQ(dump["PenColour"], 192 + 256 * 192 + 65536 * 192);
  EXPECT_EQ(dump["HalfW"], 180);
  EXPECT_EQ(dump["AxisY"], 1);
  EXPECT_EQ(dump["MolText"], "");
  EXPECT_EQ(dump["DrawName"], "");
  EXPECT_EQ(dump["Caption"], "Orvane (OVN) V3.0");
  EXPECT_EQ(dump["P_Dst_Show"], "");
  EXPECT_EQ(
      dump["bars"],
      (Json{{"VScroll1", 1}, {"ZoomBar", 0}, {"X_TRANS", 0}, {"Y_TRANS", 0}, {"Rt_speed", 200}}));
}

TEST(Dump, WritesNumbersSoThatTheyAreReadBackAsTheyWere) {
  Session session;
  session.Desk().molecule.FitScale = 0.1;
  session.Desk().view.PressX = 0.1F;  // 0.100000001490116119..., cut at 17 digits
  session.Desk().drawing.LineColour = 1e300;
  const std::string printed = session.Do("dump");
  EXPECT_NE(printed.find("\"FitScale\":0.10000000000000001,"), std::string::npos);
  EXPECT_NE(printed.find("\"PressX\":0.10000000149011612,"), std::string::npos);
  EXPECT_NE(printed.find("\"LineColour\":1.0000000000000001e+300,"), std::string::npos);
}

TEST(Dump, HasTheFourPoints) {
  Session session;
  session.Desk().molecule.PointA = {1, 2, 3.5};
  session.Desk().measure.PointD = {-1, 0, 0};
  const Json points = Asked(session, "dump")["Points"];
  EXPECT_EQ(points.size(), 4u);
  EXPECT_EQ(points["PointA"], (Json{1, 2, 3.5}));
  EXPECT_EQ(points["PointB"], (Json{0, 0, 0}));
  EXPECT_EQ(points["PointC"], (Json{0, 0, 0}));
  EXPECT_EQ(points["PointD"], (Json{-1, 0, 0}));
}

TEST(Dump, ShowsTheResultAndTheTitle) {
  Session session;
  session.Desk().main.P_Dst_Show.Caption = "  CA : 1.53 Angs \n";
  session.Desk().main.Caption = "Orvane \"x\"";
  const Json dump = Asked(session, "dump");
  EXPECT_EQ(dump["P_Dst_Show"], "  CA : 1.53 Angs \n");
  EXPECT_EQ(dump["Caption"], "Orvane \"x\"");
}

TEST(DumpOfTheReadout, HasTheTitleTheCountsAndTheResultAlone) {
  Session session;
  Molecule& molecule = session.Desk().molecule;
  molecule.AtomCount = 3;
  molecule.BondCount = 2;
  molecule.HBondCount = 1;
  session.Desk().main.P_Dst_Show.Caption = "  N   -  O  : 02.99 Angs \n   GLY 1 - GLY 1";
  EXPECT_EQ(Asked(session, "dump readout"),
            (Json{{"Caption", "Orvane (OVN) V3.0"},
                  {"AtomCount", 3},
                  {"BondCount", 2},
                  {"HBondCount", 1},
                  {"P_Dst_Show", "  N   -  O  : 02.99 Angs \n   GLY 1 - GLY 1"}}));
}

TEST(Dump, ComesInTheSameOrderEachTime) {
  Session session;
  const std::string first = session.Do("dump\ndump controls");
  EXPECT_EQ(session.Do("restart\ndump\ndump controls"), first);
}

TEST(DumpOfControls, HasEveryControlOfEveryWindowByItsFullName) {
  Session session;
  const Json controls = Asked(session, "dump controls");
  std::size_t count = 0;
  for (const Window* window : session.Desk().windows) {
    count += window->Controls.size();
    for (const Control* control : window->Controls) {
      EXPECT_TRUE(controls.contains(control->FullName())) << control->FullName();
    }
  }
  EXPECT_EQ(controls.size(), count);
  EXPECT_TRUE(controls.contains("X_Tag(1)"));
  EXPECT_TRUE(controls.contains("OpTs"));
  EXPECT_TRUE(controls.contains("Content.Get_in"));
  EXPECT_TRUE(controls.contains("Orvane_Front.Timer1"));
}

TEST(DumpOfControls, HasTheControlsOwnFlags) {
  Session session;
  const Json controls = Asked(session, "dump controls");
  EXPECT_EQ(controls["DWn"],
            (Json{{"Visible", true}, {"Enabled", false}, {"Caption", "&Draw in"}}));
  // Its menu is hidden and disabled; the entry itself is not.
  EXPECT_EQ(controls["StMsc"],
            (Json{{"Visible", true}, {"Enabled", true}, {"Caption", "&Stop Play"}}));
  EXPECT_EQ(controls["Timer1"], (Json{{"Visible", true}, {"Enabled", false}, {"Caption", ""}}));
}

TEST(DumpOfAtoms, GoesFromOneToTheCount) {
  Session session;
  Molecule& molecule = session.Desk().molecule;
  molecule.AtomCount = 2;
  molecule.AtomX[0] = 9;
  molecule.AtomX[1] = 0.5;
  molecule.AtomX[2] = -1;
  molecule.AtomX[3] = 9;
  molecule.ScrY[2] = 180.25;
  molecule.AtomSerial[2] = 2;
  molecule.ResSeq[1] = 12;
  molecule.AtomName[1] = "  CA ";
  molecule.ResName[1] = "  A";

  const Json atoms = Asked(session, "dump atoms");

  EXPECT_EQ(atoms.size(), 12u);
  EXPECT_EQ(atoms["AtomX"], (Json{0.5, -1}));
  EXPECT_EQ(atoms["ScrY"], (Json{0, 180.25}));
  EXPECT_EQ(atoms["AtomSerial"], (Json{0, 2}));
  EXPECT_EQ(atoms["ResSeq"], (Json{12, 0}));
  EXPECT_EQ(atoms["AtomName"], (Json{"  CA ", ""}));
  EXPECT_EQ(atoms["ResName"], (Json{"  A", ""}));
  for (const char* name : {"AtomY", "AtomZ", "CurX", "CurY", "CurZ", "ScrX"}) {
    EXPECT_EQ(atoms[name], (Json{0, 0})) << name;
  }
}

TEST(DumpOfBonds, HasBothKindsEachToItsCount) {
  Session session;
  Molecule& molecule = session.Desk().molecule;
  molecule.BondCount = 1;
  molecule.BondA[1] = 2;
  molecule.BondB[1] = 1;
  molecule.BondSerial[1] = 1;
  molecule.HBondCount = 2;
  molecule.HBondA[2] = 7;
  molecule.HBondB[2] = 3;
  EXPECT_EQ(Asked(session, "dump bonds"), (Json{{"BondA", {2}},
                                                {"BondB", {1}},
                                                {"BondSerial", {1}},
                                                {"HBondA", {0, 7}},
                                                {"HBondB", {0, 3}}}));
}

TEST(DumpOfTheSurvey, HasBothListsToTheCountOfPhi) {
  Session session;
  Survey& survey = session.Desk().survey;
  survey.PhiCount = 2;
  survey.PsiCount = 1;
  survey.PhiList[1] = -57;
  survey.PhiList[2] = -119.5;
  survey.PsiList[1] = -47;
  survey.PsiList[2] = 113;
  EXPECT_EQ(Asked(session, "dump survey"),
            (Json{{"PhiList", {-57, -119.5}}, {"PsiList", {-47, 113}}}));
}

// A count goes up before the slot is written, so it is one too high if the writing fails.
TEST(ACountPastTheEndOfItsArray, IsDumpedAsFarAsTheArrayGoes) {
  Session session;
  session.Desk().molecule.BondCount = kLastSlot + 1;
  session.Desk().survey.PhiCount = 501;
  EXPECT_EQ(Asked(session, "dump bonds")["BondA"].size(), static_cast<std::size_t>(kLastSlot));
  EXPECT_EQ(Asked(session, "dump survey")["PhiList"].size(), 500u);
}

}  // namespace
}  // namespace orvane
