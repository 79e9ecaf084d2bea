#include "memory/memory_that_runs_out.h"

#include <cstdlib>
#include <new>

namespace {

long left = 0;  // calls left up to the refused one; 0: none is refused
bool refused = false;

void* Given(std::size_t size) {
  if (left > 0 && --left == 0) {
    refused = true;
    throw std::bad_alloc();
  }
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return Given(size); }
void* operator new[](std::size_t size) { return Given(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace orvane {

MemoryRunsOut::MemoryRunsOut(long at) {
  refused = false;
  left = at;
}

MemoryRunsOut::~MemoryRunsOut() { left = 0; }

bool MemoryRunsOut::HasRefused() { return refused; }

}  // namespace orvane
