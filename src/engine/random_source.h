#pragma once

#include <cstdint>

namespace tessarine {

// Randomness enters the core only through this interface (the hint shuffle, a match's answer).
class RandomSource {
 public:
  virtual ~RandomSource() = default;
  virtual std::uint64_t next() = 0;
};

// Deterministic generator for tests and the CLI's --seed.
class SplitMix64 : public RandomSource {
 public:
  explicit SplitMix64(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next() override {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
  }

 private:
  std::uint64_t state_;
};

// A uniform integer in [0, bound) without bias: Lemire's multiply-and-reject.
std::uint64_t boundedRandom(RandomSource& source, std::uint64_t bound);

}  // namespace tessarine
