// The electrical system as the crew sees it: what the tokens let the overhead's meters read.

#include "tests/simulation/aircraft_rig.h"

namespace host {
namespace {

/// The clicks of the battery switch, in the order in which the cockpit sends them.
void click_battery_switch(AircraftModel& aircraft) {
  for (std::uint32_t event : {0x10346, 0x102C2, 0x1033B, 0x1033C, 0x1033D}) {
    EXPECT_TRUE(aircraft.key_event(event, 0)) << std::hex << event;
  }
}

void expect_within(const AircraftModel& aircraft, std::string_view name, double low, double high) {
  EXPECT_GE(reading(aircraft, name), low) << name;
  EXPECT_LE(reading(aircraft, name), high) << name;
}

// The AC voltmeter's middle source is 180 for 115 V; a dead bus must take away the selector's 90.
void expect_ac(const AircraftModel& aircraft, std::string_view bus, bool live) {
  expect_within(aircraft, bus, live ? 174.0 : -93.0, live ? 184.0 : -87.0);
}

TEST(Power, Battery_switch_brings_direct_current_and_the_inverter) {
  AircraftModel aircraft;
  EXPECT_EQ(reading(aircraft, "dc_voltmeter"), 0.0);
  expect_ac(aircraft, "ac_bus_1_voltmeter", false);

  click_battery_switch(aircraft);
  EXPECT_EQ(reading(aircraft, "battery"), 1.0) << "at once, undone by none of the other events";
  aircraft.advance(5.0);
  expect_within(aircraft, "dc_amperes", -40.0, -10.0);
  expect_within(aircraft, "dc_voltmeter", 50.0, 60.0);
  expect_ac(aircraft, "ac_bus_1_voltmeter", true);
  expect_ac(aircraft, "ac_bus_2_voltmeter", false);

  const double before = reading(aircraft, "dc_amperes");
  send(aircraft, "avionics_toggle");
  send(aircraft, "beacon_lights_toggle");
  aircraft.advance(1.0);
  EXPECT_EQ(reading(aircraft, "avionics"), 1.0);
  EXPECT_LT(reading(aircraft, "dc_amperes"), before - 5.0) << "more is drawn";

  click_battery_switch(aircraft);
  aircraft.advance(1.0);
  EXPECT_EQ(reading(aircraft, "battery"), 0.0);
  EXPECT_EQ(reading(aircraft, "dc_voltmeter"), 0.0);
  EXPECT_EQ(reading(aircraft, "avionics"), 1.0) << "a switch of its own";
}

TEST(Power, A_battery_left_on_goes_flat) {
  AircraftModel aircraft;
  click_battery_switch(aircraft);
  aircraft.advance(6.0 * 3600.0);
  expect_within(aircraft, "dc_voltmeter", 20.0, 45.0);
  expect_ac(aircraft, "ac_bus_1_voltmeter", false);
}

TEST(Power, Ground_cart_feeds_both_buses_until_a_generator_takes_them) {
  AircraftModel aircraft;
  send(aircraft, "external_power_connect");
  send(aircraft, "battery_toggle");
  aircraft.advance(1.0);
  expect_ac(aircraft, "ac_bus_1_voltmeter", true);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);
  expect_within(aircraft, "auxiliary_load", 10.0, 30.0);
  expect_within(aircraft, "dc_amperes", 10.0, 80.0);
  EXPECT_GT(reading(aircraft, "dc_voltmeter"), 80.0);

  send(aircraft, "automatic_start");
  aircraft.advance(60.0);
  EXPECT_EQ(reading(aircraft, "auxiliary_load"), 0.0);
  EXPECT_GT(reading(aircraft, "generator_1_load"), 10.0);
}

TEST(Power, Apu_draws_from_the_battery_and_then_feeds_the_buses) {
  AircraftModel aircraft;
  send(aircraft, "apu_start");
  aircraft.advance(60.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", false);  // nothing to turn it with

  click_battery_switch(aircraft);
  send(aircraft, "apu_start");
  aircraft.advance(5.0);
  expect_within(aircraft, "dc_amperes", -120.0, -80.0);
  EXPECT_NEAR(seconds_until(aircraft, "auxiliary_load", 5.0), 25.0, 5.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);

  send(aircraft, "apu_stop");
  aircraft.advance(10.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", false);
}

TEST(Power, One_generator_carries_both_buses_and_two_share_them) {
  AircraftModel aircraft(StartCondition::ready);
  aircraft.advance(1.0);
  const double shared = reading(aircraft, "generator_1_load");
  // Loads are also the frequency meter's source: 13..20 reads within 5 Hz of 400.
  expect_within(aircraft, "generator_1_load", 13.0, 20.0);
  EXPECT_EQ(reading(aircraft, "generator_2_load"), shared);

  click_battery_switch(aircraft);
  aircraft.advance(1.0);
  EXPECT_EQ(reading(aircraft, "generator_1_load"), 0.0) << "no control current";
  click_battery_switch(aircraft);

  send(aircraft, "fuel_lever_2_toggle");
  aircraft.advance(15.0);
  EXPECT_EQ(reading(aircraft, "generator_2_load"), 0.0);
  EXPECT_GT(reading(aircraft, "generator_1_load"), 1.2 * shared);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);
}

// Between 60 and 72 the DC voltmeter's selector would show a battery as a main bus or stick.
TEST(Power, Dc_voltmeter_jumps_over_its_dead_range) {
  AircraftModel aircraft;
  click_battery_switch(aircraft);
  send(aircraft, "apu_start");
  for (int i = 0; i < 60 * 60; ++i) {
    aircraft.advance(1.0 / 60.0);
    const double source = reading(aircraft, "dc_voltmeter");
    EXPECT_TRUE(source < 60.0 || source > 72.0) << source;
  }
}

}  // namespace
}  // namespace host
