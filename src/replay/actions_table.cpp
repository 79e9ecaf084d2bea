#include "replay/actions_table.h"

#include "replay/player.h"

namespace orvane {
namespace {

template <class Kind>
bool Is(Control& control) {
  return dynamic_cast<Kind*>(&control) != nullptr;
}

bool StandsOnTheScreen(Control& control) { return !Is<Timer>(control); }

// A bar is moved and a list is chosen from; both are more than a click.
bool CanBeClicked(Control& control) {
  return StandsOnTheScreen(control) && !Is<ScrollBar>(control) && !Is<List>(control);
}

template <class Kind>
Kind& As(const Arguments& given) {
  return dynamic_cast<Kind&>(*given.control);
}

// The two clicks that lead from the start to the main window.
void Enter(Player& player, const Arguments& given) {
  Click(*player.desk, player.desk->front.Get_in, given.reach);
  Click(*player.desk, player.desk->content.Get_in, given.reach);
}

// clang-format off
constexpr Action kActions[] = {
    {"click", CanBeClicked, Wants::Nothing, [](Player& player, const Arguments& given) {
       Click(*player.desk, *given.control, given.reach); }},
    {"doubleclick", StandsOnTheScreen, Wants::Nothing, [](Player& player, const Arguments& given) {
       DoubleClick(*player.desk, *given.control, given.reach); }},
    {"select", Is<List>, Wants::Whole, [](Player& player, const Arguments& given) {
       SelectRow(*player.desk, As<List>(given), given.whole, given.reach); }},
    {"press", StandsOnTheScreen, Wants::PointerButton, [](Player& player, const Arguments& given) {
       Press(*player.desk, *given.control, given.whole, given.x, given.y, given.reach); }},
    {"move", StandsOnTheScreen, Wants::PointerState, [](Player& player, const Arguments& given) {
       Move(*player.desk, *given.control, given.whole, given.x, given.y, given.reach); }},
    {"release", StandsOnTheScreen, Wants::PointerButton, [](Player& player, const Arguments& given) {
       Release(*player.desk, *given.control, given.whole, given.x, given.y, given.reach); }},
    {"bar", Is<ScrollBar>, Wants::Whole, [](Player& player, const Arguments& given) {
       StepBar(*player.desk, As<ScrollBar>(given), given.whole, given.reach); }},
    {"drag", Is<ScrollBar>, Wants::Whole, [](Player& player, const Arguments& given) {
       DragBar(*player.desk, As<ScrollBar>(given), given.whole, given.reach); }},
    {"drop", Is<ScrollBar>, Wants::Nothing, [](Player& player, const Arguments& given) {
       DropBar(*player.desk, As<ScrollBar>(given), given.reach); }},
    {"type", Is<TextBox>, Wants::Text, [](Player& player, const Arguments& given) {
       TypeText(*player.desk, As<TextBox>(given), given.text, given.reach); }},
    {"key", Is<TextBox>, Wants::Whole, [](Player& player, const Arguments& given) {
       PressKey(*player.desk, *given.control, given.whole, given.reach); }},
    {"tick", Is<Timer>, Wants::Nothing, [](Player& player, const Arguments& given) {
       Tick(*player.desk, As<Timer>(given), given.reach); }},
    {"answer", nullptr, Wants::Text, [](Player& player, const Arguments& given) {
       player.platform->Answers.emplace_back(given.text); }},
    {"sound-fails", nullptr, Wants::Whole, [](Player& player, const Arguments& given) {
       player.platform->SoundError = given.whole; }},
    {"no-printer", nullptr, Wants::Nothing, [](Player& player, const Arguments&) {
       player.platform->HasPrinter = false; }},
    {"printer", nullptr, Wants::Nothing, [](Player& player, const Arguments&) {
       player.platform->HasPrinter = true; }},
    {"restart", nullptr, Wants::Nothing, [](Player& player, const Arguments&) {
       StartDesk(player); }},
    {"enter", nullptr, Wants::Nothing, Enter},
    {"dump", nullptr, Wants::DumpName, [](Player& player, const Arguments& given) {
       player.output.Line(given.dump(*player.desk)); }},
};
// clang-format on

std::string Quoted(std::string_view word) { return "\"" + std::string(word) + "\""; }

std::string ReadPointer(Wants what, ScriptLine& words, Arguments& given) {
  const std::string_view button = words.NextWord();
  const auto number = WholeNumber(button);
  const bool is_state = number && *number >= 0 && *number <= 7;
  const bool is_button = number && (*number == 1 || *number == 2 || *number == 4);
  if (what == Wants::PointerButton ? !is_button : !is_state) {
    return Quoted(button) + " is no pointer button";
  }
  given.whole = *number;
  for (float* place : {&given.x, &given.y}) {
    const std::string_view word = words.NextWord();
    const auto value = RealNumber(word);
    if (!value) return Quoted(word) + " is no place in a control";
    *place = *value;
  }
  return "";
}

std::string ReadWhole(ScriptLine& words, Arguments& given) {
  const std::string_view word = words.NextWord();
  const auto number = WholeNumber(word);
  if (!number) return Quoted(word) + " is no whole number";
  given.whole = *number;
  return "";
}

std::string ReadDumpName(ScriptLine& words, Arguments& given) {
  const bool is_named = !words.AtEnd;
  const std::string_view word = words.NextWord();
  given.dump = is_named && word.empty() ? nullptr : FindDump(word);
  return given.dump == nullptr ? "there is no dump of " + Quoted(word) : "";
}

std::string ReadWanted(Wants what, ScriptLine& words, Arguments& given) {
  switch (what) {
    case Wants::Nothing:
      return "";
    case Wants::Whole:
      return ReadWhole(words, given);
    case Wants::PointerButton:
    case Wants::PointerState:
      return ReadPointer(what, words, given);
    case Wants::DumpName:
      return ReadDumpName(words, given);
    case Wants::Text:
      given.text = words.Rest;
      words.AtEnd = true;
      return "";
  }
  return "";
}

}  // namespace

const Action* FindAction(std::string_view word) {
  for (const Action& action : kActions) {
    if (action.Word == word) return &action;
  }
  return nullptr;
}

std::string ReadArguments(const Action& action, const Orvane_Desk& desk, ScriptLine& words,
                          Arguments& given) {
  if (action.Fits != nullptr) {
    const std::string_view name = words.NextWord();
    given.control = desk.FindControl(name);
    if (given.control == nullptr) return "there is no control " + Quoted(name);
    if (!action.Fits(*given.control)) {
      return Quoted(name) + " is no control to " + std::string(action.Word);
    }
  }
  std::string complaint = ReadWanted(action.What, words, given);
  if (complaint.empty() && !words.AtEnd) complaint = "there is more on the line than belongs there";
  return complaint;
}

}  // namespace orvane
