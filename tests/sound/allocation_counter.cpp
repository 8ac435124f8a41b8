#include "sound/allocation_counter.h"

#include <cstddef>

namespace {

thread_local bool counting = false;
thread_local int counted = 0;

}  // namespace

namespace quixair::sound {

AllocationCounter::AllocationCounter() {
  counted = 0;
  counting = true;
}
AllocationCounter::~AllocationCounter() {
  counting = false;
}
int AllocationCounter::count() const {
  return counted;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

bool AllocationCounter::Works() {
  return false;
}

}  // namespace quixair::sound

#else

bool AllocationCounter::Works() {
  return true;
}

}  // namespace quixair::sound

// The heap's doors, for this whole program; the C library keeps the originals under these names.
extern "C" {
void* __libc_malloc(std::size_t bytes);
void* __libc_calloc(std::size_t count, std::size_t bytes);
void* __libc_realloc(void* memory, std::size_t bytes);
void __libc_free(void* memory);

void* malloc(std::size_t bytes) {
  if (counting) ++counted;
  return __libc_malloc(bytes);
}
void* calloc(std::size_t count, std::size_t bytes) {
  if (counting) ++counted;
  return __libc_calloc(count, bytes);
}
void* realloc(void* memory, std::size_t bytes) {
  if (counting) ++counted;
  return __libc_realloc(memory, bytes);
}
void free(void* memory) {
  if (counting && memory != nullptr) ++counted;
  __libc_free(memory);
}
}

#endif
