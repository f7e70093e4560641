/// What has failed, and what chance fails in the course of a flight.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "host/simulation/base/noise.h"
#include "host/simulation/failure_row.h"

namespace host::simulation {

/// The systems, in the order of the table.
enum class System : std::size_t {
  attitude,
  airspeed,
  altimeter,
  compass,
  direction_finder,
  fuel_quantity,
  vertical_speed,
  receiver_1,
  receiver_2,
  standby_compass,
  electrical,
  avionics,
  engine_1,
  engine_2,
  generator_1,
  generator_2,
  boost_pump_1,
  boost_pump_2,
  apu,
  gear,
  distance,
  count,
};

inline constexpr std::size_t system_count = static_cast<std::size_t>(System::count);

struct Failures {
  double per_hour = 0.0;  ///< of all systems together, by chance; 0: none

  bool operator[](System system) const { return failed_[static_cast<std::size_t>(system)]; }
  /// The system of a pair that belongs to engine 0 or 1.
  bool of(System first, std::size_t engine) const {
    return failed_[static_cast<std::size_t>(first) + engine];
  }

  /// False for a key that no system has.
  bool set(std::uint32_t key, bool failed);
  bool failed(std::uint32_t key) const;
  bool any() const;

  /// Chance: in a short time dt one system fails with the probability dt * per_hour, whichever.
  void update(double dt_s);

 private:
  std::array<bool, system_count> failed_{};
  Noise chance_;
};

/// All systems that can fail, those of the instruments first.
std::span<const FailureRow> failure_table();

}  // namespace host::simulation
