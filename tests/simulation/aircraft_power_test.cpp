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
  double seconds = 0;
  for (; reading(aircraft, "auxiliary_load") <= 5.0 && seconds < 100.0; seconds += 1.0 / 60.0) {
    aircraft.advance(1.0 / 60.0);
    // Between 60 and 72 the DC voltmeter's selector would show a battery as a main bus or stick.
    const double source = reading(aircraft, "dc_voltmeter");
    EXPECT_TRUE(source < 60.0 || source > 72.0) << source;
  }
  EXPECT_NEAR(seconds, 25.0, 5.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);

  send(aircraft, "apu_stop");
  aircraft.advance(10.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", false);
}

TEST(Power, Apu_generator_runs_without_the_battery_but_not_without_its_control_line) {
  AircraftModel aircraft;
  send(aircraft, "battery_toggle");
  aircraft.advance(1.0);
  send(aircraft, "apu_start");
  seconds_until(aircraft, "auxiliary_load", 5.0);
  send(aircraft, "battery_toggle");
  aircraft.advance(1.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);
  send(aircraft, "apu_alternator_with_battery");
  aircraft.advance(1.0);
  expect_ac(aircraft, "ac_bus_2_voltmeter", false);
}

class EachGenerator : public EachSide {};

TEST_P(EachGenerator, Carries_both_buses_alone_and_half_of_them_with_the_other) {
  AircraftModel aircraft(StartCondition::ready);
  aircraft.advance(1.0);
  const double shared = reading(aircraft, own("generator_#_load"));
  // Loads are also the frequency meter's source: 13..20 reads within 5 Hz of 400.
  expect_within(aircraft, own("generator_#_load"), 13.0, 20.0);

  send(aircraft, other("fuel_lever_#_toggle"));
  aircraft.advance(15.0);
  EXPECT_EQ(reading(aircraft, other("generator_#_load")), 0.0);
  EXPECT_GT(reading(aircraft, own("generator_#_load")), 1.2 * shared);
  expect_ac(aircraft, "ac_bus_1_voltmeter", true);
  expect_ac(aircraft, "ac_bus_2_voltmeter", true);
}

TEST_P(EachGenerator, Has_a_control_line_of_its_own_and_one_with_all) {
  AircraftModel aircraft(StartCondition::ready);
  send(aircraft, "battery_toggle");  // off: from now on a line that is moved takes the current away
  send(aircraft, own("alternator_#_with_battery"));
  aircraft.advance(1.0);
  EXPECT_EQ(reading(aircraft, own("generator_#_load")), 0.0);
  EXPECT_GT(reading(aircraft, other("generator_#_load")), 10.0);

  send(aircraft, "battery_toggle");
  send(aircraft, own("alternator_#_with_battery"));
  aircraft.advance(1.0);
  EXPECT_GT(reading(aircraft, own("generator_#_load")), 10.0);

  click_battery_switch(aircraft);
  aircraft.advance(1.0);
  EXPECT_EQ(reading(aircraft, own("generator_#_load")), 0.0);
}

INSTANTIATE_TEST_SUITE_P(Sides, EachGenerator, testing::Values(1, 2));

/// What the start page's three states send to an aircraft that has just been handed over.
TEST(Power, The_start_page_leaves_it_dead_ready_or_running_at_once) {
  using Row = std::tuple<const char*, std::vector<const char*>, double, double, double>;
  for (const auto& [state, events, battery, auxiliary_at_least, core_speed] :
       {Row{"cold and dark",
            {"battery_toggle", "avionics_toggle", "fuel_lever_1_toggle", "fuel_lever_2_toggle"},
            0,
            0,
            0},
        Row{"ready to start",
            {"parking_brake_toggle", "fuel_lever_1_toggle", "fuel_lever_2_toggle"},
            1,
            5,
            0},
        Row{"running", {"parking_brake_toggle", "automatic_start"}, 1, 0, 52}}) {
    AircraftModel aircraft;
    aircraft.hand_over();
    aircraft.advance(20.0);  // a person looks at the page
    for (const char* event : events) send(aircraft, event);
    aircraft.advance(0.2);
    EXPECT_EQ(reading(aircraft, "battery"), battery) << state;
    EXPECT_GE(reading(aircraft, "auxiliary_load"), auxiliary_at_least) << state;
    EXPECT_NEAR(reading(aircraft, "engine_2_core_speed"), core_speed, 1.0) << state;
    if (battery == 0) expect_ac(aircraft, "ac_bus_1_voltmeter", false);
  }
}

}  // namespace
}  // namespace host
