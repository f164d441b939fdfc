// What a parameter set costs: memory, allocations and time to construct and destroy it, and to read the largest
// example.
#include <atomic>
#include <cstdlib>
#include <new>

#include "bench/BenchFiles.hpp"
#include "bench/PlainReader.hpp"
#include "bench/Ratios.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Silence.hpp"

namespace {

std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> allocatedBytes{0};

void* counted(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  allocatedBytes.fetch_add(size, std::memory_order_relaxed);
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return counted(size); }
void* operator new[](std::size_t size) { return counted(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace zebbench;

struct Cost {
  std::size_t allocations;
  std::size_t bytes;
};

template <class Work>
Cost costOf(Work work) {
  const zeb::Silence silence;
  work();  // the first time may build what lasts as long as the process
  const Cost before{allocations, allocatedBytes};
  work();
  return {allocations - before.allocations, allocatedBytes - before.bytes};
}

void constructAndDestroy() {
  const CZEBKNCMPCompParm fresh(0, 0);
  benchmark::DoNotOptimize(&fresh);
}

void constructAndRead() {
  CZEBKNCMPCompParm fresh(0, 0);
  fresh.setSolidFillBlock(kLargestExample);
}

void read() {
  static CZEBKNCMPCompParm parameters(0, 0);
  parameters.setSolidFillBlock(kLargestExample);
}

void getline() { benchmark::DoNotOptimize(readLines(kLargestExample)); }

}  // namespace

int main(int argc, char** argv) {
  struct Piece {
    const char* name;
    void (*work)();
  };
  const Piece pieces[] = {{"getline", getline},
                          {"construct-and-destroy", constructAndDestroy},
                          {"read", read},
                          {"construct-and-read", constructAndRead}};
  for (const Piece& piece : pieces) add(piece.name, piece.work);
  Times times;
  if (!measure(argc, argv, times)) return 1;

  std::printf("largest example, %zu lines; a parameter set has %zu blocks\n", linesOf(kLargestExample).size(),
              zeb::allBlocks().size());
  for (const Piece& piece : pieces) {
    const Cost cost = costOf(piece.work);
    std::printf("  %-24s %8.2f us %8.2f x getline %6zu allocations %8zu bytes\n", piece.name,
                times.medianOf(piece.name) / 1e3, times.medianOf(piece.name) / times.medianOf("getline"),
                cost.allocations, cost.bytes);
  }
}
