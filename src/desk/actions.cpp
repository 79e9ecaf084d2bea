#include "desk/actions.h"

#include <new>
#include <utility>

#include "runtime/failure.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

std::string WithoutMnemonic(std::string_view caption) {
  std::string text;
  for (const char letter : caption) {
    if (letter != '&') text += letter;
  }
  return text;
}

// What the user knows the control as: "Distance", "Enlarge".
std::string CommandName(const Control& control) {
  // A swatch has the name of its colour; the command is the same for all of them.
  if (control.Row.Parent == "P_Clr_Holder") return CommandName(*control.Parent);
  if (!control.Row.Spoken.empty()) return std::string(control.Row.Spoken);
  const std::string caption = WithoutMnemonic(control.Caption.Get());
  const auto first = caption.find_first_not_of(' ');
  if (first != std::string::npos) return caption.substr(first);
  if (&control == &control.Owner) return control.Name;
  // A control without words is named by what holds it.
  return CommandName(control.Parent != nullptr ? *control.Parent : control.Owner);
}

// Said where there is no memory to build a longer text.
constexpr std::string_view kNothingLeft =
    "The command could not be finished: there is not enough memory.";

enum class Outcome { Done, Failed, NoMemory };

// What goes wrong while a failure is being reported cannot be reported as well.
template <class Step>
Outcome Try(Step step) {
  try {
    step();
    return Outcome::Done;
  } catch (const Failure&) {
    return Outcome::Failed;
  } catch (const std::bad_alloc&) {
    return Outcome::NoMemory;
  }
}

void EndInABox(Orvane_Desk& desk, Control& control, const char* clause) {
  Try([&] { control.Raise({.Kind = EventKind::Failed}); });
  const Outcome told = Try([&] {
    desk.platform.FailureBox(CommandName(control) + " could not be finished: " + clause + ".");
  });
  if (told == Outcome::NoMemory) Try([&] { desk.platform.FailureBox(kNothingLeft); });
}

// The one place that catches a failure. What the operation had done so far stays done.
template <class Operation>
void RunToItsEnd(Orvane_Desk& desk, Control& control, Operation operation) {
  try {
    operation();
  } catch (const Failure& failure) {
    EndInABox(desk, control, failure.what());
  } catch (const std::bad_alloc&) {
    EndInABox(desk, control, kNoMemory);
  }
}

bool MayAct(const Orvane_Desk& desk, const Control& control, Reach reach) {
  return reach == Reach::Forced || (control.IsOpenToUser() && !desk.platform.BoxIsUp());
}

void Deliver(Orvane_Desk& desk, Control& control, const Event& event, Reach reach) {
  if (!MayAct(desk, control, reach)) return;
  RunToItsEnd(desk, control, [&] { control.Raise(event); });
}

}  // namespace

void Click(Orvane_Desk& desk, Control& control, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::Click}, reach);
}

void DoubleClick(Orvane_Desk& desk, Control& control, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::DoubleClick}, reach);
}

void SelectRow(Orvane_Desk& desk, List& list, int row, Reach reach) {
  if (!MayAct(desk, list, reach)) return;
  const bool is_row = row >= 0 && row < static_cast<int>(list.Rows.Get().size());
  RunToItsEnd(desk, list, [&] {
    list.ListIndex = is_row ? row : -1;
    list.Raise({.Kind = EventKind::Click});
  });
}

void Press(Orvane_Desk& desk, Control& control, int button, float x, float y, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::Press, .Button = button, .X = x, .Y = y}, reach);
}

void Move(Orvane_Desk& desk, Control& control, int button, float x, float y, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::Move, .Button = button, .X = x, .Y = y}, reach);
}

void Release(Orvane_Desk& desk, Control& control, int button, float x, float y, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::Release, .Button = button, .X = x, .Y = y}, reach);
}

void PointerEnters(Orvane_Desk& desk, Control& control) {
  Deliver(desk, control, {.Kind = EventKind::Enter}, Reach::AsUser);
}

void FocusComes(Orvane_Desk& desk, Control& control) {
  Deliver(desk, control, {.Kind = EventKind::Focus}, Reach::AsUser);
}

void StepBar(Orvane_Desk& desk, ScrollBar& bar, int value, Reach reach) {
  if (!MayAct(desk, bar, reach)) return;
  RunToItsEnd(desk, bar, [&] { bar.StepTo(value); });
}

void DragBar(Orvane_Desk& desk, ScrollBar& bar, int value, Reach reach) {
  if (!MayAct(desk, bar, reach)) return;
  RunToItsEnd(desk, bar, [&] { bar.DragTo(value); });
}

void DropBar(Orvane_Desk& desk, ScrollBar& bar, Reach reach) {
  if (!MayAct(desk, bar, reach)) return;
  RunToItsEnd(desk, bar, [&] { bar.Drop(); });
}

void TypeText(Orvane_Desk& desk, TextBox& box, std::string_view text, Reach reach) {
  if (!MayAct(desk, box, reach)) return;
  RunToItsEnd(desk, box, [&] { box.Text = std::string(text); });
}

void PressKey(Orvane_Desk& desk, Control& control, int key_code, Reach reach) {
  Deliver(desk, control, {.Kind = EventKind::Key, .KeyCode = key_code}, reach);
}

void Resize(Orvane_Desk& desk, Window& window, Place now, WindowState state) {
  RunToItsEnd(desk, window, [&] {
    window.State = state;
    window.At = now;
    window.Raise({.Kind = EventKind::Resize});
  });
}

void Ask(Orvane_Desk& desk, Control& asking, std::string_view prompt, std::string_view title,
         std::function<void(const std::string&)> then) {
  if (const auto ready = desk.platform.InputBox(prompt, title)) return then(*ready);
  desk.question = {&asking, std::move(then)};
}

bool IsAsking(const Orvane_Desk& desk) { return desk.question.Asking != nullptr; }

void Answer(Orvane_Desk& desk, std::string_view text) {
  if (!IsAsking(desk)) return;
  const Question answered = std::exchange(desk.question, {});
  RunToItsEnd(desk, *answered.Asking, [&] { answered.Then(std::string(text)); });
}

void CloseWindow(Orvane_Desk& desk, Window& window) {
  if (desk.platform.BoxIsUp()) return;
  RunToItsEnd(desk, window, [&] { window.Raise({.Kind = EventKind::Close}); });
}

void OpenFolder(Orvane_Desk& desk, FileList& list, std::string_view path) {
  if (!MayAct(desk, list, Reach::AsUser)) return;
  RunToItsEnd(desk, list, [&] {
    list.Path = std::string(path);
    list.Raise({.Kind = EventKind::Change});
  });
}

void ChooseFile(Orvane_Desk& desk, FileList& list, std::string_view name) {
  if (!MayAct(desk, list, Reach::AsUser)) return;
  RunToItsEnd(desk, list, [&] { list.FileName = std::string(name); });
}

void Tick(Orvane_Desk& desk, Timer& timer, Reach reach) {
  if (reach == Reach::AsUser && (!timer.Enabled || desk.platform.BoxIsUp())) return;
  RunToItsEnd(desk, timer, [&] { timer.Raise({.Kind = EventKind::Tick}); });
}

}  // namespace orvane
