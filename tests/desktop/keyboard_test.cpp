// The desk without a pointer: Tab reaches whatever a click works, and keys work it with the same
// effect.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenu>
#include <QTemporaryDir>

#include "desktop/windows/menu_strip.h"
#include "draw/strokes_text.h"
#include "program_fixture.h"

namespace orvane {
namespace {

using ::testing::HasSubstr;

struct KeysAtWork : WindowAtWork {
  QTemporaryDir folder;  // for the files that a command saves

  KeysAtWork() { platform.Folder = folder.path().toStdString(); }

  // Sends a key to an open menu, or else to the control that has the keyboard.
  void Key(int key, Qt::KeyboardModifiers with = {}) {
    QWidget* to = QApplication::activePopupWidget();
    if (to == nullptr) to = window.focusWidget();
    QTest::keyClick(to == nullptr ? &window : to, static_cast<Qt::Key>(key), with);
  }
  bool HasKeyboard(const Control& control) { return WidgetOf(control).hasFocus(); }
  // Returns false if Tab has gone through all stops and not reached the control.
  bool TabTo(const Control& control) {
    for (int stops = 0; stops < 100; ++stops) {
      if (HasKeyboard(control)) return true;
      Key(Qt::Key_Tab);
    }
    return false;
  }
  // Opens a top menu by its letter and goes down to the entry, through the menu above it if any.
  bool ChooseEntry(const Control& entry) {
    std::vector<const Control*> road{&entry};
    while (road.back()->Parent != nullptr) road.push_back(road.back()->Parent);
    const QString top = QString::fromStdString(road.back()->Caption);
    Key(top[top.indexOf(u'&') + 1].toUpper().unicode(), Qt::AltModifier);
    for (std::size_t i = road.size() - 1; i-- > 0;) {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return false;
      const QAction* wanted = window.strip->ActionOf(*road[i]);
      for (int row = 0; row < 20 && menu->activeAction() != wanted; ++row) Key(Qt::Key_Down);
      if (menu->activeAction() != wanted) return false;
      Key(Qt::Key_Return);
    }
    return true;
  }
};

// What the desk shows, as text.
std::string StateOf(Orvane_Desk& desk) {
  std::string state;
  for (const Control* control : desk.main.Controls) {
    state += control->FullName() + " " + control->Caption.Get() + " " +
             std::to_string(control->Visible.Get()) + std::to_string(control->Enabled.Get()) +
             std::to_string(control->Style.Get().Bevel);
    if (const auto* bar = dynamic_cast<const ScrollBar*>(control)) {
      state += " " + std::to_string(bar->Value.Get());
    }
    if (const auto* list = dynamic_cast<const List*>(control)) {
      state += " " + std::to_string(list->ListIndex.Get());
    }
    state += "\n";
  }
  return state + "pen " + std::to_string(desk.colours.PenColour) + " by element " +
         std::to_string(desk.colours.ColourByElement) + " ground " +
         std::to_string(desk.main.Picture1.PlainColour()) + "\n" +
         StrokesAsText(*desk.main.Picture1.Image());
}

enum AminoRow { kAlanine = 2 };
enum DnaRow { kDoubleStrand = 2 };

// Shows a structure, and opens the panel or the view that holds the control.
void Prepare(KeysAtWork& work, const Control& control) {
  SelectRow(work.desk, work.main.AA_Lst, kAlanine);
  if (control.Parent == &work.main.P_Clr_Holder) Click(work.desk, work.main.MlClr);
  if (control.Parent == &work.main.V_RGB_H) Click(work.desk, work.main.COL_RGB);
  if (&control == &work.main.P_Sterio) Click(work.desk, work.main.Bt3_Sterio);
  if (&control == &work.main.Bt_M_Ld) work.main.Bt_M_Ld.Visible = true;
}

bool IsClicked(const ControlRow& row) {
  return row.TabStop > 0 && (row.Kind == ControlKind::Button || row.Kind == ControlKind::Toggle ||
                             row.Kind == ControlKind::Panel);
}

TEST(Keyboard, WhatActsOnAClickTakesTheKeyboardOrIsInAMenu) {
  WindowAtWork work;
  int asked = 0;
  for (const Control* control : work.main.Controls) {
    const bool acts = control->Handles(EventKind::Click) || control->Handles(EventKind::Press) ||
                      control->Handles(EventKind::Change) ||
                      control->Handles(EventKind::DoubleClick);
    if (!acts || control->Row.Kind == ControlKind::MenuEntry) continue;
    // Headings close the floating panels, as Escape does.
    if (control->Name.starts_with("Panel3D")) continue;
    EXPECT_GT(control->Row.TabStop, 0) << control->FullName();
    ++asked;
  }
  EXPECT_GT(asked, 60);
}

// Compares the effect of Space with that of a pointer's click on another desk.
TEST(Keyboard, SpaceOnEachButtonAndPanelDoesWhatAClickDoes) {
  std::vector<std::string> names;
  {
    WindowAtWork work;
    for (const Control* control : work.main.Controls) {
      if (IsClicked(control->Row)) names.push_back(control->FullName());
    }
  }
  ASSERT_GT(names.size(), 50U);
  for (const std::string& name : names) {
    std::string clicked;
    std::vector<std::string> effects;
    {
      KeysAtWork work;
      const Control& control = *work.desk.FindControl(name);
      Prepare(work, control);
      ASSERT_TRUE(control.IsOpenToUser()) << name;
      work.ClickOn(control);
      clicked = StateOf(work.desk);
      effects = work.platform.Effects;
    }
    KeysAtWork work;
    const Control& control = *work.desk.FindControl(name);
    Prepare(work, control);
    ASSERT_TRUE(work.TabTo(control)) << name;

    work.Key(Qt::Key_Space);

    EXPECT_EQ(StateOf(work.desk), clicked) << name;
    EXPECT_EQ(work.platform.Effects, effects) << name;
  }
}

TEST(Keyboard, AnArrowOnEachBarDoesWhatAClickOnItsArrowDoes) {
  for (const char* name : {"Rt_speed", "VScroll1", "Y_TRANS", "X_TRANS", "ZoomBar"}) {
    std::string clicked;
    {
      KeysAtWork work;
      const Control& bar = *work.desk.FindControl(name);
      Prepare(work, bar);
      const QRectF face = work.ViewOf(bar).FaceInWidget();
      QTest::mouseClick(&work.WidgetOf(bar), Qt::LeftButton, {},
                        (face.bottomRight() - QPointF(6, 6)).toPoint());
      clicked = StateOf(work.desk);
    }
    KeysAtWork work;
    const Control& bar = *work.desk.FindControl(name);
    Prepare(work, bar);
    const std::string before = StateOf(work.desk);
    ASSERT_TRUE(work.TabTo(bar)) << name;

    work.Key(Qt::Key_Right);

    EXPECT_EQ(StateOf(work.desk), clicked) << name;
    EXPECT_NE(clicked, before) << name;
  }
}

TEST(Keyboard, AnArrowOnEachListChoosesARowAsAClickOnItDoes) {
  for (const char* name : {"AA_Lst", "Pro_Lst", "Nuc_Lst", "DNA_Lst"}) {
    std::string clicked;
    {
      KeysAtWork work;
      QTest::mouseClick(&work.WidgetOf(*work.desk.FindControl(name)), Qt::LeftButton, {}, {40, 8});
      clicked = StateOf(work.desk);
    }
    KeysAtWork work;
    ASSERT_TRUE(work.TabTo(*work.desk.FindControl(name))) << name;

    work.Key(Qt::Key_Down);

    EXPECT_EQ(StateOf(work.desk), clicked) << name;
    EXPECT_GT(work.desk.molecule.AtomCount, 0) << name;
  }
}

TEST(Keyboard, TheBoxesOfTheRgbFrameAreTypedIntoAndSentByKeys) {
  KeysAtWork work;
  SelectRow(work.desk, work.main.AA_Lst, kAlanine);
  ASSERT_TRUE(work.ChooseEntry(work.main.COL_RGB));
  ASSERT_TRUE(work.HasKeyboard(work.main.RGB_V[0]));
  for (const char* number : {"10", "20", "30"}) {
    QTest::keyClick(work.window.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(work.window.focusWidget(), QString::fromLatin1(number));
    work.Key(Qt::Key_Tab);
  }
  ASSERT_TRUE(work.HasKeyboard(work.main.Do_color));

  work.Key(Qt::Key_Return);

  EXPECT_EQ(work.main.Picture1.PlainColour(), Rgb(10, 20, 30));
}

TEST(Keyboard, TheListsOfTheMusicChooserAreReachedAndWorked) {
  KeysAtWork work;
  ASSERT_TRUE(QDir(work.folder.path()).mkdir(QStringLiteral("inner")));
  work.main.P_Dir_Holder.Visible = true;
  for (const Control* list : std::initializer_list<const Control*>{
           &work.main.Drive1, &work.main.Dir1, &work.main.File1}) {
    ASSERT_TRUE(work.TabTo(*list)) << list->Name;
  }
  OpenFolder(work.desk, work.main.Dir1, work.folder.path().toStdString());
  ASSERT_TRUE(work.TabTo(work.main.Dir1));

  work.Key(Qt::Key_End);
  work.Key(Qt::Key_Return);

  EXPECT_THAT(work.main.Dir1.Path.Get(), testing::EndsWith("/inner"));
}

TEST(Keyboard, EveryEntryOfTheMenusIsChosenByItsLetterAndArrows) {
  std::vector<std::string> names;
  {
    WindowAtWork work;
    for (const Control* control : work.main.Controls) {
      const bool is_leaf = control->Row.Kind == ControlKind::MenuEntry &&
                           control->Parent != nullptr && control->Name != "BkGd" &&
                           control->Name != "Ppt";
      if (is_leaf) names.push_back(control->FullName());
    }
  }
  int chosen = 0;
  for (const std::string& name : names) {
    KeysAtWork work;
    SelectRow(work.desk, work.main.Pro_Lst, 1);
    Control& entry = *work.desk.FindControl(name);
    if (!entry.IsOpenToUser() || name == "PrImg")
      continue;  // so that no page goes to a real printer
    const Heard clicks(entry, EventKind::Click);

    EXPECT_TRUE(work.ChooseEntry(entry)) << name;

    EXPECT_EQ(clicks.Count, 1) << name;
    ++chosen;
  }
  EXPECT_GE(chosen, 20);
}

TEST(Keyboard, ATopMenuWithoutEntriesIsChosenByItsLetterAlone) {
  KeysAtWork work;
  SelectRow(work.desk, work.main.Pro_Lst, 1);
  const Heard clicks(work.main.RCDP, EventKind::Click);
  work.Key(Qt::Key_R, Qt::AltModifier);
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_TRUE(work.desk.plot.Visible);
}

TEST(Keyboard, APanelGivesTheKeyboardBackToWhereItCameFrom) {
  KeysAtWork work;
  SelectRow(work.desk, work.main.AA_Lst, kAlanine);
  for (const int key : {Qt::Key_Space, Qt::Key_Escape}) {
    ASSERT_TRUE(work.TabTo(work.main.Bt3_Reset));
    ASSERT_TRUE(work.ChooseEntry(work.main.MlClr));
    ASSERT_TRUE(work.main.P_Clr_Holder.Visible);
    work.Key(Qt::Key_Tab);
    ASSERT_TRUE(work.main.P_Clr_Holder.Visible);
    ASSERT_TRUE(work.WidgetOf(work.main.P_Clr_Holder).isAncestorOf(work.window.focusWidget()));

    work.Key(key);

    EXPECT_FALSE(work.main.P_Clr_Holder.Visible);
    EXPECT_TRUE(work.HasKeyboard(work.main.Bt3_Reset));
  }
}

// A key that comes up from the control inside does not count for the container.
TEST(Keyboard, WhatHoldsAControlIsNotClickedByItsKeys) {
  KeysAtWork work;
  SelectRow(work.desk, work.main.AA_Lst, kAlanine);
  const Heard presses(work.main.P_Pic1, EventKind::Press);
  work.Key(Qt::Key_F6);
  ASSERT_TRUE(work.HasKeyboard(work.main.Picture1));
  work.Key(Qt::Key_Space);
  EXPECT_EQ(presses.Count, 0);
}

struct OnPicture : KeysAtWork, testing::Test {
  OnPicture() {
    SelectRow(desk, main.DNA_Lst, kDoubleStrand);
    Key(Qt::Key_F6);
  }
  QImage PictureShot() { return WidgetOf(main.Picture1).grab().toImage(); }
};

TEST_F(OnPicture, KeysWorkTheBarsAndTheButtons) {
  ASSERT_TRUE(HasKeyboard(main.Picture1));
  Key(Qt::Key_Right);
  EXPECT_EQ(main.VScroll1.Value, 11);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(main.X_TRANS.Value, 5);
  Key(Qt::Key_Plus, Qt::ShiftModifier);  // on keyboards where the sign needs Shift
  EXPECT_EQ(main.ZoomBar.Value, 5);
  Key(Qt::Key_Minus);
  EXPECT_EQ(main.ZoomBar.Value, 0);
  Key(Qt::Key_X);
  EXPECT_EQ(desk.view.AxisX, 1);
  Key(Qt::Key_S);
  EXPECT_EQ(desk.view.AutoRotateOn, 1);
  Key(Qt::Key_S);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  Key(Qt::Key_R);
  EXPECT_EQ(main.VScroll1.Value, 1);
  EXPECT_EQ(main.X_TRANS.Value, 0);
}

TEST_F(OnPicture, KeysWorkNowhereElseAndNotWithControl) {
  WidgetOf(main.Bt3_Reset).setFocus();
  Key(Qt::Key_S);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  Key(Qt::Key_F6);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
}

TEST_F(OnPicture, AHeldKeyRepeatsAStepButNotASwitch) {
  QWidget& picture = WidgetOf(main.Picture1);
  const auto hold = [&](Qt::Key key) {
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&picture, &again);
  };
  hold(Qt::Key_Right);
  EXPECT_EQ(main.VScroll1.Value, 11);
  hold(Qt::Key_S);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
}

TEST_F(OnPicture, TheKeyboardGoesAlongIntoThePairOfViewsAndBack) {
  Key(Qt::Key_V);
  ASSERT_FALSE(main.P_Pic1.Visible);
  EXPECT_TRUE(HasKeyboard(main.P_Sterio));
  Key(Qt::Key_Right);
  EXPECT_EQ(main.VScroll1.Value, 11);
  Key(Qt::Key_V);
  EXPECT_TRUE(main.P_Pic1.Visible);
  EXPECT_TRUE(HasKeyboard(main.Picture1));
}

// The panel closes at once and gives the keyboard back to the picture, where Enter is a pick.
TEST_F(OnPicture, EnterInABoxOfTheRgbFrameDoesNotPickTheAtomInTheRing) {
  Key(Qt::Key_Home);
  const auto walk = desk.walk;
  ASSERT_NE(walk.Number, 0);
  ASSERT_TRUE(ChooseEntry(main.COL_RGB));
  ASSERT_TRUE(HasKeyboard(main.RGB_V[0]));
  const Heard presses(main.Picture1, EventKind::Press);

  Key(Qt::Key_Return);

  EXPECT_FALSE(main.V_RGB_H.Visible);
  EXPECT_TRUE(HasKeyboard(main.Picture1));
  EXPECT_EQ(presses.Count, 0);
  EXPECT_EQ(desk.measure.PickState, 0);
  EXPECT_EQ(desk.walk.Number, walk.Number);
  EXPECT_EQ(desk.walk.Picked, walk.Picked);
  EXPECT_TRUE(platform.Effects.empty());
}

// The ring and the mark are on the screen only. The strokes do not change, nor does any file or
// page.
TEST_F(OnPicture, TheWalkShowsWhileThePictureHasTheKeyboardAndIsNeverDrawn) {
  const QImage ringed = PictureShot();
  const std::string strokes = StrokesAsText(*main.Picture1.Image());

  Key(Qt::Key_N);
  const QImage marked = PictureShot();
  EXPECT_NE(marked, ringed);
  EXPECT_EQ(StrokesAsText(*main.Picture1.Image()), strokes);

  Key(Qt::Key_N);
  EXPECT_NE(PictureShot(), marked) << "the mark walks on";

  WidgetOf(main.Bt3_Reset).setFocus();
  const QImage bare = PictureShot();
  EXPECT_NE(bare, ringed);
  main.DNA_Lst.SetFocus();
  EXPECT_EQ(PictureShot(), bare);
}

// The mark's ring: the accent for dark backgrounds at its radius from the atom, on all four sides.
TEST_F(OnPicture, TheMarkLiesRoundTheAtom) {
  SelectRow(desk, main.AA_Lst, 1);
  Key(Qt::Key_F6);
  Key(Qt::Key_N);
  const QImage shot = PictureShot();
  const double ratio = shot.devicePixelRatio();
  const QPointF middle(desk.molecule.ScrX[1] + 0.5, desk.molecule.ScrY[1] + 0.5);
  for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
    bool seen = false;
    for (double out = 5; out < 9; out += 0.25) {
      const QColor at = shot.pixelColor(((middle + way * out) * ratio).toPoint());
      seen |= at.blue() > 180 && at.green() > 160 && at.red() < 140;
    }
    EXPECT_TRUE(seen) << way.x() << ", " << way.y();
  }
}

TEST_F(OnPicture, APressOfThePointerBringsTheKeyboardWithoutARing) {
  WidgetOf(main.Bt3_Reset).setFocus();
  const QImage bare = PictureShot();
  QTest::mouseClick(&WidgetOf(main.Picture1), Qt::LeftButton, {}, {2, 2});
  ASSERT_TRUE(HasKeyboard(main.Picture1));
  EXPECT_EQ(PictureShot(), bare);
  Key(Qt::Key_F6);
  EXPECT_EQ(PictureShot(), bare) << "it is there already";
  WidgetOf(main.Bt3_Reset).setFocus();
  Key(Qt::Key_F6);
  EXPECT_NE(PictureShot(), bare);
}

// N at (11.140, 8.020, 1.544), CA at (10.466, 6.872, 2.145): the square root of 0.674 squared +
// 1.148 squared + 0.601 squared is 1.4609.
TEST_F(OnPicture, TwoAtomsAreMeasuredByKeys) {
  SelectRow(desk, main.AA_Lst, 1);
  Key(Qt::Key_F6);
  for (const int key : {Qt::Key_Home, Qt::Key_Space, Qt::Key_N, Qt::Key_Return, Qt::Key_D})
    Key(key);
  EXPECT_EQ(main.P_Dst_Show.Caption, "  N   -  CA : 01.46 Angs \n   GLY 1 - GLY 1");
  Key(Qt::Key_Delete);
  EXPECT_EQ(main.P_Dst_Show.Caption, "");
}

TEST(Keyboard, AWholeLessonNeedsNoPointer) {
  KeysAtWork work;
  MainWindow& main = work.main;

  // The double strand of DNA.
  ASSERT_TRUE(work.TabTo(main.DNA_Lst));
  work.Key(Qt::Key_End);
  ASSERT_EQ(main.DNA_Lst.ListIndex, kDoubleStrand);
  const int atoms = work.desk.molecule.AtomCount;
  ASSERT_GT(atoms, 100);

  // Turned and enlarged.
  work.Key(Qt::Key_F6);
  const double before = work.desk.molecule.CurX[1];
  work.Key(Qt::Key_Right);
  const double turned = work.desk.molecule.CurX[1];
  EXPECT_NE(turned, before);
  work.Key(Qt::Key_Plus);
  EXPECT_NE(work.desk.molecule.CurX[1], turned);

  // Choose another colour from the panel.
  ASSERT_TRUE(work.ChooseEntry(main.MlClr));
  ASSERT_TRUE(main.P_Clr_Holder.Visible);
  const Control& swatch = main.P_Clr[5];
  ASSERT_TRUE(work.TabTo(swatch));
  work.Key(Qt::Key_Space);
  EXPECT_EQ(work.desk.colours.PenColour, swatch.BackColor.Get());
  EXPECT_FALSE(main.P_Clr_Holder.Visible);
  EXPECT_TRUE(work.HasKeyboard(main.Picture1));

  // Pick two atoms by the walk.
  for (const int key : {Qt::Key_Home, Qt::Key_Space}) work.Key(key);
  const int first = work.desk.walk.Picked;
  for (const int key : {Qt::Key_N, Qt::Key_N, Qt::Key_Space}) work.Key(key);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(work.desk.walk.Picked, 3);
  work.Key(Qt::Key_D);
  EXPECT_THAT(main.P_Dst_Show.Caption.Get(), HasSubstr("Angs"));

  // Spin, and go back to the start.
  work.Key(Qt::Key_S);
  EXPECT_EQ(work.desk.view.AutoRotateOn, 1);
  work.Key(Qt::Key_S);
  work.Key(Qt::Key_R);
  EXPECT_EQ(main.ZoomBar.Value, 0);
  EXPECT_EQ(work.desk.molecule.AtomCount, atoms);
  EXPECT_TRUE(work.platform.Effects.empty());
}

QWidget* SheetOnView() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String("KeySheet") && widget->isVisible()) return widget;
  }
  return nullptr;
}

TEST(TheSheetOfKeys, OpensWithF1FromAnyControlAndClosesWithF1OrEscape) {
  KeysAtWork work;
  for (const int closing : {Qt::Key_F1, Qt::Key_Escape}) {
    ASSERT_TRUE(work.TabTo(work.main.Bt3_Dts));
    work.Key(Qt::Key_F1);
    QWidget* sheet = SheetOnView();
    ASSERT_NE(sheet, nullptr);
    EXPECT_FALSE(sheet->isModal());

    QTest::keyClick(sheet, static_cast<Qt::Key>(closing));

    EXPECT_EQ(SheetOnView(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&work.window));
    EXPECT_TRUE(work.HasKeyboard(work.main.Bt3_Dts));
  }
}

TEST(TheSheetOfKeys, IsBesideTheDeskWhichGoesOnWorking) {
  KeysAtWork work;
  work.Key(Qt::Key_F1);
  ASSERT_NE(SheetOnView(), nullptr);
  work.ClickOn(work.main.X_Tag[0]);
  EXPECT_EQ(work.desk.view.AxisX, 1);
  work.window.activateWindow();
  (void)QTest::qWaitForWindowActive(&work.window);
  work.Key(Qt::Key_F1);
  EXPECT_EQ(SheetOnView(), nullptr);
}

TEST(TheSheetOfKeys, IsNotAWindowOfTheDeskAndEndsWithIt) {
  {
    KeysAtWork work;
    const std::size_t windows = work.desk.windows.size();
    work.Key(Qt::Key_F1);
    ASSERT_NE(SheetOnView(), nullptr);
    EXPECT_EQ(work.desk.windows.size(), windows);
  }
  EXPECT_EQ(SheetOnView(), nullptr);
}

// No part of it leaves the window, whatever its size: the lowest row and the rightmost column of
// pixels are bare background.
TEST(TheSheetOfKeys, FitsItsWindow) {
  KeysAtWork work;
  work.Key(Qt::Key_F1);
  QWidget* sheet = SheetOnView();
  ASSERT_NE(sheet, nullptr);
  for (const QSize size : {QSize(956, 556), QSize(640, 400), QSize(1912, 1000)}) {
    sheet->resize(size);
    const QImage shot = sheet->grab().toImage();
    const QRgb ground = shot.pixel(0, shot.height() - 1);
    for (int x = 0; x < shot.width(); ++x) {
      ASSERT_EQ(shot.pixel(x, shot.height() - 2), ground) << x << " at " << size.width();
    }
    for (int y = shot.height() / 4; y < shot.height(); ++y) {
      ASSERT_EQ(shot.pixel(shot.width() - 2, y), ground) << y << " at " << size.width();
    }
  }
}

TEST(FurtherWindows, CanBeWorkedByKeys) {
  ProgramAtWork work;
  const auto key = [&](Window& window, Qt::Key code) {
    QWidget* to = work.WindowOf(window).focusWidget();
    QTest::keyClick(to == nullptr ? &work.WindowOf(window) : to, code);
  };
  // The splash has two stops: Tab goes to the author and back.
  key(work.desk.front, Qt::Key_Tab);
  EXPECT_TRUE(work.WidgetOf(work.desk.front.Author).hasFocus());
  key(work.desk.front, Qt::Key_Return);
  work.WaitFor(work.desk.author);
  ASSERT_TRUE(work.IsOnView(work.desk.author));
  key(work.desk.author, Qt::Key_Return);
  EXPECT_FALSE(work.IsOnView(work.desk.author));
  work.WaitFor(work.desk.front);
  key(work.desk.front, Qt::Key_Tab);
  key(work.desk.front, Qt::Key_Return);
  work.WaitFor(work.desk.content);
  ASSERT_TRUE(work.IsOnView(work.desk.content));
  key(work.desk.content, Qt::Key_Space);
  work.WaitFor(work.desk.main);
  EXPECT_TRUE(work.IsOnView(work.desk.main));
}

TEST(FurtherWindows, TheMapShowsItsNamesAndClosesByKeys) {
  KeysAtWork work;
  SelectRow(work.desk, work.main.Pro_Lst, 1);
  work.Key(Qt::Key_R, Qt::AltModifier);
  ASSERT_TRUE(work.desk.plot.Visible);
  WindowWidget& map = work.skin.WindowOf(work.desk.plot);
  QTest::keyClick(&map, Qt::Key_Right);
  EXPECT_TRUE(work.desk.plot.Collag.Visible);
  QTest::keyClick(&map, Qt::Key_Left);
  EXPECT_FALSE(work.desk.plot.Collag.Visible);
  EXPECT_TRUE(work.desk.plot.L_Alf[0].Visible);
  QTest::keyClick(&map, Qt::Key_Escape);
  EXPECT_FALSE(work.desk.plot.Visible);
}

TEST(Tips, OfTheWidgetsAreThoseOfTheTables) {
  ProgramAtWork work;
  for (Window* window : work.desk.windows) {
    if (window == &work.desk.page) continue;  // never shown
    for (const Control* control : window->Controls) {
      const ControlView* view = work.WindowOf(*window).ViewOf(*control);
      if (view == nullptr) continue;
      EXPECT_EQ(view->widget.toolTip().toStdString(), control->Row.Tip) << control->FullName();
    }
  }
}

}  // namespace
}  // namespace orvane
