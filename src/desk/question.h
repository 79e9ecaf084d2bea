// A question that the user has not answered yet. The command that asked it has ended; what is left
// of the command waits here for the answer.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace orvane {

struct Question {
  Control* Asking = nullptr;  // the control whose event began the command; nullptr: no question
  std::function<void(const std::string&)> Then;
};

}  // namespace orvane
