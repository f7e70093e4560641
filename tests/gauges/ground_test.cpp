/// Gear, flaps, trims and the gust lock; and the pushback, with a real aircraft at the tug.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>
#include <set>

#include "gauges/controls/pushback_programmes.h"
#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"
#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;
using rig::Events;

/// The calls that a change of one token from frame to frame brings, and no other one.
void expect_calls(const char* gauge, u32 token, f64 from, f64 to, std::set<SoundRequest> sounds) {
  for (const u32 enabled : {0u, 1u}) {
    rig::Host host;
    rig::Gauge panel(gauge);
    host.tokens[token] = from;
    panel.service(SERVICE_BEGIN);
    aircraft.fo_callouts_enabled = enabled;
    host.tokens[token] = to;
    panel.frame();
    for (const SoundRequest sound : sounds) {
      EXPECT_EQ(rig::heard(sound), enabled == 1) << gauge << ' ' << from << " to " << to;
    }
    EXPECT_EQ(rig::sounds_requested(), 0) << gauge << ' ' << from << " to " << to;
    aircraft.fo_callouts_enabled = 1;
    panel.frame();
    EXPECT_EQ(rig::sounds_requested(), 0) << "a call is neither repeated nor made up for";
  }
}

TEST(Calls, FollowTheFlapLeverAndTheNoseGear) {
  struct Row {
    f64 from, to;
    std::set<SoundRequest> sounds;
  };
  for (const Row& row :
       {Row{3277, 0, {flaps00_sound_request}}, Row{0, 3277, {flaps06_sound_request}},
        Row{3000, 3100, {flaps06_sound_request}}, Row{3277, 6554, {flaps11_sound_request}},
        Row{0, 9831, {flaps18_sound_request}}, Row{0, 13108, {flaps25_sound_request}},
        Row{0, 16384, {flaps42_sound_request}}, Row{0, 13651, {flaps42_sound_request}},
        Row{3277, 1, {}}, Row{0, 2730, {}}, Row{0, 5460, {}}, Row{0, 8190, {}}, Row{0, 10920, {}},
        Row{0, 13650, {}}, Row{3277.2, 3277.9, {}}, Row{3277, -5, {}}}) {
    expect_calls("Flapind", token::flap_position, row.from, row.to, row.sounds);
  }
  for (const Row& row :
       {Row{9000, 0, {gearu_sound_request}}, Row{9000, 16383, {geard_sound_request}},
        Row{9000, 0.9, {gearu_sound_request}}, Row{0, 16382.9, {}}, Row{0, 16384, {}}}) {
    expect_calls("Gear", token::nose_gear_position, row.from, row.to, row.sounds);
  }
}

TEST(Gear, TheLeverSendsWhatItHasNotSentYetAndShowsTheAircraftsOwn) {
  rig::Host host;
  rig::Gauge panel("Gear");
  panel.click("set_gear_down");  // wherever another test left it
  host.events.clear();
  struct Row {
    const char* click;
    Events sent;
    f64 lever, image;
  };
  for (const Row& row :
       {Row{"set_gear_down", {}, 16383, 0}, Row{"set_gear_up", {{event::gear_up, 0}}, 0, 2},
        Row{"set_gear_up", {}, 16000, 2}, Row{"set_gear_neutral", {}, 0, 1},
        Row{"set_gear_down", {{event::gear_down, 0}}, 16001, 0}, Row{"set_gear_neutral", {}, 16383, 1},
        Row{"set_gear_up", {{event::gear_up, 0}}, 16383, 0}}) {
    panel.click(row.click);
    EXPECT_EQ(host.events, row.sent) << row.click;
    host.events.clear();
    host.tokens[token::gear_lever] = row.lever;
    panel.frame();
    EXPECT_EQ(panel.value("gear_handle"), row.image) << row.click;
  }
}

TEST(Gear, EachLegHasItsOwnLights) {
  rig::Host host;
  rig::Gauge panel("Gearind");
  const std::map<std::string, u32> legs{{"left", token::left_gear_position},
                                        {"nose", token::nose_gear_position},
                                        {"right", token::right_gear_position}};
  for (const auto& [moved, token] : legs) {
    for (const f64 reading : {0.0, 99.0, 99.9, 100.0, 9000.0, 16000.0, 16000.5, 16383.0}) {
      host.tokens.clear();
      host.tokens[token] = reading;
      panel.frame();
      for (const rig::NamedPart& part : panel.parts()) {
        if (!part.name.ends_with("light")) continue;
        const bool lit = part.name.find("down") != std::string::npos
                             ? reading > 16000
                             : reading >= 100 && reading <= 16000;
        EXPECT_EQ(panel.value(part), part.name.starts_with(moved) && lit)
            << part.name << " with the " << moved << " leg at " << reading;
      }
    }
  }
}

TEST(Trim, ThePointerAndTheButtonsWork) {
  rig::Host host;
  rig::Gauge panel("Trim");
  host.tokens[token::rudder_trim] = -0.035;
  f64& clock = host.tokens[token::clock_seconds] = 1000.9;
  panel.click("pitch_trim_wheel_up");
  panel.click("pitch_trim_wheel_down");
  panel.click("rudder_trim_left");
  clock = 1001.5;
  panel.click("rudder_trim_right");
  EXPECT_EQ(host.events, (Events{{65607, 1}, {65615, 1}, {66278, 1}, {66279, 1}}));
  for (const auto& [seconds, image] :
       {std::pair{1001.5, 1}, {1002.9, 1}, {1003.0, 2}, {1003.9, 2}, {1004.0, 0}}) {
    clock = seconds;
    panel.frame();
    EXPECT_EQ(panel.value("rudder_trim_buttons"), image) << seconds;
  }
  EXPECT_NEAR(panel.value("rudder_trim_pointer"), -0.35, 1e-9);
}

TEST(Stabiliser, EachReadOutRestsWhileItIsSwitchedOff) {
  rig::Host host;
  rig::Gauge panel("Stabind");
  host.tokens = {{token::bank_pointer, 20}, {token::stabiliser, 0.4}, {token::aileron_trim, -0.2}};
  struct Row {
    const char *button, *part;
    f64 shown;
  };
  for (const Row& row :
       {Row{"bank_button", "bank_wings", 340}, Row{"stabiliser_button", "stabiliser_pointer", 0.4},
        Row{"aileron_trim_button", "aileron_trim_pointer", -0.2}}) {
    for (const f64 on : {0.0, 1.0}) {
      panel.frame();
      EXPECT_EQ(panel.value(row.button), on);
      EXPECT_EQ(panel.value(row.part), on * row.shown) << row.part;
      panel.click(row.button);
    }
  }
}

// ---- Pushback

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
  f64 shown(const char* part) const { return panel.value(part); }
};

TEST_F(Pushback, SettingsStopAtTheirLimitsAndAnglesExcludeEachOther) {
  struct Row {
    const char* setting;
    u32 limit;
    const char *nine, *top;
  };
  for (const Row& row :
       {Row{"distance_setting", 99, "09", "99"}, Row{"heading_setting", 360, "009", "360"},
        Row{"left_angle_setting", 90, "09", "90"}, Row{"right_angle_setting", 90, "09", "90"}}) {
    const std::string up = std::string(row.setting) + "_up", down = std::string(row.setting) + "_down";
    const auto expect = [&](const char* text) {
      panel.frame();
      EXPECT_EQ(panel.text(row.setting), text) << row.setting;
    };
    panel.click(down);
    for (int i = 0; i < 9; ++i) panel.click(up);
    panel.right_click(down);
    expect(row.nine);  // ten less is not taken
    panel.click(up, MOUSE_LEFT | MOUSE_RIGHT);
    panel.click(down, MOUSE_LEFT | MOUSE_RIGHT);
    expect(row.nine);
    for (u32 i = 0; i < row.limit; ++i) panel.right_click(up);
    for (int i = 0; i < 12; ++i) panel.click(up);
    expect(row.top);
  }
  panel.frame();
  EXPECT_EQ(panel.text("left_angle_setting"), "00") << "taken back by the other side's";
  panel.click("right_angle_setting_up");
  panel.click("left_angle_setting_down");
  panel.frame();
  EXPECT_EQ(panel.text("right_angle_setting"), "90") << "a click at a limit is no step";
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
      host.events.clear();
      panel.right_click(button);
      EXPECT_EQ(host.events, manual ? sent : nothing) << button;
    }
    panel.frame();
    EXPECT_EQ(shown("status_light"), manual ? 7 : 0);
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
    host.events.clear();
    panel.frame();
    EXPECT_EQ(host.events.size(), progress > 40 ? 2u : progress > 20 ? 1u : 0u) << progress;
    if (status.contains(progress)) {
      EXPECT_EQ(shown("status_light"), status.at(progress)) << progress;
    }
    if (light.contains(progress)) {
      EXPECT_EQ(shown("back_programme_light"), light.at(progress)) << progress;
    }
  }
  host.tokens[token::parking_brake] = 1;
  panel.frame();
  EXPECT_EQ(shown("status_light"), 1);
}

/// The panel at 18 frames a second and the aircraft behind it.
class Apron : public Pushback {
 protected:
  host::simulation::Aircraft plane;
  int frames = 0;

  void frame() {
    for (const auto& [event, value] : host.events) {
      host::simulation::find_event(event)->apply(plane, value);
    }
    host.events.clear();
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
  run(4);
  EXPECT_EQ(speed_mps(), 0);
  EXPECT_NEAR(back_m(), 13.4, 1.0);
  EXPECT_NEAR(right_m(), 0, 1e-6);
  EXPECT_NEAR(nose(), 70, 1e-6);
  const double stopped_m = back_m();
  run(20);
  EXPECT_EQ(back_m(), stopped_m) << "the tug holds it";
}

struct Turn {
  const char *side, *programme, *angle;
  double sign;
  f64 status;
};

TEST_F(Apron, ATurnProgrammePushesWaitsTurnsStraightensAndStops) {
  for (const Turn& turn : {Turn{"left", "automatic_push_left", "left_angle", 1, 5},
                           Turn{"right", "automatic_push_right", "right_angle", -1, 6}}) {
    SCOPED_TRACE(turn.side);
    plane = host::simulation::Aircraft();
    tug = {};
    frames = 0;
    push_distance = 25, push_heading = 250;
    set(turn.angle, 40);
    frame();
    panel.click("automatic_button");
    panel.click(turn.programme);
    run_until([&] { return shown("turn_light") == 0; }, "the straight part ends");
    run(4);
    EXPECT_EQ(speed_mps(), 0) << "it waits";
    EXPECT_EQ(shown("status_light"), 4);
    const double straight_m = back_m();
    EXPECT_NEAR(straight_m, 7, 1);
    panel.click("turn_button");
    run(10);
    EXPECT_EQ(shown("status_light"), turn.status);
    EXPECT_GT(turn.sign * (nose() - 70), 8.0) << "the nose goes the other way";
    run_until([&] { return tug.automatic == 1; }, "the turn ends");
    run_until([&] { return tug.automatic == 0; }, "the programme ends");
    run(4);
    EXPECT_EQ(speed_mps(), 0);
    EXPECT_EQ(tug.turning + tug.left.armed + tug.right.armed, 0u);
    EXPECT_NEAR(nose(), 70 + turn.sign * 40, 1.0);
    // On a circle of 32 m, then 9.5 m and the way to a stop in the new direction.
    const double angle = std::numbers::pi * 40 / 180;
    EXPECT_NEAR(back_m() - straight_m, 32.1 * std::sin(angle) + 10.9 * std::cos(angle), 1.0);
    EXPECT_LT(turn.sign * right_m(), -7.0) << "the tail's side";
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
