#include "host/simulation/base/noise.h"

namespace host::simulation {

double Noise::uniform() {
  state ^= state >> 12;
  state ^= state << 25;
  state ^= state >> 27;
  constexpr double one_of_53_bits = 1.0 / 9007199254740992.0;
  return static_cast<double>((state * 0x2545F4914F6CDD1Du) >> 11) * one_of_53_bits;
}

double Noise::normal() {
  double sum = -6.0;
  for (int i = 0; i < 12; ++i) sum += uniform();
  return sum;
}

}  // namespace host::simulation
