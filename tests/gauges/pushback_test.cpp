/// The pushback: its panel, and a real aircraft at the tug.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>

#include "gauges/controls/pushback_programmes.h"
#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"
#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;
using rig::Events;

class Pushback : public testing::Test {
 protected:
  Pushback() {
    tug = {};
    push_distance = push_heading = push_left_angle = push_right_angle = 0;
    host.tokens[token::simulation_rate] = 256;
    host.tokens[token::heading] = 70;
  }

  rig::Host host;
  rig::Gauge panel{"Pushback"};

  void set(const std::string& setting, u32 value) {
    for (u32 i = 0; i < value / 10; ++i) panel.right_click(setting + "_setting_up");
    for (u32 i = 0; i < value % 10; ++i) panel.click(setting + "_setting_up");
  }
  std::string text(const std::string& setting) {
    panel.frame();
    return panel.text(setting + "_setting");
  }
  f64 shown(const char* part) const { return panel.value(part); }
};

TEST_F(Pushback, SettingsStopAtTheirLimitsAndAnglesExcludeEachOther) {
  struct Row {
    std::string setting;
    u32 limit;
    const char *nine, *top;
  };
  for (const auto& [setting, limit, nine, top] :
       {Row{"distance", 99, "09", "99"}, Row{"heading", 360, "009", "360"},
        Row{"left_angle", 90, "09", "90"}, Row{"right_angle", 90, "09", "90"}}) {
    const std::string up = setting + "_setting_up", down = setting + "_setting_down";
    panel.click(down);
    set(setting, 9);
    panel.right_click(down);  // ten less is not taken
    panel.click(up, MOUSE_LEFT | MOUSE_RIGHT);
    panel.click(down, MOUSE_LEFT | MOUSE_RIGHT);
    EXPECT_EQ(text(setting), nine) << setting;
    set(setting, 10 * limit);
    set(setting, 9);
    panel.click(up);
    EXPECT_EQ(text(setting), top) << setting;
  }
  EXPECT_EQ(text("left_angle"), "00") << "taken back by the other side's";
  panel.click("right_angle_setting_up");
  panel.click("left_angle_setting_down");
  EXPECT_EQ(text("right_angle"), "90") << "a click at a limit is no step";
}

TEST_F(Pushback, ArmsOnlyAnAircraftAtRestAndASecondClickDisarms) {
  for (const auto& [fan_1, fan_2, armed] :
       {std::tuple{9.9, 9.9, 1u}, {10.0, 0.0, 0u}, {0.0, 10.0, 0u}}) {
    host.tokens[token::engine_1_fan_speed] = fan_1;
    host.tokens[token::engine_2_fan_speed] = fan_2;
    for (const auto& [button, programme] : {std::pair{"automatic_push_back", &tug.back},
                                            {"automatic_push_left", &tug.left},
                                            {"automatic_push_right", &tug.right}}) {
      programme->armed = 0;
      panel.click(button);
      EXPECT_EQ(programme->armed, armed) << button;
      panel.click(button);
      EXPECT_EQ(programme->armed, 0u) << button;
    }
  }
}

TEST_F(Pushback, TheTailIsOppositeTheNoseAndHeldWhereItIsNeither) {
  set("heading", 10);
  set("right_angle", 20);
  struct Row {
    f64 heading;
    const char* text;
    u32 whole_tail;
  };
  for (const Row& row : {Row{70.9, "250", 250}, Row{180.0, "250", 250}, Row{180.5, "000", 250},
                         Row{359.9, "179", 179}, Row{0.0, "179", 179}, Row{360.0, "179", 179},
                         Row{0.5, "180", 179}, Row{179.5, "359", 359}, Row{181.2, "001", 1}}) {
    host.tokens[token::heading] = row.heading;
    panel.frame();
    EXPECT_EQ(panel.text("tail_heading"), row.text) << row.heading;
    EXPECT_EQ(tug.whole_tail, row.whole_tail) << row.heading;
  }
  EXPECT_EQ(tug.right_target, 0u - 10u) << "wraps below zero";
}

TEST_F(Pushback, ByHandTheButtonsCallAndNothingIsCounted) {
  const Events nothing, back{{66483, 0}}, left{{66483, 0}, {65538, 0}}, right{{66483, 0}, {65539, 0}};
  for (const bool manual : {false, true}) {
    if (manual) panel.click("manual_button");
    for (const auto& [button, sent] : {std::pair{"manual_push_back", back},
                                       {"manual_push_left", left},
                                       {"manual_push_right", right}}) {
      panel.right_click(button);
      EXPECT_EQ(host.sent(), manual ? sent : nothing) << button;
    }
    panel.expect({{"status_light", manual ? 7 : 0}});
    EXPECT_EQ(panel.text("tail_heading"), manual ? "---" : "250");
    EXPECT_EQ(panel.text("distance_setting"), manual ? "--" : "00");
  }
  panel.click("automatic_button");
  panel.frame();
  EXPECT_EQ(shown("automatic_light") - shown("manual_light"), 1) << "one mode ends the other";
}

TEST_F(Pushback, TheAnnunciatorAndTheLightsFollowTheProgress) {
  set("distance", 40);
  host.tokens[token::simulation_rate] = 5000;  // a frame is one of the progress
  panel.click("automatic_button");
  panel.click("automatic_push_back");
  const std::map<int, f64> status{{8, 0},  {9, 2},  {19, 2}, {20, 0}, {21, 3}, {24, 0},
                                  {25, 4}, {28, 0}, {29, 3}, {39, 3}, {40, 0}, {41, 0}};
  // The light looks before the programme steps on.
  const std::map<int, f64> light{{3, 0},  {4, 1},  {7, 1},  {8, 0},  {17, 0},
                                 {18, 1}, {20, 0}, {22, 1}, {40, 1}, {41, 0}};
  for (int progress = 1; progress <= 41; ++progress) {
    panel.frame();
    EXPECT_EQ(host.sent().size(), progress > 40 ? 2u : progress > 20 ? 1u : 0u) << progress;
    if (status.contains(progress)) {
      EXPECT_EQ(shown("status_light"), status.at(progress)) << progress;
    }
    if (light.contains(progress)) {
      EXPECT_EQ(shown("back_programme_light"), light.at(progress)) << progress;
    }
  }
  host.tokens[token::parking_brake] = 1;
  panel.expect({{"status_light", 1}});
}

/// The panel at 18 frames a second and the aircraft behind it.
class Apron : public Pushback {
 protected:
  host::simulation::Aircraft plane;
  int frames = 0;

  void frame() {
    for (const auto& [event, value] : host.sent()) {
      host::simulation::find_event(event)->apply(plane, value);
    }
    ++frames;
    while (plane.clock.steps < static_cast<std::uint64_t>(frames) * 60 / 18) plane.step();
    for (const u32 token : {token::heading, token::parking_brake, token::simulation_rate,
                            token::engine_1_fan_speed, token::engine_2_fan_speed}) {
      host.tokens[token] = host::simulation::find_token(token)->read(plane);
    }
    panel.frame();
  }

  template <class Condition>
  void run_until(Condition condition, const char* what) {
    constexpr int patience = 18 * 300;
    for (int i = 0; i < patience && !condition(); ++i) frame();
    EXPECT_TRUE(condition()) << what;
  }
  void run(double seconds) {
    for (int i = 0; i < seconds * 18; ++i) frame();
  }

  /// How far back and to the right of its stand it is, and where its nose points.
  double back_m() const {
    return host::simulation::stand_along_m -
           host::simulation::runway_axes(plane.flight.position_m).along_m;
  }
  double right_m() const {
    return host::simulation::runway_axes(plane.flight.position_m).right_m -
           host::simulation::stand_right_m;
  }
  double nose() const { return host.tokens.at(token::heading); }
  double speed_mps() const { return host::simulation::length(plane.flight.velocity_mps); }
};

TEST_F(Apron, ABackProgrammePushesItsDistanceStraightAndStops) {
  set("distance", 30);
  panel.click("automatic_button");
  panel.click("automatic_push_back");
  run(22);
  EXPECT_NEAR(back_m(), 0, 1e-6) << "the tug gets ready";
  run_until([&] { return tug.automatic == 0; }, "the programme ends");
  EXPECT_NEAR(frames / 18.0, 31 * 10000 / 512.0 / 18, 0.2);
  run(24);
  EXPECT_EQ(speed_mps(), 0) << "the tug holds it";
  EXPECT_NEAR(back_m(), 13.4, 1.0);
  EXPECT_NEAR(right_m(), 0, 1e-6);
  EXPECT_NEAR(nose(), 70, 1e-6);
}

TEST_F(Apron, ATurnProgrammePushesWaitsTurnsStraightensAndStops) {
  for (const auto& [side, sign, status] : {std::tuple{std::string("left"), 1, 5}, {"right", -1, 6}}) {
    SCOPED_TRACE(side);
    plane = host::simulation::Aircraft();
    tug = {};
    frames = 0;
    push_distance = 25, push_heading = 250;
    set(side + "_angle", 40);
    frame();
    panel.click("automatic_button");
    panel.click("automatic_push_" + side);
    run_until([&] { return shown("turn_light") == 0; }, "the straight part ends");
    run(4);
    EXPECT_EQ(speed_mps(), 0) << "it waits";
    EXPECT_EQ(shown("status_light"), 4);
    const double straight_m = back_m();
    EXPECT_NEAR(straight_m, 7, 1);
    panel.click("turn_button");
    run(10);
    EXPECT_EQ(shown("status_light"), status);
    EXPECT_GT(sign * (nose() - 70), 8.0) << "the nose goes the other way";
    run_until([&] { return tug.automatic == 1; }, "the turn ends");
    run_until([&] { return tug.automatic == 0; }, "the programme ends");
    run(4);
    EXPECT_EQ(speed_mps(), 0);
    EXPECT_EQ(tug.turning + tug.left.armed + tug.right.armed, 0u);
    EXPECT_NEAR(nose(), 70 + sign * 40, 1.0);
    // On a circle of 32 m, then 9.5 m and the way to a stop in the new direction.
    const double angle = std::numbers::pi * 40 / 180;
    EXPECT_NEAR(back_m() - straight_m, 32.1 * std::sin(angle) + 10.9 * std::cos(angle), 1.0);
    EXPECT_LT(sign * right_m(), -7.0) << "the tail's side";
  }
}

TEST_F(Apron, BrakesStopThePushAndSendTheTugAway) {
  panel.click("manual_button");
  panel.right_click("manual_push_back");
  run(10);
  EXPECT_NEAR(speed_mps(), 1.3, 1e-9);
  plane.controls.parking_brake_set = true;
  run(3);
  EXPECT_LT(speed_mps(), 0.01);
  EXPECT_FALSE(plane.tug.coupled);
  panel.right_click("manual_push_back");
  run(3);
  EXPECT_LT(speed_mps(), 0.01) << "not against the brakes";
  plane.controls.parking_brake_set = false;
  panel.right_click("manual_push_left");
  run(10);
  EXPECT_GT(nose(), 78.0);
  panel.right_click("manual_push_back");
  run(3);
  EXPECT_EQ(speed_mps(), 0) << "a call while it moves stops it";
}

}  // namespace
