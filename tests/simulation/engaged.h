/// Aircraft that the autopilot flies.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>
#include <vector>

#include "tests/simulation/flown.h"

namespace host::simulation {

using Names = std::vector<std::string_view>;

inline void send_all(Aircraft& aircraft, const Names& events) {
  for (std::string_view event : events) send(aircraft, event);
}

inline double off_heading(const Aircraft& aircraft, double heading_deg) {
  return std::abs(std::remainder(magnetic_heading_deg(aircraft.flight) - heading_deg, 360.0));
}

/// Engaged where it is, everything selected as it flies.
inline Aircraft engaged(const InFlight& where, int pace = usual_steps_per_second,
                        const Wind& wind = {}) {
  Aircraft aircraft(pace);
  aircraft.air.weather.wind = {wind.from_true_deg, wind.speed_kt, 0.0};
  EXPECT_TRUE(aircraft.place_in_flight(where));
  aircraft.air.weather.wind = wind;
  aircraft.autopilot.selections = {where.heading_deg, where.altitude_ft,
                                   aircraft.air.indicated_airspeed_kt, 0.0};
  send_all(aircraft,
           {"autopilot_toggle", "altitude_hold_on", "autothrottle_arm_toggle", "airspeed_hold_on"});
  EXPECT_EQ(token(aircraft, 103), 1.0);
  return aircraft;
}

inline constexpr InFlight slow{
    .altitude_ft = 3000, .airspeed_kt = 150, .flap_detent = 3, .gear_down = true};
inline constexpr InFlight quick{.altitude_ft = 5000, .airspeed_kt = 250};
inline constexpr InFlight high{.altitude_ft = 33000, .mach = 0.75};

}  // namespace host::simulation
