// Running out of memory. It ends an operation where a failure does (desk/actions.h), and the user
// reads the same clause whichever code asked for the memory.
#pragma once

namespace orvane {

inline constexpr const char* kNoMemory = "there is not enough memory";

[[noreturn]] void FailMemory();  // for a library that ran out of memory

}  // namespace orvane
