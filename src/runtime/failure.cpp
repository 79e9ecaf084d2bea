#include "runtime/failure.h"

namespace orvane {

void FailOverflow() { throw Failure("a whole number grew beyond what it can hold"); }

void FailSubscript(long slot) {
  throw Failure("place " + std::to_string(slot) +
                " of a list was asked for, which it does not have");
}

void FailDivision() { throw Failure("a number was divided by zero"); }

void FailConversion(std::string_view text) {
  throw Failure("\"" + std::string(text) + "\" is not a number that fits here");
}

void FailPlatform(const std::string& clause) { throw Failure(clause); }

}  // namespace orvane
