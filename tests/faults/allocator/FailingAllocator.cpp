// Linked into a program, it fails where failAllocation says, or the environment: ZEB_FAIL_ALLOCATION is the number of
// an allocation, counted from 1 at the program's start, with a "+" behind it where all later ones fail too. How many
// there were is written to the file ZEB_COUNT_ALLOCATIONS when the program ends.
#include "tests/faults/allocator/FailingAllocator.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

// Nothing here is initialised at run time: the first allocation comes before that.
constinit std::atomic<unsigned long> allocations{0}, firstToFail{0}, lastToFail{0};

bool readEnvironment() {
  const char* text = std::getenv("ZEB_FAIL_ALLOCATION");
  if (text == nullptr) return false;
  char* end = nullptr;
  const unsigned long number = std::strtoul(text, &end, 10);
  zebtest::failAllocation(number, *end == '+');
  return true;
}

bool fails() {
  [[maybe_unused]] static const bool kHasRead = readEnvironment();
  const unsigned long number = ++allocations;
  return number >= firstToFail && number <= lastToFail;
}

void* allocate(std::size_t size, std::size_t alignment) {
  if (fails()) return nullptr;
  void* place = nullptr;
  return posix_memalign(&place, alignment, size) == 0 ? place : nullptr;
}

constexpr std::size_t kAlignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

void* orThrow(void* place) {
  if (place != nullptr) return place;
  if (const std::new_handler handler = std::get_new_handler()) handler();
  throw std::bad_alloc();
}

struct Count {
  ~Count() {
    const char* file = std::getenv("ZEB_COUNT_ALLOCATIONS");
    const int descriptor = file == nullptr ? -1 : open(file, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (descriptor < 0) return;
    dprintf(descriptor, "%lu", allocations.load());
    close(descriptor);
  }
} count;

}  // namespace

void zebtest::failAllocation(unsigned long number, bool andAllLater) {
  allocations = 0;
  firstToFail = number;
  lastToFail = andAllLater ? std::numeric_limits<unsigned long>::max() : number;
}

void* operator new(std::size_t size) { return orThrow(allocate(size, kAlignment)); }
void* operator new[](std::size_t size) { return orThrow(allocate(size, kAlignment)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return orThrow(allocate(size, static_cast<std::size_t>(alignment)));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return orThrow(allocate(size, static_cast<std::size_t>(alignment)));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size, kAlignment); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size, kAlignment); }
void operator delete(void* place) noexcept { std::free(place); }
void operator delete[](void* place) noexcept { std::free(place); }
void operator delete(void* place, std::size_t) noexcept { std::free(place); }
void operator delete[](void* place, std::size_t) noexcept { std::free(place); }
void operator delete(void* place, std::align_val_t) noexcept { std::free(place); }
void operator delete[](void* place, std::align_val_t) noexcept { std::free(place); }
void operator delete(void* place, std::size_t, std::align_val_t) noexcept { std::free(place); }
void operator delete[](void* place, std::size_t, std::align_val_t) noexcept { std::free(place); }
