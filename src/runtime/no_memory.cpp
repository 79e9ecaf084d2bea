#include "runtime/no_memory.h"

#include "runtime/failure.h"

namespace orvane {

void FailMemory() { throw Failure(kNoMemory); }

}  // namespace orvane
