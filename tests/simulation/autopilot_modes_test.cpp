// When the autopilot engages, what it then does, and when it lets go.

#include "tests/simulation/engaged.h"

namespace host::simulation {
namespace {

void put(Aircraft& aircraft, const EulerAngles& attitude) {
  aircraft.airframe.attitude = Quaternion::from(attitude);
}

TEST(Autopilot, Engages_only_where_it_can_fly_and_lets_go_where_it_cannot) {
  struct Case {
    const char* what;
    void (*happens)(Aircraft&);
  };
  const Case cases[] = {
      {"stick pulled", [](Aircraft& a) { a.controls.elevator = 0.3; }},
      {"stick turned", [](Aircraft& a) { a.controls.aileron = -0.3; }},
      {"avionics off", [](Aircraft& a) { a.electrics.avionics_on = false; }},
      {"no power", [](Aircraft& a) { a.electrics = {}; }},
      {"gyros dead", [](Aircraft& a) { a.failures.set(2, true); }},
      {"rolled over",
       [](Aircraft& a) {
         put(a, {1.0, 0.0, 0.0});
       }},
      {"before a stall",
       [](Aircraft& a) {
         put(a, {0.0, 0.3, 1.25});
       }},
      {"on the ground", [](Aircraft& a) { a.place_on_runway(); }},
  };
  for (const Case& c : cases) {
    Aircraft aircraft = engaged(quick);
    run(aircraft, 1.0);
    c.happens(aircraft);
    aircraft.step();
    EXPECT_EQ(token(aircraft, 103), 0.0) << c.what;
    send(aircraft, "autopilot_toggle");
    EXPECT_EQ(token(aircraft, 103), 0.0) << c.what << ": the switch springs back";
  }
  Aircraft cold;
  send(cold, "autopilot_toggle");
  EXPECT_EQ(token(cold, 103), 0.0);
}

TEST(Autopilot, One_mode_ends_another) {
  struct Case {
    Names events;
    LateralMode lateral;
    bool armed, approach;
  };
  using enum LateralMode;
  for (const Case& c : {Case{{"heading_hold_on"}, heading, false, false},
                        Case{{"heading_hold_on", "navigation_hold_off"}, level, false, false},
                        Case{{"heading_hold_on", "heading_hold_off"}, level, false, false},
                        Case{{"navigation_hold_on", "approach_arm_on"}, navigation, true, true},
                        Case{{"approach_hold_on"}, navigation, true, true},
                        Case{{"approach_hold_on", "approach_hold_off"}, navigation, false, false},
                        Case{{"approach_arm_on", "approach_arm_off"}, navigation, false, false},
                        Case{{"approach_arm_on", "navigation_hold_off"}, level, false, false},
                        Case{{"approach_arm_on", "heading_hold_on"}, heading, false, false}}) {
    Aircraft aircraft =
        engaged({.altitude_ft = 2500, .airspeed_kt = 150, .along_m = -15000, .flap_detent = 3});
    aircraft.step();
    send_all(aircraft, c.events);
    aircraft.step();
    const std::string_view last = c.events.back();
    const AutopilotModes& modes = aircraft.autopilot.modes;
    EXPECT_EQ(modes.lateral, c.lateral) << last;
    EXPECT_EQ(token(aircraft, 106), c.lateral == heading ? 1.0 : 0.0) << last;
    EXPECT_EQ(modes.approach_armed, c.armed) << last;
    EXPECT_EQ(modes.approach, c.approach) << last;
  }
  Aircraft beyond = engaged(high);
  send(beyond, "approach_hold_on");
  beyond.step();
  EXPECT_FALSE(beyond.autopilot.modes.approach) << "nothing is received";
}

TEST(Autopilot, Lets_go_without_a_jerk_and_the_bars_go_on) {
  for (double seconds : {15.0, 90.0}) {  // in a turn and a climb, and in level flight
    Aircraft aircraft = engaged({.altitude_ft = 5000, .airspeed_kt = 200});
    aircraft.autopilot.selections = {150.0, 5800.0, 200.0, 0.0};
    send(aircraft, "heading_hold_on");
    run(aircraft, seconds);
    const FlightDirector shown = aircraft.autopilot.director;
    const double before = aircraft.flight.specific_force_mps2.z;
    send(aircraft, "autopilot_toggle");
    const auto [jerk, roll] = greatest(
        aircraft, 2.0,
        [&] { return std::abs(aircraft.flight.specific_force_mps2.z - before) / 9.80665; },
        [&] { return degrees(std::abs(aircraft.flight.rate_rad_per_s.x)); });
    EXPECT_LT(jerk, 0.04);
    EXPECT_LT(roll, 2.0);
    EXPECT_NEAR(aircraft.autopilot.director.bank_deg, shown.bank_deg, 1.0);
    EXPECT_NEAR(aircraft.autopilot.director.pitch_deg, shown.pitch_deg, 1.0);
  }
}

}  // namespace
}  // namespace host::simulation
