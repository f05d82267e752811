#pragma once

#include <random>

#include "engine/random_source.h"

// The hint shuffle's randomness, seeded once per run from the operating system.
class DeviceRandom : public tessarine::RandomSource {
 public:
  DeviceRandom() : engine_(seed()) {}
  std::uint64_t next() override { return engine_(); }

 private:
  static std::uint64_t seed() {
    std::random_device device;
    return (static_cast<std::uint64_t>(device()) << 32) ^ device();
  }
  std::mt19937_64 engine_;
};
