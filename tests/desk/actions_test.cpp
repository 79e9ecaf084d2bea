#include "desk/actions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"
#include "draw/strokes_text.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void SelectBeginning(DeskAtWork& work, List& list, std::string_view beginning) {
  const auto& rows = list.Rows.Get();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].starts_with(beginning)) SelectRow(work.desk, list, static_cast<int>(row));
  }
}

// A desk that counts the clicks that reach "Reset".
struct CountedReset {
  DeskAtWork work;
  int clicks = 0;
  Button& reset = work.desk.main.Bt3_Reset;

  CountedReset() {
    reset.Bind(EventKind::Click, [this](const Event&) { ++clicks; });
  }
};

TEST(Actions, AControlThatIsNotOpenToTheUserGetsNoEvent) {
  CountedReset counted;
  counted.reset.Enabled = false;
  Click(counted.work.desk, counted.reset);
  counted.reset.Enabled = true;
  counted.reset.Visible = false;
  Click(counted.work.desk, counted.reset);
  counted.reset.Visible = true;
  counted.work.desk.main.Visible = false;
  Click(counted.work.desk, counted.reset);
  EXPECT_EQ(counted.clicks, 0);
  EXPECT_THAT(counted.work.platform.Effects, IsEmpty());

  counted.work.desk.main.Visible = true;
  Click(counted.work.desk, counted.reset);
  EXPECT_EQ(counted.clicks, 1);
}

TEST(Actions, AForcedEventReachesItAllTheSame) {
  CountedReset counted;
  counted.reset.Visible = false;
  Click(counted.work.desk, counted.reset, Reach::Forced);
  EXPECT_EQ(counted.clicks, 1);
}

TEST(Actions, AnEntryOfAShutMenuIsShut) {
  DeskAtWork work;
  int clicks = 0;
  work.desk.main.D_Wf.Bind(EventKind::Click, [&](const Event&) { ++clicks; });
  Click(work.desk, work.desk.main.D_Wf);  // "Draw in" is disabled at the start
  EXPECT_EQ(clicks, 0);

  work.desk.main.DWn.Enabled = true;
  Click(work.desk, work.desk.main.D_Wf);
  EXPECT_EQ(clicks, 1);
}

TEST(Actions, AFailureEndsTheOperationInABoxThatNamesTheCommand) {
  DeskAtWork work;
  Button& reset = work.desk.main.Bt3_Reset;
  bool reached_end = false;
  reset.Bind(EventKind::Click, [&](const Event&) {
    work.desk.shell.SoundFile = "begun";
    FailDivision();
  });
  reset.Bind(EventKind::Click, [&](const Event&) { reached_end = true; });
  work.desk.molecule.MoleculeReady = 1;
  Click(work.desk, reset);

  EXPECT_THAT(work.platform.Effects,
              ElementsAre("failure Reset could not be finished: a number was divided by zero."));
  EXPECT_EQ(work.desk.shell.SoundFile, "begun");  // what was already done stays done
  EXPECT_FALSE(reached_end);
}

TEST(Actions, TheControlHearsOfTheFailureBeforeTheBox) {
  DeskAtWork work;
  Panel& panel = work.desk.main.Panel3D4;
  panel.Bind(EventKind::Click, [](const Event&) { FailSubscript(30001); });
  panel.Bind(EventKind::Failed,
             [&](const Event&) { work.platform.Effects.emplace_back("failed here"); });
  Click(work.desk, panel);

  EXPECT_THAT(work.platform.Effects,
              ElementsAre("failed here",
                          "failure Amino acids structure could not be finished: place 30001 of a "
                          "list was asked for, which it does not have."));
}

TEST(Actions, TheBoxNamesAControlAsTheUserKnowsIt) {
  struct Case {
    Control* Source;
    const char* Expected;
  };
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  main.OpTs.Enabled = true;
  main.P_Clr_Holder.Visible = true;
  for (const Case& row : {Case{&main.MlClr, "failure Mol_Colour could not"},  // no mnemonic
                          Case{&main.P_Auto_Rotate, "failure Auto Rotate could not"},  // no blank
                          Case{&main.ZoomBar, "failure Enlarge could not"},            // spoken
                          Case{&main.P_Clr[8], "failure Colours could not"}}) {  // one of many
    row.Source->Bind(EventKind::DoubleClick, [](const Event&) { FailOverflow(); });
    work.platform.Effects.clear();
    DoubleClick(work.desk, *row.Source);
    ASSERT_EQ(work.platform.Effects.size(), 1u) << row.Source->Name;
    EXPECT_THAT(work.platform.Effects[0], testing::StartsWith(row.Expected));
  }
}

TEST(Actions, TheDeskGoesOnAfterAFailure) {
  // Given a desk on which a load of too many records has failed,
  DeskAtWork work;
  SelectBeginning(work, work.desk.main.AA_Lst, "ALA");
  std::string text;
  for (int i = 1; i <= 597; ++i) text += Record("C", 3.0 * i, 0, 0);
  work.desk.molecule.MolText = text;
  Click(work.desk, work.desk.main.Bt_M_Ld, Reach::Forced);
  ASSERT_EQ(work.platform.Effects.size(), 1u);

  // the store is whole as far as the load got,
  const Molecule& molecule = work.desk.molecule;
  ASSERT_EQ(molecule.AtomCount, 596);
  for (int i = 1; i <= 596; ++i) {
    EXPECT_EQ(molecule.AtomSerial[i], i);
    EXPECT_EQ(molecule.AtomX[i], 3.0 * i);
    EXPECT_EQ(molecule.AtomName[i], "  C  ");
  }
  EXPECT_EQ(molecule.BondCount, 0);

  // and the next selection gives the picture that a fresh desk gives.
  SelectBeginning(work, work.desk.main.AA_Lst, "ALA");
  DeskAtWork fresh;
  SelectBeginning(fresh, fresh.desk.main.AA_Lst, "ALA");
  EXPECT_EQ(work.platform.Effects.size(), 1u);
  EXPECT_EQ(molecule.AtomCount, 13);
  EXPECT_EQ(StrokesAsText(*work.desk.main.Picture1.Image()),
            StrokesAsText(*fresh.desk.main.Picture1.Image()));
}

TEST(Actions, ChoosingARowClicksTheListEachTime) {
  DeskAtWork work;
  int clicks = 0;
  work.desk.main.Nuc_Lst.Bind(EventKind::Click, [&](const Event&) { ++clicks; });
  SelectRow(work.desk, work.desk.main.Nuc_Lst, 1);
  SelectRow(work.desk, work.desk.main.Nuc_Lst, 1);

  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(work.desk.main.Nuc_Lst.ListIndex, 1);
}

TEST(Actions, ARowThatTheListDoesNotHaveCountsAsNone) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, 21);
  EXPECT_EQ(work.desk.main.AA_Lst.ListIndex, -1);
  SelectRow(work.desk, work.desk.main.AA_Lst, -5);
  EXPECT_EQ(work.desk.main.AA_Lst.ListIndex, -1);
}

TEST(Actions, AShutListKeepsItsRow) {
  DeskAtWork work;
  work.desk.main.Nuc_Lst.Enabled = false;
  SelectRow(work.desk, work.desk.main.Nuc_Lst, 3);
  EXPECT_EQ(work.desk.main.Nuc_Lst.ListIndex, -1);
  EXPECT_EQ(work.desk.molecule.AtomCount, 0);
}

TEST(Actions, ATickNeedsItsTimerAndNotItsWindow) {
  DeskAtWork work;
  Timer& timer = work.desk.main.Timer1;
  int ticks = 0;
  timer.Bind(EventKind::Tick, [&](const Event&) { ++ticks; });
  Tick(work.desk, timer);
  EXPECT_EQ(ticks, 0);

  timer.Enabled = true;
  work.desk.main.Visible = false;
  Tick(work.desk, timer);
  EXPECT_EQ(ticks, 1);
}

TEST(Actions, TypedTextReachesAnOpenBoxOnly) {
  DeskAtWork work;
  TextBox& red = work.desk.main.RGB_V[0];
  TypeText(work.desk, red, "200");  // its panel is hidden
  EXPECT_EQ(red.Text, "0");
  work.desk.main.V_RGB_H.Visible = true;
  TypeText(work.desk, red, "200");
  EXPECT_EQ(red.Text, "200");
}

TEST(Actions, APointerEventBringsItsPlaceAndButton) {
  DeskAtWork work;
  std::vector<Event> events;
  for (const EventKind kind : {EventKind::Press, EventKind::Move, EventKind::Release}) {
    work.desk.main.Label3.Bind(kind, [&](const Event& event) { events.push_back(event); });
  }
  Press(work.desk, work.desk.main.Label3, kRightButton, 1.5F, 2.5F);
  Move(work.desk, work.desk.main.Label3, kLeftButton + kRightButton, 3.0F, 4.0F);
  Release(work.desk, work.desk.main.Label3, kLeftButton, 5.0F, 6.0F);

  ASSERT_EQ(events.size(), 3u);
  EXPECT_EQ(events[0].Button, kRightButton);
  EXPECT_EQ(events[0].X, 1.5F);
  EXPECT_EQ(events[0].Y, 2.5F);
  EXPECT_EQ(events[1].Button, 3);
  EXPECT_EQ(events[2].Kind, EventKind::Release);
}

TEST(Desk, FindsAControlByItsFullName) {
  DeskAtWork work;
  EXPECT_EQ(work.desk.FindControl("Bt3_Reset"), &work.desk.main.Bt3_Reset);
  EXPECT_EQ(work.desk.FindControl("P_Clr(20)"), &work.desk.main.P_Clr[20]);
  EXPECT_EQ(work.desk.FindControl("Content.Get_in"), &work.desk.content.Get_in);
  EXPECT_EQ(work.desk.FindControl("Nobody"), nullptr);
  EXPECT_EQ(work.desk.FindControl(""), nullptr);
}

}  // namespace
}  // namespace orvane
