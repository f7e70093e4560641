// Engine start and shut-down by key events, with the times a crew would note.

#include "host/simulation/systems/engine_start.h"
#include "tests/simulation/aircraft_rig.h"

namespace host {
namespace {

/// On battery, nothing else on.
struct PoweredAircraft : AircraftModel {
  PoweredAircraft() {
    send(*this, "battery_toggle");
    advance(1.0);
  }
};

void expect_ground_idle(const AircraftModel& aircraft, std::string_view engine) {
  const auto value = [&](const char* what) { return reading(aircraft, std::string(engine) + what); };
  EXPECT_NEAR(value("_core_speed"), 52.0, 2.0);
  EXPECT_NEAR(value("_fan_speed"), 24.0, 3.0);
  EXPECT_NEAR(value("_gas_temperature") / 4.0, 410.0, 20.0);
  EXPECT_NEAR(value("_fuel_flow") / 100.0, 325.0, 20.0);
  EXPECT_NEAR(value("_oil_pressure") * 100.0 / 32768.0, 39.0, 3.0);
  EXPECT_GT(value("_pressure_ratio"), 1.01);
}

TEST(EngineStart, One_event_cranks_the_engine_past_the_start_panels_25_percent) {
  PoweredAircraft aircraft;
  send(aircraft, "starter_1_engage");
  EXPECT_NEAR(seconds_until(aircraft, "engine_1_core_speed", 22.0), 10.0, 1.0);
  EXPECT_LT(seconds_until(aircraft, "engine_1_core_speed", 25.05), 7.0);
  aircraft.advance(60.0);
  EXPECT_NEAR(reading(aircraft, "engine_1_core_speed"), 27.7, 0.5) << "no more without fuel";
  EXPECT_LT(reading(aircraft, "engine_1_gas_temperature") / 4.0, 20.0);
  EXPECT_EQ(reading(aircraft, "engine_2_core_speed"), 0.0);
  aircraft.advance(180.0);
  EXPECT_LT(reading(aircraft, "engine_1_core_speed"), 5.0) << "the starter's duty time is over";
}

TEST(EngineStart, Fuel_may_come_at_any_time_of_the_cranking) {
  for (double lever_at_percent : {-1.0, 16.0, 20.0, 25.5}) {
    SCOPED_TRACE(lever_at_percent);
    PoweredAircraft aircraft;
    send(aircraft, "starter_2_engage");
    const double start_s = aircraft.seconds();
    seconds_until(aircraft, "engine_2_core_speed", lever_at_percent);
    send(aircraft, "fuel_lever_2_toggle");
    double peak = 0.0;
    while (reading(aircraft, "engine_2_core_speed") < 50.0 && aircraft.seconds() < 100.0) {
      aircraft.advance(1.0 / 60.0);
      peak = std::max(peak, reading(aircraft, "engine_2_gas_temperature") / 4.0);
    }
    EXPECT_NEAR(aircraft.seconds() - start_s, 35.0, 3.0);
    EXPECT_NEAR(peak, 570.0, 25.0) << "above idle, well below take-off";
    aircraft.advance(20.0);
    expect_ground_idle(aircraft, "engine_2");
    EXPECT_EQ(reading(aircraft, "engine_1_core_speed"), 0.0);
  }
}

// The start panel repeats its event up to ten times a frame while the core turns.
TEST(EngineStart, Repeated_events_change_nothing) {
  PoweredAircraft once;
  PoweredAircraft often;
  send(once, "fuel_lever_1_toggle");
  send(often, "fuel_lever_1_toggle");
  send(once, "starter_1_engage");
  for (int i = 0; i < 60 * 60; ++i) {
    for (int repeat = 0; repeat < 10; ++repeat) send(often, "starter_1_engage");
    once.advance(1.0 / 60.0);
    often.advance(1.0 / 60.0);
    ASSERT_EQ(reading(often, "engine_1_core_speed"), reading(once, "engine_1_core_speed")) << i;
  }
}

TEST(EngineStart, In_the_air_only_the_apu_or_the_other_engine_can_crank) {
  using simulation::EngineStartInputs;
  const auto cranks = [](const EngineStartInputs& inputs) {
    simulation::EngineStart start;
    start.starters[0].engage(0.0);
    start.update(1.0 / 60.0, inputs);
    return start.crank_speed_percent[0] > 25.0;
  };
  EXPECT_TRUE(cranks({.has_dc = true}));
  EXPECT_FALSE(cranks({.has_dc = true, .on_ground = false}));
  EXPECT_TRUE(cranks({.has_dc = true, .apu_at_speed = true, .on_ground = false}));
  EXPECT_TRUE(cranks({.core_speed_percent = {0, 70}, .has_dc = true, .on_ground = false}));
}

TEST(EngineStart, Nothing_turns_without_current_and_nothing_burns_without_sparks) {
  AircraftModel dead;
  send(dead, "starter_1_engage");
  dead.advance(20.0);
  EXPECT_EQ(reading(dead, "engine_1_core_speed"), 0.0);

  for (bool armed : {false, true}) {
    AircraftModel running_down(StartCondition::ready);
    send(running_down, "fuel_lever_1_toggle");
    running_down.advance(5.0);
    if (armed) send(running_down, "ignition_arm");
    send(running_down, "fuel_lever_1_toggle");
    running_down.advance(40.0);
    EXPECT_EQ(reading(running_down, "engine_1_core_speed") > 30.0, armed);
  }
}

TEST(EngineStart, A_fuel_lever_closed_during_the_start_leaves_the_engine_cranking) {
  PoweredAircraft aircraft;
  send(aircraft, "fuel_lever_1_toggle");
  send(aircraft, "starter_1_engage");
  seconds_until(aircraft, "engine_1_core_speed", 35.0);
  send(aircraft, "fuel_lever_1_toggle");
  aircraft.advance(40.0);
  EXPECT_NEAR(reading(aircraft, "engine_1_core_speed"), 27.7, 0.5);
  EXPECT_LT(reading(aircraft, "engine_1_gas_temperature") / 4.0, 200.0);
}

TEST(EngineStart, Automatic_start_brings_a_cold_aircraft_to_idle) {
  AircraftModel aircraft;
  send(aircraft, "automatic_start");
  EXPECT_EQ(reading(aircraft, "battery"), 1.0);
  EXPECT_EQ(reading(aircraft, "fuel_lever_1"), 1.0);
  aircraft.advance(60.0);
  expect_ground_idle(aircraft, "engine_1");
  expect_ground_idle(aircraft, "engine_2");
  send(aircraft, "automatic_start");
  aircraft.advance(10.0);
  expect_ground_idle(aircraft, "engine_1");
}

TEST(EngineStart, Engine_runs_down_in_a_minute_when_fuel_is_cut) {
  AircraftModel aircraft(StartCondition::ready);
  expect_ground_idle(aircraft, "engine_1");
  send(aircraft, "fuel_lever_1_toggle");
  aircraft.advance(0.1);
  EXPECT_EQ(reading(aircraft, "engine_1_fuel_flow"), 0.0);
  EXPECT_NEAR(seconds_until(aircraft, "engine_1_core_speed", 10.0, false), 29.0, 3.0);
  EXPECT_GT(reading(aircraft, "engine_1_gas_temperature") / 4.0, 100.0) << "it stays warm";
  EXPECT_NEAR(seconds_until(aircraft, "engine_1_core_speed", 0.1, false), 28.0, 5.0);
  aircraft.advance(60.0);
  EXPECT_EQ(reading(aircraft, "engine_1_core_speed"), 0.0);
  EXPECT_LT(reading(aircraft, "engine_1_fan_speed"), 0.1);
  expect_ground_idle(aircraft, "engine_2");
}

}  // namespace
}  // namespace host
