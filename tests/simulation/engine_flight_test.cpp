// Engines in the air: thrust, windmill, relight; one side at a time.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

TEST(EngineInFlight, Thrust_goes_with_speed_of_the_fan_air_and_aircraft) {
  struct Case {
    const char* what;
    double throttle, altitude_ft, mach, least_n, most_n;
  };
  for (const Case& c :
       {Case{"at rest", 1.0, 0, 0.0, 47500, 48500}, Case{"rotation", 1.0, 0, 0.2, 42000, 45000},
        Case{"cruise", 1.0, 33000, 0.75, 11500, 13000}, Case{"ground idle", 0.0, 0, 0.0, 2000, 4500}}) {
    Engine engine;
    engine.settle({.fuel_lever_open = true,
                   .throttle_ratio = c.throttle,
                   .air_temperature_celsius = standard_temperature_at(c.altitude_ft),
                   .air_pressure_hpa = standard_pressure_at(c.altitude_ft),
                   .mach = c.mach});
    EXPECT_GT(engine.thrust_n, c.least_n) << c.what;
    EXPECT_LT(engine.thrust_n, c.most_n) << c.what;
  }
}

TEST(EngineInFlight, A_dead_engine_windmills_yaws_toward_its_side_and_lights_again_at_speed) {
  for (std::size_t dead : {0u, 1u}) {
    const double toward_it = dead == 0 ? -1.0 : 1.0;
    Aircraft aircraft = flying({.altitude_ft = 10000, .airspeed_kt = 260});
    const auto wings_level = [&] { hold_attitude(aircraft, pitch_deg(aircraft), 0.0); };
    aircraft.fuel.lever_open[dead] = false;
    run(aircraft, 45.0, wings_level);
    EXPECT_NEAR(aircraft.engines[dead].core_speed_percent, 0.07 * aircraft.air.indicated_airspeed_kt,
                1.0);
    EXPECT_LT(aircraft.engines[dead].thrust_n, 0.0) << "it drags";
    EXPECT_GT(aircraft.engines[1 - dead].core_speed_percent, 70.0);
    EXPECT_GT(toward_it * std::remainder(magnetic_heading_deg(aircraft.flight) - 70.0, 360.0), 1.0);
    EXPECT_LT(toward_it * aircraft.flight.sideslip_rad, 0.0)
        << "the nose points to it, the wind does not";

    aircraft.fuel.lever_open[dead] = true;
    run(aircraft, 15.0, wings_level);
    EXPECT_FALSE(aircraft.engines[dead].lit) << "no sparks";
    aircraft.engine_start.ignition_armed = true;
    run(aircraft, 60.0, wings_level);
    EXPECT_TRUE(aircraft.engines[dead].lit);
    EXPECT_NEAR(aircraft.engines[dead].thrust_n, aircraft.engines[1 - dead].thrust_n, 200.0);
  }
}

TEST(EngineInFlight, Too_slow_for_a_windmill_start) {
  Aircraft aircraft = flying({.altitude_ft = 10000, .airspeed_kt = 170});
  aircraft.fuel.lever_open[1] = false;
  run(aircraft, 45.0, [&] { hold_attitude(aircraft, 5.0, 0.0); });
  aircraft.fuel.lever_open[1] = true;
  aircraft.engine_start.ignition_armed = true;
  run(aircraft, 20.0, [&] { hold_attitude(aircraft, 5.0, 0.0); });
  EXPECT_FALSE(aircraft.engines[1].lit);
}

TEST(EngineInFlight, Each_throttle_moves_its_own_engine_and_flight_idle_keeps_the_generators) {
  for (std::size_t side : {0u, 1u}) {
    Aircraft aircraft = flying({});
    aircraft.controls.throttle[side] = 0.0;
    const double other = aircraft.engines[1 - side].core_speed_percent;
    run(aircraft, 20.0);
    EXPECT_NEAR(aircraft.engines[side].core_speed_percent, 58.0, 0.5);
    EXPECT_NEAR(aircraft.engines[1 - side].core_speed_percent, other, 1.0);
    EXPECT_TRUE(aircraft.electrics.generator_on_line[side]);
  }
}

}  // namespace
}  // namespace host::simulation
