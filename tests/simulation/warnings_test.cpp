// Ground proximity, stall warning, standby compass and recorder, against figures worked out here.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

using enum ProximityMode;

// The heights at which each boundary lies follow from the figures of the modes: 333 ft on 1,500 ft/min, and so on.
TEST(GroundProximity, Envelopes) {
  using P = ProximityPicture;
  const struct {
    ProximityMode mode;
    double inside_ft, outside_ft;
    P at;
  } cases[] = {
      {sink_rate, 330, 336, {.sink_fpm = 1500, .gear_down = true, .landing_flaps = true}},
      {sink_rate, 2440, 2460, {.sink_fpm = 5100}},
      {sink_rate, 11, 9, {.sink_fpm = 5000}},
      {closure, 785, 793, {.closure_fpm = 3000}},
      {closure, 1640, 1660, {.closure_fpm = 6000, .airspeed_kt = 210}},
      {closure, 1700, 1706, {.closure_fpm = 6000, .airspeed_kt = 240}},
      {closure, 205, 195, {.closure_fpm = 4000, .gear_down = true, .landing_flaps = true}},
      {closure, 780, 795, {.closure_fpm = 4000, .gear_down = true, .landing_flaps = true}},
      {altitude_loss, 500, 510, {.altitude_loss_ft = 52, .taking_off = true}},
      {altitude_loss, 31, 29, {.altitude_loss_ft = 15, .taking_off = true, .gear_down = true}},
      {clearance, 495, 505, {.airspeed_kt = 180}},
      {clearance, 745, 755, {.airspeed_kt = 220}},
      {clearance, 995, 1005, {.airspeed_kt = 320, .landing_flaps = true}},
      {clearance, 240, 250, {.airspeed_kt = 140, .gear_down = true}},
      {clearance, 31, 29, {}},
      {glide_slope, 990, 1010, {.dots_below_slope = 1.35, .gear_down = true}},
      {glide_slope, 105, 95, {.dots_below_slope = 1.9, .gear_down = true, .landing_flaps = true}},
  };
  for (const auto& c : cases) {
    P inside = c.at, outside = c.at;
    inside.height_ft = c.inside_ft, outside.height_ft = c.outside_ft;
    EXPECT_EQ(broken_mode(inside), c.mode) << "inside at " << c.inside_ft;
    EXPECT_EQ(broken_mode(outside), none) << "outside at " << c.outside_ft;
  }
  P landing{.height_ft = 100,
            .altitude_loss_ft = 60,
            .dots_below_slope = 1.25,
            .gear_down = true,
            .landing_flaps = true};
  EXPECT_EQ(broken_mode(landing), none);
  landing.taking_off = true;
  EXPECT_EQ(broken_mode(landing), none);
}

/// Flies the computer for some seconds at a vertical speed over level ground.
void fly(GroundProximity& computer, GroundProximityInputs& inputs, double seconds) {
  constexpr double dt_s = 1.0 / 60.0;
  for (double left_s = seconds; left_s > 1e-9; left_s -= dt_s) {
    inputs.height_ft += inputs.vertical_speed_fpm / 60.0 * dt_s;
    inputs.altitude_ft += inputs.vertical_speed_fpm / 60.0 * dt_s;
    computer.update(dt_s, inputs);
  }
}

TEST(GroundProximity, From_take_off_by_way_of_a_descent_to_a_go_around) {
  GroundProximity computer;
  GroundProximityInputs inputs{.powered = true, .altitude_ft = 364, .airspeed_kt = 140};
  fly(computer, inputs, 1);
  inputs.on_ground = false;
  const auto warns_after = [&](double climb_fpm, double seconds) {
    inputs.vertical_speed_fpm = climb_fpm;
    fly(computer, inputs, seconds);
    return computer.warning;
  };
  EXPECT_EQ(warns_after(1200, 15), none) << "gear up at 300 ft, but taking off";
  EXPECT_EQ(warns_after(-600, 3.5), none) << "35 ft lost at 265: too many, but for 0.5 s";
  EXPECT_EQ(warns_after(-600, 0.5), altitude_loss);
  EXPECT_EQ(warns_after(1200, 23), none);
  EXPECT_EQ(warns_after(-600, 24), clearance) << "gear still up at 480 ft, take-off over at 700";
  inputs.gear_down = inputs.landing_flaps = true;
  EXPECT_EQ(warns_after(-600, 24), none) << "down to 240";
  inputs.gear_down = inputs.landing_flaps = false;
  EXPECT_EQ(warns_after(600, 10), none) << "going around";
}

TEST(GroundProximity, The_aircraft_is_warned_of_its_gear_and_lands_without_a_word) {
  Aircraft low = flying({.altitude_ft = 764, .airspeed_kt = 160, .flap_detent = 3});
  EXPECT_EQ(token(low, 990), 0.0);
  run(low, 2.0);
  EXPECT_EQ(token(low, 990), 1.0) << "400 ft high, gear up";
  send(low, 0x104A1);
  EXPECT_EQ(token(low, 990), 0.0) << "begins anew";
  low.electrics.avionics_on = false;
  run(low, 2.0);
  EXPECT_EQ(token(low, 990), 0.0);
  Aircraft set = flying({.altitude_ft = 764, .airspeed_kt = 135, .flap_detent = 5, .gear_down = true});
  run(set, 5.0);
  EXPECT_EQ(token(set, 990), 0.0);
  set.controls.elevator = -0.5;
  run(set, 4.0);
  EXPECT_EQ(token(set, 990), 1.0) << "dives";
}

// alpha_w = (CLmax / 1.08^2 - CL0) / a, a = 5.4 / sqrt(1 - M^2 / 2).
TEST(StallWarning, Angles) {
  EXPECT_NEAR(degrees(stall_warning_angle_rad(0, 0.2)), 13.57, 0.01);
  EXPECT_NEAR(degrees(stall_warning_angle_rad(42, 0.2)), 12.94, 0.01);
  EXPECT_NEAR(degrees(stall_warning_angle_rad(0, 0.75)), 7.33, 0.01);
}

TEST(StallWarning, The_stick_shakes_some_knots_before_the_stall_and_stops_when_it_is_lowered) {
  for (const auto& [detent, stall_kt] : {std::pair{std::size_t{0}, 128.0}, {5, 100.0}}) {
    Aircraft aircraft =
        flying({.altitude_ft = 9000, .airspeed_kt = 1.3 * stall_kt, .flap_detent = detent});
    aircraft.controls.throttle = {0, 0};
    double shaken_kt = 0.0;
    run(aircraft, 60.0, [&] {
      if (shaken_kt > 0.0) return;
      aircraft.controls.elevator = std::fmin(1.0, aircraft.controls.elevator + 0.0003);
      const double load = -aircraft.flight.specific_force_mps2.z / 9.80665;
      if (token(aircraft, 67) == 1.0) shaken_kt = aircraft.air.indicated_airspeed_kt / std::sqrt(load);
    });
    EXPECT_NEAR(shaken_kt, 1.08 * stall_kt, 0.05 * stall_kt) << "flap detent " << detent;
    aircraft.controls.elevator = -0.2;
    run(aircraft, 3.0);
    EXPECT_EQ(token(aircraft, 67), 0.0);
  }
}

TEST(StallWarning, Is_early_where_the_angle_grows_and_silent_on_the_ground_and_without_current) {
  const auto angle_when_it_shakes = [&](double growth_deg_per_s, StallWarningInputs in) {
    StallWarning warning;
    double alpha_deg = 8.0;
    for (; !warning.shaking && alpha_deg < 30.0; alpha_deg += growth_deg_per_s / 60.0) {
      in.angle_of_attack_rad = alpha_deg * M_PI / 180.0;
      warning.update(1.0 / 60.0, in);
    }
    return alpha_deg;
  };
  const StallWarningInputs flying{.powered = true, .on_ground = false, .mach = 0.2, .airspeed_kt = 130};
  EXPECT_NEAR(angle_when_it_shakes(0.5, flying), 13.4, 0.15);
  EXPECT_NEAR(angle_when_it_shakes(5.0, flying), 12.1, 0.3)
      << "two degrees of lead, half a degree of lag";
  EXPECT_GE(angle_when_it_shakes(5.0, {.powered = true, .airspeed_kt = 130}), 30.0) << "on the ground";
  EXPECT_GE(angle_when_it_shakes(5.0, {.on_ground = false, .airspeed_kt = 130}), 30.0) << "no current";
}

/// In a balanced turn the felt weight stands across the wings.
FlightState turning(double heading_deg, double bank_deg, double forward_g = 0.0) {
  FlightState flight;
  const double radians = M_PI / 180.0;
  flight.attitude = {bank_deg * radians, 0.0, (heading_deg + 2.0) * radians};  // 2 degrees of variation
  flight.specific_force_mps2 = {9.80665 * forward_g, 0.0, -9.80665 / std::cos(bank_deg * radians)};
  return flight;
}

// tan(error) = tan(64) sin(bank) on north and south; on east tan(error) = tan(64) sin(atan(0.1)).
TEST(StandbyCompass, Errs_as_the_dip_has_it) {
  const struct {
    double heading, bank, forward_g, reading;
  } cases[] = {
      {0, 0, 0, 0},          {123, 0, 0, 123},      {0, 15, 0, 332.05},  {0, -15, 0, 27.95},
      {180, 15, 0, 207.95},  {180, -15, 0, 152.05}, {90, 0, 0.1, 78.47}, {270, 0, 0.1, 281.53},
      {90, 0, -0.1, 101.53}, {0, 0, 0.1, 0},
  };
  for (const auto& c : cases) {
    StandbyCompass compass;
    compass.settle(turning(c.heading, c.bank, c.forward_g));
    EXPECT_NEAR(std::remainder(compass.reading_deg - c.reading, 360.0), 0.0, 0.02)
        << c.heading << " bank " << c.bank << ' ' << c.forward_g << " g";
  }
}

TEST(StandbyCompass, In_the_aircraft_it_agrees_with_the_gyro_until_the_turn_from_north) {
  Aircraft aircraft = flying({.airspeed_kt = 220, .heading_deg = 350});
  run(aircraft, 10.0);
  EXPECT_NEAR(token(aircraft, 83), token(aircraft, 81), 0.5);
  double most_behind_deg = 0.0;
  const double pitch = pitch_deg(aircraft) + 0.5;
  run(aircraft, 12.0, [&] {
    hold_attitude(aircraft, pitch, 20.0);
    most_behind_deg =
        std::fmax(most_behind_deg, std::remainder(token(aircraft, 81) - token(aircraft, 83), 360.0));
  });
  EXPECT_GT(most_behind_deg, 20.0);
  EXPECT_LT(most_behind_deg, 60.0);
  run(aircraft, 25.0, [&] { hold_attitude(aircraft, pitch, 0.0); });
  EXPECT_NEAR(std::remainder(token(aircraft, 83) - token(aircraft, 81), 360.0), 0.0, 1.5);
}

TEST(FlightRecorder, Counts_the_minutes_that_an_engine_runs_and_goes_round) {
  Aircraft aircraft;
  run(aircraft, 60.0);
  EXPECT_EQ(token(aircraft, 607), 0.0) << "cold";
  aircraft.make_ready();
  const double before = token(aircraft, 607);
  EXPECT_GT(before, 800.0) << "ten minutes less a start";
  run(aircraft, 60.0);
  EXPECT_NEAR(token(aircraft, 607), before + 100.0, 0.1);
  aircraft.flight_recorder.recorded_minutes = 1499.5;
  run(aircraft, 60.0);
  EXPECT_NEAR(token(aircraft, 607), 50.0, 0.1) << "25 hours";
}

TEST(Date, Changes_at_midnight_and_with_the_month_and_the_year) {
  Aircraft aircraft;
  const struct {
    double days;
    int months_past, day;
  } cases[] = {{0, 4, 16}, {0.58, 4, 16}, {0.59, 4, 17}, {15, 4, 31},
               {16, 5, 1}, {229, 11, 31}, {230, 0, 1},   {365, 4, 16}};
  for (const auto& c : cases) {
    aircraft.clock.steps = static_cast<std::uint64_t>(c.days * 86400.0 * 60.0);
    EXPECT_EQ(token(aircraft, 746), c.months_past) << c.days;
    EXPECT_EQ(token(aircraft, 747), c.day) << c.days;
  }
}

}  // namespace
}  // namespace host::simulation
