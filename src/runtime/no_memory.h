// Memory that cannot be had. It ends an operation where a failure does (desk/actions.h), and the
// user reads the same clause whoever asked for it.
#pragma once

namespace orvane {

inline constexpr const char* kNoMemory = "there is not enough memory";

[[noreturn]] void FailMemory();  // for what a library could get no more of

}  // namespace orvane
