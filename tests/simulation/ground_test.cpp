// On the wheels: standing, braking, steering, leaving and meeting the ground.

#include "tests/simulation/aircraft_rig.h"
#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

TEST(Ground, Standing_still_does_not_creep_for_ten_minutes_even_in_a_crosswind) {
  for (double wind_kt : {0.0, 25.0}) {
    Aircraft aircraft = on_the_runway();
    aircraft.air.weather.wind = {.from_true_deg = 162.0, .speed_kt = wind_kt};
    run(aircraft, 60.0);
    const Vector settled_m = aircraft.airframe.position_m;
    run(aircraft, 600.0);
    EXPECT_LT(length(aircraft.airframe.position_m - settled_m), 0.005) << wind_kt;
    EXPECT_LT(speed_mps(aircraft), 1e-4) << wind_kt;
    EXPECT_LT(aircraft.air.indicated_airspeed_kt, 1.0) << "it blows from the side";
  }
}

TEST(Ground, It_runs_straight_by_itself_after_a_kick) {
  Aircraft aircraft = on_the_runway();
  aircraft.controls.parking_brake_set = false;
  aircraft.controls.throttle = {1, 1};
  while (aircraft.air.indicated_airspeed_kt < 60.0) aircraft.step();
  aircraft.airframe.rate_rad_per_s.z = 0.05;
  run(aircraft, 5.0);
  EXPECT_NEAR(aircraft.flight.rate_rad_per_s.z, 0.0, 0.002);
  EXPECT_NEAR(magnetic_heading_deg(aircraft.flight), 70.0, 4.0);
}

TEST(Ground, The_chocks_go_when_the_parking_brake_is_set_and_idle_thrust_alone_barely_rolls) {
  Aircraft aircraft;
  aircraft.make_ready();
  aircraft.controls.throttle = {1, 1};
  run(aircraft, 15.0);
  EXPECT_EQ(speed_mps(aircraft), 0.0) << "on its chocks";
  aircraft.controls.throttle = {0, 0};
  aircraft.controls.parking_brake_set = true;
  run(aircraft, 15.0);
  EXPECT_LT(speed_mps(aircraft), 0.01) << "on its brakes";
  aircraft.controls.parking_brake_set = false;
  run(aircraft, 10.0);
  EXPECT_LT(speed_mps(aircraft), 1.5);
  aircraft.controls.throttle = {0.4, 0.4};
  run(aircraft, 10.0);
  EXPECT_GT(speed_mps(aircraft), 2.0);
}

TEST(Ground, Tiller_pedals_and_a_single_brake_each_turn_it_their_own_way) {
  for (double sign : {-1.0, 1.0}) {
    const std::size_t side = sign < 0.0 ? 0 : 1;
    const auto turned_by = [&](auto act) {
      Aircraft aircraft = on_the_runway();
      aircraft.controls.parking_brake_set = false;
      aircraft.controls.throttle = {0.4, 0.4};
      run(aircraft, 20.0);
      act(aircraft.controls);
      const double before_deg = magnetic_heading_deg(aircraft.flight);
      run(aircraft, 4.0);
      return sign * std::remainder(magnetic_heading_deg(aircraft.flight) - before_deg, 360.0);
    };
    EXPECT_GT(turned_by([&](FlightControls& f) { f.tiller = 0.5 * sign; }), 15.0);
    EXPECT_GT(turned_by([&](FlightControls& f) { f.rudder = sign; }), 2.0);
    EXPECT_GT(turned_by([&](FlightControls& f) { f.brake[side] = 0.6; }), 2.0);
  }
}

TEST(Ground, The_gear_stays_locked_on_its_wheels_and_comes_up_in_the_air) {
  Aircraft aircraft = on_the_runway();
  aircraft.controls.gear_down = false;
  run(aircraft, 20.0);
  EXPECT_EQ(aircraft.airframe.surfaces.gear, (std::array{1.0, 1.0, 1.0}));
  Aircraft high = flying({.airspeed_kt = 160, .gear_down = true});
  high.controls.gear_down = false;
  run(high, 4.0);
  high.controls.gear_down = true;
  run(high, 3.9);
  EXPECT_LT(high.airframe.surfaces.gear[0], 1.0);
  run(high, 0.2);
  EXPECT_EQ(high.airframe.surfaces.gear[0], 1.0) << "in transit it turns back";
  high.controls.gear_down = false;
  run(high, 9.6);
  EXPECT_EQ(high.airframe.surfaces.gear, (std::array{0.0, 0.0, 0.0}));
}

struct TakeOff {
  double roll_m, lift_off_kt, climb_fpm;
};

TakeOff take_off(Aircraft& aircraft, double rotation_kt) {
  aircraft.controls.flap_detent = 2;
  aircraft.controls.throttle = {1, 1};
  run(aircraft, 10.0);
  aircraft.controls.parking_brake_set = false;
  TakeOff result{};
  const Vector start_m = aircraft.airframe.position_m;
  run(aircraft, 70.0, [&] {
    if (aircraft.air.indicated_airspeed_kt > rotation_kt) hold_attitude(aircraft, 12.0, 0.0);
    if (aircraft.flight.height_ft > 35.0) aircraft.controls.gear_down = false;
    if (result.roll_m != 0.0 || aircraft.flight.on_ground) return;
    result.roll_m = length(aircraft.airframe.position_m - start_m);
    result.lift_off_kt = aircraft.air.indicated_airspeed_kt;
  });
  result.climb_fpm = aircraft.flight.vertical_speed_fpm;
  return result;
}

// At a fast pace two frames' calls fall into one step of the aircraft.
TEST(Ground, The_tug_hears_one_call_a_breath_at_any_pace) {
  for (const int calls : {1, 2}) {
    AircraftModel model;
    for (int frame = 0; frame < 120 * 8; ++frame) {
      for (int call = 0; call < calls; ++call) send(model, "pushback_call");
      model.advance(1.0 / 120);
    }
    EXPECT_EQ(length(model.flight().velocity_mps) > 1.0, calls == 1) << calls;
  }
}

TEST(Ground, Takes_off_in_the_length_that_its_weight_needs_straight_ahead) {
  Aircraft usual = on_the_runway();
  const TakeOff at_36_t = take_off(usual, 126.0);
  EXPECT_NEAR(at_36_t.roll_m, 1200.0, 150.0);
  EXPECT_NEAR(at_36_t.lift_off_kt, 134.0, 6.0);
  EXPECT_GT(at_36_t.climb_fpm, 2000.0);
  EXPECT_NEAR(runway_axes(usual.flight.position_m).right_m, 0.0, 0.1);

  for (int pace : {10, 18, 120}) {
    Aircraft other = on_the_runway(pace);
    EXPECT_NEAR(take_off(other, 126.0).roll_m, at_36_t.roll_m, 25.0) << pace << " steps a second";
  }

  Aircraft full = on_the_runway();
  full.fuel.wing_kg = {3890.0, 3890.0};
  full.fuel.centre_kg = 2220.0;
  EXPECT_NEAR(take_off(full, 134.0).roll_m, 1500.0, 150.0);
}

// Brakes at their limit, dumpers out: about half of g, so V^2 / 2a.
TEST(Ground, Brakes_and_lift_dumpers_stop_it_on_the_runway) {
  Aircraft aircraft = on_the_runway();
  aircraft.controls.parking_brake_set = false;
  aircraft.controls.throttle = {1, 1};
  while (aircraft.air.indicated_airspeed_kt < 110.0) aircraft.step();
  aircraft.controls.throttle = {0, 0};
  aircraft.controls.brake = {1, 1};
  aircraft.controls.lift_dumpers_out = true;
  const double fast_mps = speed_mps(aircraft);
  const Vector start_m = aircraft.airframe.position_m;
  run(aircraft, 40.0);
  const double stop_m = length(aircraft.airframe.position_m - start_m);
  EXPECT_LT(speed_mps(aircraft), 1e-3);
  EXPECT_GT(stop_m, fast_mps * fast_mps / (2.0 * 0.5 * 9.80665));
  EXPECT_LT(stop_m, 600.0);
}

TEST(Ground, Without_its_gear_it_slides_to_a_stop_and_stays_whole) {
  Aircraft aircraft = flying(
      {.altitude_ft = 420, .airspeed_kt = 125, .along_m = -1200, .flap_detent = 5, .gear_down = false});
  aircraft.controls.throttle = {0, 0};
  run(aircraft, 90.0, [&] { hold_attitude(aircraft, 4.0, 0.0); });
  EXPECT_LT(speed_mps(aircraft), 0.1);
  EXPECT_TRUE(std::isfinite(aircraft.airframe.position_m.x));
  EXPECT_FALSE(aircraft.flight.on_ground) << "no wheel carries it";
}

}  // namespace
}  // namespace host::simulation
