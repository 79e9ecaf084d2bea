// The words of a script: what each action wants behind it and what it does at the desk.
#pragma once

#include <string>
#include <string_view>

#include "desk/actions.h"
#include "replay/dumps.h"
#include "replay/script_line.h"

namespace orvane {

struct Player;

// What stood behind an action's word.
struct Arguments {
  Reach reach = Reach::AsUser;
  Control* control = nullptr;
  int whole = 0;       // row, value, key code, error number, or pointer button
  float x = 0, y = 0;  // pixels of the control
  std::string_view text{};
  Dump dump = nullptr;
};

enum class Wants { Nothing, Whole, PointerButton, PointerState, Text, DumpName };

struct Action {
  std::string_view Word;
  bool (*Fits)(Control& control);  // whether a control is of the kind; nullptr: it names none
  Wants What;                      // behind the control; a pointer also wants X and Y
  void (*Play)(Player& player, const Arguments& given);
};

// nullptr when there is no action of that name.
const Action* FindAction(std::string_view word);

// Reads the rest of the line into `given`. Empty: it fits; else what does not.
std::string ReadArguments(const Action& action, const Orvane_Desk& desk, ScriptLine& words,
                          Arguments& given);

}  // namespace orvane
