// Runs the body named by ORVANE_FUZZ_BODY in libFuzzer.
#include <cstdio>
#include <cstdlib>

#include "fuzz/bodies.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
  const std::string wrong = orvane::ORVANE_FUZZ_BODY({bytes, size});
  if (!wrong.empty()) {
    std::fprintf(stderr, "%s\n", wrong.c_str());
    std::abort();
  }
  return 0;
}
