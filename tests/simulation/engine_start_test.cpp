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

/// With the auxiliary power unit at speed.
struct SuppliedAircraft : PoweredAircraft {
  SuppliedAircraft() {
    send(*this, "apu_start");
    advance(40.0);
  }
};

/// As the start panel does where there is pressure in its duct: it goes on asking.
void crank(AircraftModel& aircraft, const std::string& event) {
  for (int i = 0; i < 10; ++i) send(aircraft, event);
}

class EngineStart : public EachSide {
 protected:
  static void expect_ground_idle(const AircraftModel& aircraft, const std::string& engine) {
    const auto value = [&](const char* what) { return reading(aircraft, engine + what); };
    EXPECT_NEAR(value("core_speed"), 52.0, 2.0) << engine;
    EXPECT_NEAR(value("fan_speed"), 24.0, 3.0) << engine;
    EXPECT_NEAR(value("gas_temperature") / 4.0, 410.0, 20.0) << engine;
    EXPECT_NEAR(value("fuel_flow") / 100.0, 325.0, 20.0) << engine;
    EXPECT_NEAR(value("oil_pressure") * 100.0 / 32768.0, 39.0, 3.0) << engine;
    EXPECT_GT(value("oil_temperature") * 140.0 / 16384.0, 20.0) << engine;
    EXPECT_GT(value("pressure_ratio"), 1.01) << engine;
  }

  static void expect_cold(const AircraftModel& aircraft, const std::string& engine) {
    const AircraftModel parked;
    for (const char* what : {"core_speed", "fan_speed", "gas_temperature", "fuel_flow", "oil_pressure",
                             "oil_temperature", "pressure_ratio"})
      EXPECT_NEAR(reading(aircraft, engine + what), reading(parked, engine + what), 1e-6)
          << engine << what;
  }
};

TEST_P(EngineStart, The_starter_takes_the_engine_past_the_start_panels_25_percent) {
  SuppliedAircraft aircraft;
  crank(aircraft, own("starter_#_engage"));
  EXPECT_NEAR(seconds_until(aircraft, own("engine_#_core_speed"), 22.0), 9.4, 0.5);
  EXPECT_LT(seconds_until(aircraft, own("engine_#_core_speed"), 25.05), 7.0);
  aircraft.advance(60.0);
  EXPECT_NEAR(reading(aircraft, own("engine_#_core_speed")), 28.8, 0.3) << "no more without fuel";
  EXPECT_LT(reading(aircraft, own("engine_#_gas_temperature")) / 4.0, 20.0);
  expect_cold(aircraft, other("engine_#_"));
  aircraft.advance(180.0);
  EXPECT_LT(reading(aircraft, own("engine_#_core_speed")), 5.0) << "the starter's duty time is over";
}

// The panel sees no pressure in its duct and asks but once, as the selector turns; a person may turn it again.
TEST_P(EngineStart, Nothing_turns_without_air_and_over_a_shut_duct_a_twitch_is_all) {
  PoweredAircraft aircraft;
  crank(aircraft, own("starter_#_engage"));
  aircraft.advance(5.0);
  EXPECT_EQ(reading(aircraft, own("engine_#_core_speed")), 0.0)
      << "on the stand, with nothing that gives air";
  SuppliedAircraft supplied;
  for (int turned = 0; turned < 12; ++turned) {
    send(supplied, own("starter_#_engage"));
    supplied.advance(0.5);
    EXPECT_LT(reading(supplied, own("engine_#_core_speed")), 2.0);
    supplied.advance(30.0);
    EXPECT_EQ(reading(supplied, own("engine_#_core_speed")), 0.0) << turned;
  }
}

TEST_P(EngineStart, Fuel_may_come_at_any_time_of_the_cranking) {
  for (double lever_at_percent : {-1.0, 16.0, 25.5}) {
    SCOPED_TRACE(lever_at_percent);
    SuppliedAircraft aircraft;
    crank(aircraft, own("starter_#_engage"));
    const double start_s = aircraft.seconds();
    seconds_until(aircraft, own("engine_#_core_speed"), lever_at_percent);
    send(aircraft, own("fuel_lever_#_toggle"));
    EXPECT_EQ(reading(aircraft, other("fuel_lever_#")), 0.0);
    double peak = 0.0;
    while (reading(aircraft, own("engine_#_core_speed")) < 50.0 && aircraft.seconds() < 140.0) {
      aircraft.advance(1.0 / 60.0);
      peak = std::max(peak, reading(aircraft, own("engine_#_gas_temperature")) / 4.0);
    }
    EXPECT_NEAR(aircraft.seconds() - start_s, 35.0, 3.0);
    EXPECT_NEAR(peak, 570.0, 25.0) << "above idle, well below take-off";
    aircraft.advance(20.0);
    expect_ground_idle(aircraft, own("engine_#_"));
    expect_cold(aircraft, other("engine_#_"));
  }
}

TEST_P(EngineStart, Fuel_for_the_other_engine_lights_neither) {
  SuppliedAircraft aircraft;
  send(aircraft, other("fuel_lever_#_toggle"));
  crank(aircraft, own("starter_#_engage"));
  aircraft.advance(40.0);
  EXPECT_LT(reading(aircraft, own("engine_#_core_speed")), 30.0);
  EXPECT_EQ(reading(aircraft, own("engine_#_fuel_flow")), 0.0);
  expect_cold(aircraft, other("engine_#_"));
}

// The start panel repeats its event up to ten times a frame while the core turns.
TEST_P(EngineStart, Repeated_events_change_nothing) {
  SuppliedAircraft once, often;
  for (AircraftModel* each : {&once, &often}) send(*each, own("fuel_lever_#_toggle"));
  crank(once, own("starter_#_engage"));
  for (int i = 0; i < 40 * 60; ++i) {
    crank(often, own("starter_#_engage"));
    once.advance(1.0 / 60.0);
    often.advance(1.0 / 60.0);
    ASSERT_EQ(reading(often, own("engine_#_core_speed")), reading(once, own("engine_#_core_speed")))
        << i;
  }
}

TEST_P(EngineStart,
       The_apu_or_the_other_engine_gives_the_air_anywhere_and_the_ground_crew_on_the_stand) {
  using simulation::EngineStartInputs;
  const auto side = static_cast<std::size_t>(GetParam() - 1);
  const auto cranks = [side](const EngineStartInputs& inputs, bool by_ground_crew = false) {
    simulation::EngineStart start;
    for (int ask = 0; ask < 10; ++ask) start.starters[side].engage(0.0);
    if (by_ground_crew) start.starters[side].engage_by_ground_crew(0.0);
    start.update(1.0 / 60.0, inputs);
    EXPECT_EQ(start.crank_speed_percent[1 - side], 0.0);
    return start.crank_speed_percent[side] > 25.0;
  };
  EngineStartInputs other_runs{.has_dc = true, .on_ground = false};
  other_runs.core_speed_percent[1 - side] = 70.0;
  EXPECT_FALSE(cranks({.has_dc = true}));
  EXPECT_TRUE(cranks({.has_dc = true}, true));
  EXPECT_FALSE(cranks({.has_dc = true, .on_ground = false}, true));
  EXPECT_FALSE(cranks({.apu_at_speed = true}));
  EXPECT_TRUE(cranks({.has_dc = true, .apu_at_speed = true, .on_ground = false}));
  EXPECT_TRUE(cranks(other_runs));
}

// One that runs down can be lit again in time, by the start master or by its own starter's sparks.
TEST_P(EngineStart, Nothing_burns_without_sparks_of_its_own) {
  struct Case {
    std::string sparks;
    bool burns;
  };
  for (const auto& [sparks, burns] :
       {Case{"", false}, Case{"ignition_arm", true}, Case{own("starter_#_engage"), true},
        Case{other("starter_#_engage"), false}}) {
    AircraftModel aircraft(StartCondition::ready);
    send(aircraft, "apu_start");
    aircraft.advance(40.0);
    for (const char* lever : {"fuel_lever_1_toggle", "fuel_lever_2_toggle"}) send(aircraft, lever);
    aircraft.advance(10.0);
    if (!sparks.empty()) crank(aircraft, sparks);
    send(aircraft, own("fuel_lever_#_toggle"));
    aircraft.advance(40.0);
    EXPECT_EQ(reading(aircraft, own("engine_#_core_speed")) > 35.0, burns) << "with " << sparks;
    EXPECT_LT(reading(aircraft, other("engine_#_core_speed")), 30.0) << "with " << sparks;
  }
}

TEST_P(EngineStart, A_fuel_lever_closed_during_the_start_leaves_the_engine_cranking) {
  SuppliedAircraft aircraft;
  send(aircraft, own("fuel_lever_#_toggle"));
  crank(aircraft, own("starter_#_engage"));
  seconds_until(aircraft, own("engine_#_core_speed"), 35.0);
  send(aircraft, own("fuel_lever_#_toggle"));
  aircraft.advance(40.0);
  EXPECT_NEAR(reading(aircraft, own("engine_#_core_speed")), 28.8, 0.5);
  EXPECT_LT(reading(aircraft, own("engine_#_gas_temperature")) / 4.0, 200.0);
}

TEST_P(EngineStart, Engine_runs_down_in_a_minute_when_fuel_is_cut) {
  AircraftModel aircraft(StartCondition::ready);
  send(aircraft, own("fuel_lever_#_toggle"));
  aircraft.advance(0.1);
  EXPECT_EQ(reading(aircraft, own("engine_#_fuel_flow")), 0.0);
  EXPECT_NEAR(seconds_until(aircraft, own("engine_#_core_speed"), 10.0, false), 29.0, 3.0);
  EXPECT_GT(reading(aircraft, own("engine_#_gas_temperature")) / 4.0, 100.0) << "it stays warm";
  EXPECT_NEAR(seconds_until(aircraft, own("engine_#_core_speed"), 0.1, false), 28.0, 5.0);
  aircraft.advance(60.0);
  EXPECT_EQ(reading(aircraft, own("engine_#_core_speed")), 0.0);
  EXPECT_LT(reading(aircraft, own("engine_#_fan_speed")), 0.1);
  send(aircraft, own("fuel_lever_#_toggle"));
  crank(aircraft, own("starter_#_engage"));
  aircraft.advance(60.0);
  expect_ground_idle(aircraft, own("engine_#_"));  // it starts while the other one runs
  expect_ground_idle(aircraft, other("engine_#_"));
}

TEST_P(EngineStart, Automatic_start_and_hot_air_from_the_intakes_work_on_each_engine) {
  AircraftModel aircraft;
  send(aircraft, "automatic_start");
  aircraft.advance(120.0);
  expect_ground_idle(aircraft, own("engine_#_"));
  const double idle = reading(aircraft, own("engine_#_gas_temperature"));
  send(aircraft, "engine_antiice_on");
  aircraft.advance(20.0);
  EXPECT_NEAR(reading(aircraft, own("engine_#_gas_temperature")), idle + 15.0 * 4.0, 8.0);
  send(aircraft, "engine_antiice_off");
  send(aircraft, "automatic_start");
  aircraft.advance(20.0);
  EXPECT_NEAR(reading(aircraft, own("engine_#_gas_temperature")), idle, 4.0)
      << "a second start does nothing";
}

INSTANTIATE_TEST_SUITE_P(Sides, EngineStart, testing::Values(1, 2));

}  // namespace
}  // namespace host
