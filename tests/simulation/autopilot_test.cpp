// What the autopilot flies, from the panels' events to the tokens that the panels read.

#include "tests/simulation/engaged.h"

namespace host::simulation {
namespace {

TEST(Autopilot, Holds_what_it_is_told_smoothly_and_in_gusts_at_any_pace) {
  struct Case {
    InFlight where;
    double gust_mps, heading_deg, altitude_ft, speed_kt;
  };
  for (const Case& c : {Case{slow, 0, 0.1, 5, 0.5}, Case{high, 0, 0.1, 5, 0.5},
                        Case{quick, 1, 3, 30, 10}, Case{slow, 1, 4, 40, 10}}) {
    for (int pace : {10, 60, 120}) {
      SCOPED_TRACE(testing::Message()
                   << c.where.altitude_ft << " ft, gusts " << c.gust_mps << ", pace " << pace);
      Aircraft aircraft = engaged(c.where, pace, {.gust_mps = c.gust_mps});
      send(aircraft, "heading_hold_on");
      const auto [turn, climb, gain] = greatest(
          aircraft, 300.0, [&] { return off_heading(aircraft, c.where.heading_deg); },
          [&] { return std::abs(aircraft.flight.altitude_ft - c.where.altitude_ft); },
          [&] { return std::abs(aircraft.air.indicated_airspeed_kt - token(aircraft, 116)); });
      EXPECT_LT(turn, c.heading_deg);
      EXPECT_LT(climb, c.altitude_ft);
      EXPECT_LT(gain, c.speed_kt);
    }
  }
}

TEST(Autopilot, Turns_to_the_bug_the_shorter_way_within_its_bank) {
  for (const InFlight& where : {slow, quick, high}) {
    for (double turn_deg : {-90.0, 40.0}) {
      SCOPED_TRACE(testing::Message() << where.altitude_ft << " ft, by " << turn_deg);
      Aircraft aircraft = engaged(where);
      send(aircraft, "heading_hold_on");
      send(aircraft, turn_deg < 0 ? "heading_bug_down" : "heading_bug_up",
           static_cast<int>(std::abs(turn_deg)));
      const double way = std::copysign(1.0, turn_deg), bug_deg = token(aircraft, 107);
      const auto [bank, roll, climb, beyond] = greatest(
          aircraft, 200.0, [&] { return std::abs(bank_deg(aircraft)); },
          [&] { return degrees(std::abs(aircraft.flight.rate_rad_per_s.x)); },
          [&] { return std::abs(aircraft.flight.altitude_ft - where.altitude_ft); },
          [&] { return way * std::remainder(magnetic_heading_deg(aircraft.flight) - bug_deg, 360.0); });
      EXPECT_LT(bank, 27.0);
      EXPECT_LT(roll, 7.0);
      EXPECT_LT(climb, 20.0);
      EXPECT_LT(beyond, 0.5) << "overshoot";
      EXPECT_LT(off_heading(aircraft, bug_deg), 0.3);
    }
  }
}

TEST(Autopilot, Goes_to_the_selected_altitude_at_the_wheels_rate_and_turns_the_wheel_back) {
  for (int way : {-1, 1}) {
    Aircraft aircraft = engaged(quick);
    run(aircraft, 5.0);
    EXPECT_EQ(token(aircraft, 120), 0.0);
    send(aircraft, way < 0 ? "selected_altitude_down" : "selected_altitude_up", 15);
    run(aircraft, 25.0);
    EXPECT_EQ(token(aircraft, 120), 1500.0 * way);
    EXPECT_NEAR(aircraft.flight.vertical_speed_fpm, 1500.0 * way, 100.0);
    const auto [beyond_ft, gain_kt] = greatest(
        aircraft, 90.0, [&] { return way * (aircraft.flight.altitude_ft - token(aircraft, 109)); },
        [&] { return std::abs(aircraft.air.indicated_airspeed_kt - 250.0); });
    EXPECT_LT(beyond_ft, 15.0) << "overshoot";
    EXPECT_LT(gain_kt, way < 0 ? 10.0 : 4.0) << "idling engines hold no more";
    EXPECT_NEAR(aircraft.air.indicated_altitude_ft, 5000.0 + 1500.0 * way, 3.0);
    EXPECT_EQ(token(aircraft, 120), 0.0);
    EXPECT_EQ(token(aircraft, 108), 1.0);
  }
}

TEST(FlightDirector, Leads_to_an_altitude_chosen_by_hand_at_the_usual_rate) {
  Aircraft aircraft = flying(quick);
  aircraft.autopilot.selections.altitude_ft = 9000.0;
  run(aircraft, 2.0);
  EXPECT_EQ(token(aircraft, 120), 0.0) << "the wheel is nobody's yet";
  send(aircraft, "altitude_hold_on");
  run(aircraft, 2.0);
  EXPECT_EQ(token(aircraft, 120), 1500.0);
  EXPECT_GT(aircraft.autopilot.director.pitch_deg, pitch_deg(aircraft) + 2.0);
}

TEST(Autopilot, Without_an_altitude_it_holds_the_wheels_climb_from_the_present_one_on) {
  Aircraft aircraft = flying(quick);
  aircraft.controls.throttle = {0.9, 0.9};
  run(aircraft, 20.0, [&] { hold_attitude(aircraft, 7.0, 0.0); });
  aircraft.controls.elevator = aircraft.controls.aileron = 0.0;
  const double climb_fpm = aircraft.flight.vertical_speed_fpm;
  send(aircraft, "autopilot_toggle");
  EXPECT_NEAR(token(aircraft, 120), climb_fpm, 50.0);
  send(aircraft, "selected_vertical_speed_down", 10);
  double load = 0;
  run(aircraft, 30.0, [&] {
    load = std::fmax(load, std::abs(-aircraft.flight.specific_force_mps2.z / 9.80665 - 1.0));
  });
  EXPECT_NEAR(aircraft.flight.vertical_speed_fpm, token(aircraft, 120), 60.0);
  EXPECT_LT(load, 0.2);
}

TEST(Autothrottle, Moves_the_levers_to_the_selected_speed_only_while_armed_and_holding) {
  Aircraft aircraft = engaged({.altitude_ft = 5000, .airspeed_kt = 200});
  const double before = token(aircraft, 128);
  send(aircraft, "selected_speed_up", 20);
  run(aircraft, 10.0);
  EXPECT_GT(token(aircraft, 128), before + 2000.0);
  run(aircraft, 80.0);
  EXPECT_NEAR(aircraft.air.indicated_airspeed_kt, 220.0, 1.0);
  EXPECT_EQ(aircraft.controls.throttle[0], aircraft.controls.throttle[1]);
  for (const auto& off : {Names{"airspeed_hold_off"},
                          {"airspeed_hold_on", "autothrottle_arm_toggle", "airspeed_hold_on"}}) {
    send_all(aircraft, off);
    aircraft.controls.throttle = {0.6, 0.3};
    run(aircraft, 5.0);
    EXPECT_EQ(aircraft.controls.throttle, (std::array{0.6, 0.3}));
  }
}

TEST(Autopilot, Captures_a_radial_from_its_heading_and_follows_it_over_the_station) {
  Aircraft aircraft = engaged({.altitude_ft = 6000,
                               .airspeed_kt = 220,
                               .heading_deg = 90,
                               .along_m = -20000,
                               .right_m = -9000});
  aircraft.nav[0].tuning.active_khz = 113350;
  aircraft.nav[0].course_deg = 50.0;
  send(aircraft, "navigation_hold_on");
  run(aircraft, 60.0);
  EXPECT_LT(off_heading(aircraft, 90.0), 1.0) << "the bug, until the course comes";
  const auto [beyond] = greatest(aircraft, 120.0, [&] { return -aircraft.nav[0].course_deviation; });
  EXPECT_LT(beyond, 0.05) << "overshoot, in scales";
  EXPECT_NEAR(aircraft.nav[0].course_deviation, 0.0, 0.03);
  EXPECT_EQ(token(aircraft, 853), 0.0) << "TO";
  const auto [bank] = greatest(aircraft, 240.0, [&] { return std::abs(bank_deg(aircraft)); });
  EXPECT_LT(bank, 8.0) << "calm above the station";
  EXPECT_EQ(token(aircraft, 853), 1.0) << "FROM";
  EXPECT_NEAR(aircraft.nav[0].course_deviation, 0.0, 0.03);

  send_all(aircraft, {"hsi_source_toggle", "course_up"});
  run(aircraft, 60.0);
  EXPECT_LT(off_heading(aircraft, 50.0), 0.5) << "without a route it keeps its track";
}

// A coupled approach to 50 ft, as the panels send it: the glide slope's hold again in every frame.
TEST(Autopilot, Flies_the_approach_to_the_flare) {
  struct Case {
    int pace;
    Wind wind;
    double intercept_deg, course_scales, slope_scales;
  };
  for (const Case& c : {Case{60, {}, 30, 0.02, 0.15}, Case{10, {162, 20, 0}, 30, 0.05, 0.15},
                        Case{120, {342, 25, 0}, -45, 0.05, 0.15}, Case{60, {142, 15, 1}, 45, 0.1, 0.5},
                        Case{10, {0, 20, 1}, -30, 0.1, 0.5}}) {
    Aircraft aircraft = engaged({.altitude_ft = 2800,
                                 .airspeed_kt = 150,
                                 .heading_deg = 70 + c.intercept_deg,
                                 .along_m = -27000,
                                 .right_m = -100 * c.intercept_deg,
                                 .flap_detent = 3,
                                 .gear_down = true},
                                c.pace, c.wind);
    send_all(aircraft, {"navigation_hold_on", "approach_arm_on"});
    send(aircraft, "selected_speed_down", 10);
    double course = 0, slope = 0;
    for (int i = 0; i < 700 * c.pace && !aircraft.flight.on_ground; ++i) {
      aircraft.step();
      if (aircraft.nav[0].glide_slope) send(aircraft, "approach_hold_on");
      if (aircraft.flight.height_ft < 200.0) continue;
      if (i > 150 * c.pace) course = std::fmax(course, std::abs(aircraft.nav[0].course_deviation));
      if (token(aircraft, 108) == 0.0)
        slope = std::fmax(slope, std::abs(aircraft.nav[0].slope_deviation));
    }
    EXPECT_LT(course, c.course_scales) << "pace " << c.pace << ", wind from " << c.wind.from_true_deg;
    EXPECT_LT(slope, c.slope_scales) << "pace " << c.pace << ", wind from " << c.wind.from_true_deg;
    EXPECT_GT(slope, 0.0);
    ASSERT_TRUE(aircraft.flight.on_ground);
    EXPECT_LT(std::abs(runway_axes(aircraft.flight.position_m).right_m), 10.0);
    EXPECT_LT(std::abs(aircraft.flight.vertical_speed_fpm), 1000.0);
    aircraft.step();
    EXPECT_EQ(token(aircraft, 103), 0.0) << "on the ground it lets go";
  }
}

TEST(Autopilot, Flies_on_with_a_dead_engine_and_gives_way_in_height_before_it_stalls) {
  Aircraft aircraft = engaged(quick);
  send(aircraft, "heading_hold_on");
  aircraft.fuel.lever_open[0] = false;
  const auto [turn] = greatest(aircraft, 240.0, [&] { return off_heading(aircraft, 70.0); });
  EXPECT_LT(turn, 3.0);
  EXPECT_LT(off_heading(aircraft, 70.0), 0.5);
  EXPECT_NEAR(aircraft.flight.altitude_ft, 5000.0, 10.0);

  send(aircraft, "airspeed_hold_off");
  aircraft.controls.throttle = {0.0, 0.0};
  run(aircraft, 180.0);
  EXPECT_EQ(token(aircraft, 103), 1.0);
  EXPECT_GT(aircraft.air.indicated_airspeed_kt, 130.0);
  EXPECT_LT(aircraft.flight.altitude_ft, 4900.0);
}

TEST(YawDamper, Damps_the_dutch_roll_while_on) {
  const auto swing_left = [](bool on) {
    Aircraft aircraft = flying({.altitude_ft = 5000, .airspeed_kt = 160, .flap_detent = 3});
    if (on) send(aircraft, "yaw_damper_toggle");
    aircraft.airframe.rate_rad_per_s.z = 0.1;
    run(aircraft, 8.0);
    return greatest(aircraft, 5.0, [&] { return std::abs(aircraft.flight.sideslip_rad); })[0];
  };
  EXPECT_LT(swing_left(true), 0.5 * swing_left(false));
}

}  // namespace
}  // namespace host::simulation
