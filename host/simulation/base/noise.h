/// Random numbers that are the same on every machine and in every flight that begins alike.
#pragma once

#include <cstdint>

namespace host::simulation {

/// xorshift64* (Vigna, "An experimental exploration of Marsaglia's xorshift generators", 2016).
struct Noise {
  std::uint64_t state = 0x9E3779B97F4A7C15u;

  /// Evenly spread over 0..1.
  double uniform();

  /// Mean 0, deviation 1: twelve uniform numbers less six, which needs nothing but sums.
  double normal();
};

}  // namespace host::simulation
