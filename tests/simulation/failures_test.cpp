/// What fails, and what fails with it.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulation/aircraft_rig.h"
#include "tests/simulation/flown.h"

namespace host {
namespace {

TEST(Failures, EachTakesItsSystemAlong) {
  const std::tuple<const char*, const char*, double> rows[] = {
      {"engine_1", "engine_1_core_speed", 25}, {"engine_2", "engine_2_core_speed", 25},
      {"generator_1", "generator_1_load", 0},  {"generator_2", "generator_2_load", 0},
      {"electrical", "ac_bus_1_voltmeter", 0}, {"electrical", "dc_voltmeter", 0},
      {"receiver_1", "nav1_signal", 0},        {"receiver_2", "nav2_signal", 0},
      {"avionics", "nav1_signal", 0},          {"distance", "nav1_distance", -1},
  };
  for (const auto& [name, token, at_most] : rows) {
    AircraftModel aircraft(StartCondition::ready);
    aircraft.advance(0.2);
    const double before = reading(aircraft, token);
    EXPECT_GT(before, at_most) << token;
    const auto failure =
        std::ranges::find(AircraftModel::failures(), std::string_view(name), &FailureRow::name);
    EXPECT_TRUE(aircraft.set_failed(failure->key, true));
    EXPECT_TRUE(aircraft.failed(failure->key));
    aircraft.advance(60.0);
    EXPECT_LE(reading(aircraft, token), at_most) << name << ' ' << token;
  }
  EXPECT_FALSE(AircraftModel().set_failed(99, true)) << "no system has this key";
}

TEST(Failures, BlockedPortsKeepTheLastReading) {
  simulation::Aircraft aircraft = simulation::flying({.altitude_ft = 9000, .airspeed_kt = 240});
  const double altitude = aircraft.air.indicated_altitude_ft,
               speed = aircraft.air.indicated_airspeed_kt;
  aircraft.failures.set(6, true);
  aircraft.failures.set(7, true);
  aircraft.controls.throttle = {};
  aircraft.controls.elevator = -0.1;
  run(aircraft, 30);
  EXPECT_LT(aircraft.flight.altitude_ft, altitude - 500);
  EXPECT_EQ(aircraft.air.indicated_altitude_ft, altitude);
  EXPECT_EQ(aircraft.air.indicated_airspeed_kt, speed);
}

TEST(Failures, TheGearStaysWhereItIs) {
  simulation::Aircraft aircraft = simulation::flying({.altitude_ft = 3000, .airspeed_kt = 180});
  aircraft.controls.gear_down = true;
  run(aircraft, 3);
  const double half_way = aircraft.airframe.surfaces.gear[0];
  aircraft.failures.set(108, true);
  run(aircraft, 20);
  EXPECT_EQ(aircraft.airframe.surfaces.gear[0], half_way);
  EXPECT_GT(half_way, 0.1);
  EXPECT_LT(half_way, 0.9);
}

TEST(Failures, ChanceFailsAsManyAsItIsToldTheSameInEveryFlight) {
  const auto failed_after = [](double hours) {
    simulation::Failures failures;
    failures.per_hour = 10;
    for (int second = 0; second < hours * 3600; ++second) failures.update(1.0);
    std::vector<std::uint32_t> keys;
    for (const FailureRow& row : simulation::failure_table()) {
      if (failures.failed(row.key)) keys.push_back(row.key);
    }
    return keys;
  };
  EXPECT_EQ(failed_after(0.8), failed_after(0.8));
  EXPECT_NEAR(static_cast<double>(failed_after(0.8).size()), 8, 5);
  simulation::Failures none;
  for (int second = 0; second < 100000; ++second) none.update(1.0);
  EXPECT_FALSE(none[simulation::System::engine_1]);
}

}  // namespace
}  // namespace host
