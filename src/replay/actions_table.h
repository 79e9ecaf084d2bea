// The words of a script: what each action wants after it and what it does on the desk.
#pragma once

#include <string>
#include <string_view>

#include "desk/actions.h"
#include "replay/dumps.h"
#include "replay/script_line.h"

namespace orvane {

struct Player;

// What followed an action's word.
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
  bool (*Fits)(Control& control);  // whether it works on that control; nullptr: it names none
  Wants What;                      // after the control; a pointer also wants X and Y
  void (*Play)(Player& player, const Arguments& given);
};

// nullptr when there is no action of that name.
const Action* FindAction(std::string_view word);

// Reads the rest of the line into `given`. Returns what does not fit, or nothing when all does.
std::string ReadArguments(const Action& action, const Orvane_Desk& desk, ScriptLine& words,
                          Arguments& given);

}  // namespace orvane
