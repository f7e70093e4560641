/// What the crew's knobs tune: the channels of the radios' bands, the direction finder's figures, the
/// transponder's code.
///
/// Every knob goes round by itself and carries nothing into the next one: past its last megahertz or
/// channel it starts again at the first.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace host::simulation {

/// A band of channels, all megahertz from the first to the last (after ICAO Annex 10, volume V).
struct Band {
  int first_mhz, last_mhz;
  int step_khz;
};
inline constexpr Band nav_band{108, 117, 50};  ///< 108.00 to 117.95 MHz
inline constexpr Band com_band{118, 136, 25};  ///< 118.000 to 136.975 MHz

/// A VHF radio: the frequency in use and one in waiting, which the knobs turn.
struct VhfTuning {
  Band band;
  int active_khz;
  int standby_khz;

  void turn_megahertz(int steps);
  void turn_kilohertz(int steps);
  void exchange();
};

/// Digits of the direction finder's knobs.
enum class AdfFigure { tenths, units, tens, hundreds };

/// A direction finder, 190.0 to 1799.9 kHz. The knob of the hundreds takes the thousands along. What
/// would lie below the band, as 100 below 190, lies a hundred higher.
struct AdfTuning {
  int tenths_khz;

  void turn_up(AdfFigure figure);
};

/// A transponder's code: four figures of 0 to 7, the thousands first.
struct TransponderCode {
  std::array<int, 4> figures{};

  void turn_up(std::size_t figure);
};

/// As the cockpit's drums read a number: four bits to a figure. `number` has at most eight figures.
std::uint32_t bcd(std::uint32_t number);

}  // namespace host::simulation
