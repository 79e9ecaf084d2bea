// The one failure of the program: what ends a running operation that cannot go on.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane {

// Thrown only by the routines below and by FailMemory, and caught where an event is delivered
// (desk/actions.h): the operation ends there, what it had done so far stays done, and the user
// reads `what()`, a plain clause without a full stop ("a number was divided by zero").
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

[[noreturn]] void FailOverflow();                         // a 16-bit field left its range
[[noreturn]] void FailSubscript(long slot);               // a slot that the list does not have
[[noreturn]] void FailDivision();                         // a division by zero
[[noreturn]] void FailConversion(std::string_view text);  // a text that is not a number that fits
// Anything the platform could not do: `clause` says it in plain words ("the disk is full").
[[noreturn]] void FailPlatform(const std::string& clause);

}  // namespace orvane
