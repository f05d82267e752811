#include "heap_prefault.h"

#include <malloc.h>
#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>

#ifndef MADV_POPULATE_WRITE
#define MADV_POPULATE_WRITE 23  // Linux 5.14; an older kernel refuses it and nothing happens
#endif

std::jthread prefaultHeap(std::size_t bytes) {
  const int limit = static_cast<int>(2 * bytes);
  // One heap for every thread (each thread's own heap would fault its pages in afresh), which keeps
  // what it frees below the limit, and serves blocks below it from the heap rather than fresh maps.
  if (mallopt(M_ARENA_MAX, 1) == 0 || mallopt(M_TRIM_THRESHOLD, limit) == 0 ||
      mallopt(M_MMAP_THRESHOLD, limit) == 0)
    return {};
  // Freed at once, the block joins the heap's free top, which the first allocations carve up.
  char* block = static_cast<char*>(std::malloc(bytes));
  if (block == nullptr) return {};
  constexpr std::uintptr_t kPage = 4096;
  const std::uintptr_t begin = (reinterpret_cast<std::uintptr_t>(block) + kPage - 1) & ~(kPage - 1);
  const std::uintptr_t end = (reinterpret_cast<std::uintptr_t>(block) + bytes) & ~(kPage - 1);
  std::free(block);
  if (end <= begin) return {};
  // Making a page ready writes nothing to it, so the main thread may already be using the range.
  return std::jthread(
      [begin, end] { madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE); });
}
