#include "engine/random_source.h"

namespace tessarine {

std::uint64_t boundedRandom(RandomSource& source, std::uint64_t bound) {
  if (bound == 0) return 0;
  unsigned __int128 product = static_cast<unsigned __int128>(source.next()) * bound;
  auto low = static_cast<std::uint64_t>(product);
  if (low < bound) {
    const std::uint64_t threshold = -bound % bound;
    while (low < threshold) {
      product = static_cast<unsigned __int128>(source.next()) * bound;
      low = static_cast<std::uint64_t>(product);
    }
  }
  return static_cast<std::uint64_t>(product >> 64);
}

}  // namespace tessarine
