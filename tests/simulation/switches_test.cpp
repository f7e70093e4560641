#include <cmath>
#include <limits>
#include <map>

#include "tests/simulation/aircraft_rig.h"

namespace host {
namespace {

/// A key event "beacon_lights_toggle" is that of the token "beacon_lights".
TEST(Switches, Each_event_flips_the_token_of_its_name_and_no_other_switch) {
  std::vector<std::pair<std::uint32_t, std::uint32_t>> switches;
  for (const TableRow& event : AircraftModel::events()) {
    const std::string_view name = event.name;
    if (!name.ends_with("_toggle") || name.starts_with("autopilot")) continue;
    const TableRow* token = find_row(AircraftModel::tokens(), name.substr(0, name.size() - 7));
    if (token != nullptr) switches.emplace_back(event.number, token->number);
  }
  EXPECT_GE(switches.size(), 12u);
  for (const auto& [event, token] : switches) {
    AircraftModel aircraft;
    for (int press = 0; press < 2; ++press) {
      std::map<std::uint32_t, double> before;
      for (const auto& [other_event, other] : switches) before[other] = aircraft.token(other);
      aircraft.key_event(event, 0);
      for (const auto& [other_event, other] : switches) {
        EXPECT_EQ(aircraft.token(other) != before[other], other == token)
            << event << " and token " << other;
      }
    }
  }
}

TEST(Switches, A_parked_aircraft_stands_still_on_the_field) {
  AircraftModel aircraft;
  aircraft.advance(30.0);
  EXPECT_NEAR(reading(aircraft, "indicated_altitude"), 364.0, 0.01);
  EXPECT_NEAR(reading(aircraft, "outside_air_temperature"), 14.28, 0.01);
  EXPECT_NEAR(reading(aircraft, "pressure_setting_inches"), 29.92, 0.005);
  EXPECT_EQ(reading(aircraft, "on_ground"), 1.0);
  for (const char* name : {"vertical_speed", "indicated_airspeed", "radio_altitude"}) {
    EXPECT_EQ(reading(aircraft, name), 0.0) << name;
  }
}

TEST(Trims, Move_at_their_own_rates_to_their_own_ends) {
  AircraftModel aircraft;
  const double stabiliser = reading(aircraft, "stabiliser");
  for (int notch = 0; notch < 20; ++notch) send(aircraft, "pitch_trim_nose_up");
  aircraft.advance(2.0);
  EXPECT_NEAR(reading(aircraft, "stabiliser"), stabiliser + 0.1, 1e-9) << "a degree";
  for (int notch = 0; notch < 500; ++notch) send(aircraft, "pitch_trim_nose_down");
  aircraft.advance(20.0);
  EXPECT_EQ(reading(aircraft, "stabiliser"), -0.3);

  struct Motor {
    const char *token, *left, *right;
    double degree, end;
  };
  for (const Motor& motor :
       {Motor{"rudder_trim", "rudder_trim_left", "rudder_trim_right", 0.01, 0.07},
        Motor{"aileron_trim", "aileron_trim_left", "aileron_trim_right", -0.1, -0.5}}) {
    send(aircraft, motor.right);
    aircraft.advance(1.0);
    EXPECT_NEAR(reading(aircraft, motor.token), motor.degree / 2.0, 1e-9) << motor.token;
    aircraft.advance(5.0);
    EXPECT_NEAR(reading(aircraft, motor.token), motor.degree, 1e-9) << motor.token;
    for (int press = 0; press < 3; ++press) send(aircraft, motor.left);
    aircraft.advance(6.0);
    EXPECT_NEAR(reading(aircraft, motor.token), -2.0 * motor.degree, 1e-9) << motor.token;
    for (int press = 0; press < 30; ++press) send(aircraft, motor.right);
    aircraft.advance(60.0);
    EXPECT_NEAR(reading(aircraft, motor.token), motor.end, 1e-9) << motor.token;
  }
}

TEST(HeldTokens, Show_any_value_until_let_go_and_leave_the_aircraft_alone) {
  AircraftModel aircraft;
  send(aircraft, "battery_toggle");
  constexpr std::uint32_t battery = 364;
  constexpr std::uint32_t nobodys = 4'000'000'000;
  for (double value : {0.99, -1e300, std::numeric_limits<double>::infinity()}) {
    aircraft.hold_token(battery, value);
    aircraft.hold_token(nobodys, value);
    aircraft.advance(1.0);
    EXPECT_EQ(aircraft.token(battery), value);
    EXPECT_EQ(aircraft.token(nobodys), value);
  }
  aircraft.hold_token(battery, std::nan(""));
  EXPECT_TRUE(std::isnan(aircraft.token(battery)));
  EXPECT_LT(reading(aircraft, "dc_amperes"), -10.0) << "the real battery is still on";

  aircraft.hold_token(battery, std::nullopt);
  aircraft.hold_token(nobodys, std::nullopt);
  EXPECT_EQ(aircraft.token(battery), 1.0);
  EXPECT_EQ(aircraft.token(nobodys), 0.0);
}

}  // namespace
}  // namespace host
