#include "host/simulation/navigation/tuning.h"

#include <utility>

namespace host::simulation {
namespace {

constexpr int khz_per_mhz = 1000;

/// The remainder that is never negative.
int round_of(int value, int count) { return (value % count + count) % count; }

}  // namespace

void VhfTuning::turn_megahertz(int steps) {
  const int mhz = standby_khz / khz_per_mhz, rest_khz = standby_khz % khz_per_mhz;
  const int count = band.last_mhz - band.first_mhz + 1;
  standby_khz =
      (band.first_mhz + round_of(mhz - band.first_mhz + steps, count)) * khz_per_mhz + rest_khz;
}

void VhfTuning::turn_kilohertz(int steps) {
  const int rest_khz = standby_khz % khz_per_mhz;
  standby_khz += round_of(rest_khz + steps * band.step_khz, khz_per_mhz) - rest_khz;
}

void VhfTuning::exchange() { std::swap(active_khz, standby_khz); }

void AdfTuning::turn_up(AdfFigure figure) {
  // One of the figure, and one past its last, in tenths.
  struct Knob {
    int step, end;
  };
  constexpr Knob knobs[] = {{1, 10}, {10, 100}, {100, 1000}, {1000, 18000}};
  constexpr int lowest = 1900, hundred = 1000;
  const auto [step, end] = knobs[static_cast<std::size_t>(figure)];
  const int turned = tenths_khz % end;
  tenths_khz += (turned + step) % end - turned;
  while (tenths_khz < lowest) tenths_khz += hundred;
}

void TransponderCode::turn_up(std::size_t figure) { figures[figure] = (figures[figure] + 1) % 8; }

std::uint32_t bcd(std::uint32_t number) {
  std::uint32_t figures = 0;
  for (int place = 0; number > 0 && place < 8; ++place, number /= 10)
    figures |= number % 10 << 4 * place;
  return figures;
}

}  // namespace host::simulation
