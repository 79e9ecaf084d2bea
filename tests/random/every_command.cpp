#include "random/every_command.h"

#include "desk/actions.h"
#include "random/failing_platform.h"

namespace orvane {
namespace {

using Kind = ControlKind;

template <class T>
T& As(Orvane_Desk& desk, const std::string& name) {
  return dynamic_cast<T&>(*desk.FindControl(name));
}

void AddUsesOf(const Control& control, std::vector<Command>& commands) {
  const std::string name = control.FullName();
  // Without a handler it does nothing.
  const auto add = [&](const char* use, EventKind kind, std::function<void(Orvane_Desk&)> act) {
    if (control.Handles(kind)) commands.push_back({std::string(use) + " " + name, std::move(act)});
  };
  switch (control.Row.Kind) {
    case Kind::Timer:
      add("tick", EventKind::Tick,
          [name](Orvane_Desk& d) { Tick(d, As<Timer>(d, name), Reach::Forced); });
      break;
    case Kind::List:
      add("select the first of", EventKind::Click,
          [name](Orvane_Desk& d) { SelectRow(d, As<List>(d, name), 0); });
      add("select none of", EventKind::Click,
          [name](Orvane_Desk& d) { SelectRow(d, As<List>(d, name), -1); });
      break;
    case Kind::ScrollBar:
      add("step", EventKind::Change, [name](Orvane_Desk& d) {
        auto& bar = As<ScrollBar>(d, name);
        StepBar(d, bar, bar.Range.Max);
      });
      add("drag", EventKind::Scroll, [name](Orvane_Desk& d) {
        auto& bar = As<ScrollBar>(d, name);
        DragBar(d, bar, bar.Range.Min + 1);
      });
      add("drop", EventKind::Change,
          [name](Orvane_Desk& d) { DropBar(d, As<ScrollBar>(d, name)); });
      break;
    case Kind::TextBox:
      add("enter in", EventKind::Key,
          [name](Orvane_Desk& d) { PressKey(d, *d.FindControl(name), kEnterKey); });
      break;
    case Kind::FileList:
      add("open a folder in", EventKind::Change,
          [name](Orvane_Desk& d) { OpenFolder(d, As<FileList>(d, name), "/home"); });
      add("double click", EventKind::DoubleClick,
          [name](Orvane_Desk& d) { DoubleClick(d, *d.FindControl(name)); });
      break;
    default:
      add("press", EventKind::Press,
          [name](Orvane_Desk& d) { Press(d, *d.FindControl(name), 1, 3, 3); });
      add("turn", EventKind::Move,
          [name](Orvane_Desk& d) { Move(d, *d.FindControl(name), 2, 40, 60); });
      add("release", EventKind::Release,
          [name](Orvane_Desk& d) { Release(d, *d.FindControl(name), 1, 9, 9); });
      add("click", EventKind::Click, [name](Orvane_Desk& d) { Click(d, *d.FindControl(name)); });
  }
  add("come onto", EventKind::Enter,
      [name](Orvane_Desk& d) { PointerEnters(d, *d.FindControl(name)); });
}

void SelectHelix(Orvane_Desk& desk) {
  desk.main.Visible = true;
  SelectRow(desk, desk.main.Pro_Lst, 1);
}

template <auto kControl>
void WithHelixAndA(Orvane_Desk& desk) {
  SelectHelix(desk);
  Click(desk, desk.main.*kControl, Reach::Forced);
}

void Record(Orvane_Desk& desk) {
  SelectHelix(desk);
  Click(desk, desk.main.S_AnGif, Reach::Forced);
}

void RecordUntilTick(Orvane_Desk& desk, int ticks) {
  Record(desk);
  for (int i = 0; i < ticks; ++i) Tick(desk, desk.main.Timer1);
}

// The music menu is hidden from the user, but its commands exist.
void OpenMusic(Orvane_Desk& desk) {
  SelectHelix(desk);
  for (MenuEntry* entry : {&desk.main.BMusic, &desk.main.PMSC1}) {
    entry->Visible = true;
    entry->Enabled = true;
  }
  Click(desk, desk.main.PMSC1, Reach::Forced);
  Click(desk, desk.main.OpMfL, Reach::Forced);
}

}  // namespace

std::vector<Command> EveryCommand(const Orvane_Desk& desk) {
  std::vector<Command> commands;
  for (std::size_t w = 0; w < desk.windows.size(); ++w) {
    const std::string& name = desk.windows[w]->Name;
    commands.push_back({"close " + name, [w](Orvane_Desk& d) { CloseWindow(d, *d.windows[w]); }});
    commands.push_back({"resize " + name, [w](Orvane_Desk& d) {
                          Resize(d, *d.windows[w], {10, 10, 5000, 5000}, WindowState::Normal);
                        }});
    for (const Control* control : desk.windows[w]->Controls) {
      if (control->IsOpenToUser() || control->Row.Kind == Kind::Timer) {
        AddUsesOf(*control, commands);
      }
    }
  }
  return commands;
}

const std::vector<Situation>& Situations() {
  static const std::vector<Situation> kSituations = {
      {"at the splash", [](Orvane_Desk&) {}},
      {"with nothing loaded", [](Orvane_Desk& desk) { desk.main.Visible = true; }},
      {"with a helix", SelectHelix},
      {"with a stereo pair", WithHelixAndA<&MainWindow::Bt3_Sterio>},
      {"with mirror forms", WithHelixAndA<&MainWindow::Bt3_Isomers>},
      {"in red and green", WithHelixAndA<&MainWindow::R_G_Stereo>},
      {"with the plot", WithHelixAndA<&MainWindow::RCDP>},
      {"with labels",
       [](Orvane_Desk& desk) {
         SelectHelix(desk);
         Click(desk, desk.main.Bt3_Label);
         Click(desk, desk.main.Wt_Cl, Reach::Forced);
         Click(desk, desk.main.LbClr, Reach::Forced);
       }},
      {"choosing the background",
       [](Orvane_Desk& desk) {
         SelectHelix(desk);
         Click(desk, desk.main.ClPlt, Reach::Forced);
         Click(desk, desk.main.COL_RGB, Reach::Forced);
       }},
      {"spinning", WithHelixAndA<&MainWindow::P_Auto_Rotate>},
      {"at the start of a recording", Record},
      {"in a recording", [](Orvane_Desk& desk) { RecordUntilTick(desk, 4); }},
      {"at the end of a recording", [](Orvane_Desk& desk) { RecordUntilTick(desk, 35); }},
      {"with music", OpenMusic},
      {"with a sound that does not open",
       [](Orvane_Desk& desk) {
         OpenMusic(desk);
         dynamic_cast<FakePlatform&>(desk.platform).SoundError = 275;
       }},
  };
  return kSituations;
}

}  // namespace orvane
