/// Autopilot panels: what the crew turns and presses, what the host hears of it, and what the lamps say.
#include <gtest/gtest.h>

#include <utility>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;
using Sent = std::vector<u32>;

class Autopilot : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge mode{"Apmode"}, engage{"Apset"};

  /// The events of one click; each has the value 0, and is heard once.
  Sent sent(rig::Gauge& panel, const char* control, SoundRequest sound = click_sound_request) {
    host.events.clear();
    panel.click(control);
    EXPECT_TRUE(rig::heard(sound)) << control;
    Sent numbers;
    for (const auto& [event, value] : std::exchange(host.events, {})) {
      EXPECT_EQ(value, 0u) << event;
      numbers.push_back(event);
    }
    return numbers;
  }
};

TEST_F(Autopilot, TheSelectorIsHeardWhileTheAutopilotIsEngaged) {
  struct Move {
    u32 master, from, to;
    Sent events;
    u32 hold, arm;  // both were on
  };
  for (const Move& move :
       {Move{1, 1, 0, {0x1011B}, 1, 1}, Move{1, 0, 1, {}, 0, 0}, Move{1, 2, 1, {}, 0, 0},
        Move{1, 1, 2, {}, 1, 0}, Move{1, 3, 2, {}, 1, 0}, Move{1, 2, 3, {0x10113}, 0, 1},
        Move{1, 4, 3, {0x10113}, 0, 1}, Move{1, 3, 4, {0x1011B}, 1, 1}, Move{1, 5, 4, {0x1011B}, 1, 1},
        Move{1, 4, 5, {0x10113}, 0, 0}, Move{0, 2, 3, {}, 1, 1}, Move{0, 4, 5, {}, 1, 1},
        Move{0, 1, 0, {}, 1, 1}}) {
    SCOPED_TRACE(testing::Message() << move.from << " to " << move.to);
    aircraft.ap_master_on = move.master;
    aircraft.ap_mode_selector = move.from;
    aircraft.ap_sel2_hold_on = aircraft.ap_sel3_arm_on = 1;
    EXPECT_EQ(sent(mode, move.to > move.from ? "mode_selector_up" : "mode_selector_down"), move.events);
    EXPECT_EQ(aircraft.ap_mode_selector, move.to);
    EXPECT_EQ(aircraft.ap_sel2_hold_on, move.hold);
    EXPECT_EQ(aircraft.ap_sel3_arm_on, move.arm);
  }
  for (const auto& [end, control] : {std::pair{0u, "mode_selector_down"}, {5u, "mode_selector_up"}}) {
    aircraft.ap_master_on = 1;
    aircraft.ap_mode_selector = end;
    EXPECT_EQ(sent(mode, control), Sent{}) << "it stays at its end";
    EXPECT_EQ(aircraft.ap_mode_selector, end);
  }
}

TEST_F(Autopilot, AnArmedApproachCapturesTheGlideSlope) {
  struct Row {
    f64 bits, signal;
    u32 selector, arm;
    f64 image;
    u32 event, hold;
  };
  for (const Row& row :
       {Row{0xC0, 1, 3, 1, 4, 0x1010E, 0}, Row{0xC0, 1, 3, 0, 3, 0x10116, 1},
        Row{0x40, 0.99, 3, 1, 3, 0x10116, 1}, Row{0x40, 1, 4, 1, 4, 0x10116, 1},
        Row{0x40, 1, 2, 1, 2, 0x10116, 1}, Row{0x80, 1, 3, 1, 3, 0, 1}, Row{0, 0, 5, 0, 5, 0, 1}}) {
    SCOPED_TRACE(testing::Message() << row.bits << ' ' << row.signal << " in " << row.selector);
    host.tokens = {{46, row.bits}, {44, row.signal}};
    host.events.clear();
    aircraft.ap_mode_selector = row.selector;
    aircraft.ap_sel3_arm_on = row.arm;
    aircraft.ap_sel2_hold_on = 1;
    mode.frame(2);
    EXPECT_EQ(mode.value("mode_selector"), row.image);
    EXPECT_EQ(aircraft.ap_mode_selector, row.selector);
    EXPECT_EQ(aircraft.ap_sel2_hold_on, row.hold);
    const rig::Events every_frame(row.event != 0 ? 2 : 0, {row.event, 0u});
    EXPECT_EQ(host.events, every_frame);
  }
}

TEST_F(Autopilot, EachButtonEngagesOnlyWhereItCan) {
  struct Press {
    const char* button;
    u32 Aircraft::*flag;
    u32 master, selector, thrust, before;  // thrust: the autothrottle is armed
    Sent events;
    u32 after;
  };
  constexpr auto arm = &Aircraft::ap_sel3_arm_on, hold = &Aircraft::ap_sel2_hold_on,
                 speed = &Aircraft::apset_button_b_on;
  for (const Press& press : {Press{"approach_button", arm, 1, 3, 0, 0, {0x1010D}, 1},
                             Press{"approach_button", arm, 1, 3, 0, 1, {0x10115}, 0},
                             Press{"approach_button", arm, 1, 2, 0, 0, {0x10115}, 0},
                             Press{"approach_button", arm, 0, 3, 0, 0, {0x10115}, 0},
                             Press{"heading_hold_button", hold, 1, 2, 0, 0, {0x1010F}, 1},
                             Press{"heading_hold_button", hold, 1, 2, 0, 1, {0x10117}, 0},
                             Press{"heading_hold_button", hold, 1, 3, 0, 0, {0x10117}, 0},
                             Press{"heading_hold_button", hold, 0, 2, 0, 0, {0x10117}, 0},
                             Press{"airspeed_hold_button", speed, 0, 0, 1, 0, {0x1022D}, 1},
                             Press{"airspeed_hold_button", speed, 0, 0, 1, 1, {0x1022E}, 0},
                             Press{"airspeed_hold_button", speed, 1, 0, 0, 0, {0x1022E}, 0}}) {
    SCOPED_TRACE(testing::Message() << press.button << " in " << press.selector);
    aircraft.ap_master_on = press.master;
    aircraft.ap_mode_selector = press.selector;
    aircraft.apset_button_a_on = press.thrust;
    aircraft.*press.flag = press.before;
    EXPECT_EQ(sent(engage, press.button), press.events);
    EXPECT_EQ(aircraft.*press.flag, press.after);
  }
}

TEST_F(Autopilot, TheAutothrottleTakesItsSpeedHoldAlong) {
  EXPECT_EQ(sent(engage, "autothrottle_button"), Sent{0x10144});
  engage.click("airspeed_hold_button");
  engage.frame();
  EXPECT_EQ(engage.value("autothrottle_button") + engage.value("airspeed_hold_button"), 2);
  EXPECT_EQ(sent(engage, "autothrottle_button"), (Sent{0x1022E, 0x10144}));
  engage.frame();
  EXPECT_EQ(engage.value("autothrottle_button") + engage.value("airspeed_hold_button"), 0);
}

/// The host's word goes before the click.
TEST_F(Autopilot, WhatTheHostEngagesTheLampsFollow) {
  rig::Gauge control("Apcon"), light("Aplight");
  EXPECT_EQ(sent(control, "autopilot_master_switch", toggle_click_sound_request), Sent{0x1002C});
  EXPECT_EQ(aircraft.ap_master_on, 1u);
  EXPECT_EQ(sent(engage, "autopilot_master_button"), Sent{0x1002C});
  EXPECT_EQ(aircraft.ap_master_on, 0u);
  EXPECT_EQ(sent(mode, "altitude_hold_switch", toggle_click_sound_request), Sent{0x10110});
  EXPECT_EQ(sent(mode, "altitude_hold_switch", toggle_click_sound_request), Sent{0x10118});
  for (const f64 engaged : {1.5, 2.0, 0.0}) {
    host.tokens = {{103, engaged}, {106, engaged}, {108, engaged}};
    aircraft.ap_master_on = aircraft.ap_sel2_hold_on = aircraft.ap_mode_button_on = engaged == 0;
    for (rig::Gauge* panel : {&control, &engage, &mode}) panel->frame();
    for (const f64 shown :
         {control.value("autopilot_master_switch"), engage.value("autopilot_master_button"),
          engage.value("heading_hold_button"), mode.value("altitude_hold_switch"),
          1.0 * aircraft.ap_master_on, 1.0 * aircraft.ap_sel2_hold_on,
          1.0 * aircraft.ap_mode_button_on}) {
      EXPECT_EQ(shown, engaged == 1.5) << engaged;
    }
  }
  aircraft.ap_mode_selector = 2;
  aircraft.ap_sel3_arm_on = 1;
  engage.frame();
  EXPECT_EQ(engage.value("approach_button"), 0) << "shown on the localizer alone";
}

TEST_F(Autopilot, SwitchesOfTheControlPanel) {
  rig::Gauge control("Apcon");
  for (const auto& [name, events] : {std::pair<const char*, Sent>{"door_switch", {0x10355}},
                                     {"yaw_damper_switch", {0x10101}},
                                     {"mach_trim_switch", {}},
                                     {"stabiliser_trim_switch", {}},
                                     {"channel_switch", {}}}) {
    control.frame();
    const f64 before = control.value(name);
    EXPECT_EQ(sent(control, name, toggle_click_sound_request), events) << name;
    control.frame();
    EXPECT_EQ(control.value(name), 1 - before) << name;
  }
  engage.frame();
  EXPECT_EQ(control.value("door_open_light"), 1);
  EXPECT_EQ(engage.value("mach_trim_lamp") + engage.value("stabiliser_trim_lamp"), 2);
}

TEST_F(Autopilot, TheTestSwitchSpringsBack) {
  rig::Gauge control("Apcon");
  for (const auto& [half, image] : {std::pair{"test_switch_1", 1.0}, {"test_switch_2", 2.0}}) {
    host.tokens[token::clock_seconds] = 100;
    control.click(half);
    for (const auto& [clock, shown] : {std::pair{102.9, image}, {85.0, image}, {103.0, 0.0}}) {
      host.tokens[token::clock_seconds] = clock;
      control.frame();
      EXPECT_EQ(control.value("test_switch"), shown) << half << " at " << clock;
    }
  }
}

TEST(AutopilotKnobs, TurnTheHostsSelections) {
  struct Row {
    const char *gauge, *knob;
    std::pair<u32, u32> event;
  };
  for (const Row& row : {Row{"Apmode", "selected_speed_knob_down", {0x10169, 1}},
                         Row{"Apmode", "selected_speed_knob_up", {0x10168, 1}},
                         Row{"Apalt", "selected_altitude_knob_down", {0x10165, 0}},
                         Row{"Apalt", "selected_altitude_knob_up", {0x10164, 0}},
                         Row{"Apcourse", "selected_heading_knob_down", {0x10158, 1}},
                         Row{"Apcourse", "selected_heading_knob_up", {0x10157, 1}},
                         Row{"Apcourse", "vertical_speed_wheel_down", {0x10167, 1}},
                         Row{"Apcourse", "vertical_speed_wheel_up", {0x10166, 1}},
                         Row{"Apcourse", "navigation_source_button", {0x10347, 0}}}) {
    rig::Host host;
    rig::Gauge gauge(row.gauge);
    gauge.click(row.knob);
    EXPECT_EQ(host.events, rig::Events{row.event}) << row.knob;
    EXPECT_EQ(aircraft.apcourse_switch_on, u32{row.event.first == 0x10347});
  }
}

TEST(AutopilotReadOuts, ShowTheHostsSelections) {
  struct Row {
    const char* gauge;
    u32 token;
    f64 selected;
    std::vector<std::pair<const char*, f64>> shown;
  };
  for (const Row& row : std::vector<Row>{
           {"Apmode",
            116,
            245,
            {{"selected_speed_hundreds", 2}, {"selected_speed_tens", 4}, {"selected_speed_units", 5}}},
           {"Apmode", 116, -35, {{"selected_speed_tens", -3}, {"selected_speed_units", -5}}},
           {"Apcourse",
            107,
            359.5,
            {{"selected_heading_hundreds", 3},
             {"selected_heading_tens", 5},
             {"selected_heading_units", 9.5}}},
           {"Apcourse", 120, 7000, {{"vertical_speed_wheel", 6200}}},
           {"Apcourse", 120, -1200, {{"vertical_speed_wheel", -1200}}},
           {"Apcourse", 120, -6300, {{"vertical_speed_wheel", -6200}}},
           {"Apalt",
            109,
            12345,
            {{"ten_thousands_of_feet", 1}, {"thousands_of_feet", 2}, {"hundreds_of_feet", 345}}},
           {"Apalt", 364, 1, {{"power_flag", 1}}},
           {"Aplight", 103, 1, {{"autopilot_lamp", 1}}}}) {
    rig::Host host;
    rig::Gauge gauge(row.gauge);
    host.tokens[row.token] = row.selected;
    gauge.frame();
    for (const auto& [part, value] : row.shown) EXPECT_EQ(gauge.value(part), value) << part;
  }
}

class CategoryTwo : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Cat2apsys"};

  /// What a lamp shows, in both columns where it has two.
  f64 shown(const std::string& lamp) {
    panel.frame();
    if (lamp == "speed" || lamp == "altitude") return panel.value(lamp + "_lamp");
    EXPECT_EQ(panel.value("left_" + lamp + "_lamp"), panel.value("right_" + lamp + "_lamp"));
    return panel.value("left_" + lamp + "_lamp");
  }
};

TEST_F(CategoryTwo, LampsFollowTheApproach) {
  struct Row {
    u32 selector, arm;
    f64 bits, signal, arm_lamp, localizer, glide_slope;
  };
  for (const Row& row :
       {Row{3, 1, 0xC0, 1, 1, 2, 2}, Row{3, 1, 0xC0, 0.5, 0, 1, 1}, Row{3, 1, 0x80, 1, 0, 2, 0},
        Row{3, 1, 0x40, 1, 1, 0, 2}, Row{4, 1, 0xC0, 1, 1, 0, 2}, Row{5, 1, 0xC0, 0, 0, 0, 1},
        Row{2, 1, 0xC0, 1, 0, 0, 0}, Row{3, 0, 0xC0, 1, 0, 0, 0}}) {
    SCOPED_TRACE(testing::Message() << row.selector << row.arm << ' ' << row.bits);
    aircraft.ap_mode_selector = row.selector;
    aircraft.ap_sel3_arm_on = row.arm;
    host.tokens = {{46, row.bits}, {44, row.signal}};
    EXPECT_EQ(shown("arm"), row.arm_lamp);
    EXPECT_EQ(shown("localizer"), row.localizer);
    EXPECT_EQ(shown("glide_slope"), row.glide_slope);
  }
}

TEST_F(CategoryTwo, SpeedAndAltitudeAreWatchedWhileTheyAreHeld) {
  for (const auto& [a, b, speed, image] : {std::tuple{1u, 1u, 151.0, 1.0},
                                           {1u, 1u, 150.0, 2.0},
                                           {1u, 1u, 130.0, 2.0},
                                           {1u, 1u, 129.0, 1.0},
                                           {1u, 0u, 151.0, 0.0},
                                           {0u, 1u, 140.0, 0.0}}) {
    aircraft.apset_button_a_on = a, aircraft.apset_button_b_on = b;
    host.tokens = {{116, 140}, {61, speed}};
    EXPECT_EQ(shown("speed"), image) << a << b << ' ' << speed;
  }
  for (const auto& [held, altitude, image] : {std::tuple{1u, 4751.0, 2.0},
                                              {1u, 4750.0, 1.0},
                                              {1u, 5249.0, 2.0},
                                              {1u, 5250.0, 1.0},
                                              {0u, 5000.0, 0.0}}) {
    aircraft.ap_mode_button_on = held;
    host.tokens = {{109, 5000}, {74, altitude}};
    EXPECT_EQ(shown("altitude"), image) << altitude;
  }
}

TEST_F(CategoryTwo, EachTestLightsEveryLampInItsColour) {
  const std::pair<std::string, std::array<f64, 3>> lamps[] = {// green, amber, both
                                                              {"arm", {1, 0, 1}},
                                                              {"localizer", {2, 1, 1}},
                                                              {"glide_slope", {2, 1, 1}},
                                                              {"speed", {2, 1, 2}},
                                                              {"altitude", {2, 1, 1}}};
  for (std::size_t which = 0; which < 3; ++which) {
    host.tokens[token::clock_seconds] += 100;
    if (which != 1) panel.click("green_test_button");
    host.tokens[token::clock_seconds] += 2;
    if (which != 0) panel.click("amber_test_button");
    for (const auto& [lamp, images] : lamps) EXPECT_EQ(shown(lamp), images[which]) << lamp << which;
    host.tokens[token::clock_seconds] += which == 0 ? 0 : 2;
    for (const auto& [lamp, images] : lamps) EXPECT_EQ(shown(lamp), images[which]) << lamp << which;
    host.tokens[token::clock_seconds] += 1;
    for (const auto& [lamp, images] : lamps) EXPECT_EQ(shown(lamp), 0) << lamp << which;
    EXPECT_EQ(rig::sounds_requested(), 0);
  }
}

TEST_F(CategoryTwo, TheSpeedTestIsSeenOnThreePanels) {
  rig::Gauge airspeed("Airspeed"), engage("Apset");
  for (const auto& [clock, flaps, lamp, pointer] :
       {std::tuple{100.0, 0.0, 1.0, 145.0}, {102.0, 4000.0, 0.0, 145.0}, {103.0, 0.0, 0.0, 120.0}}) {
    host.tokens = {{604, clock}, {328, flaps}, {116, 120}};
    if (clock == 100) panel.click("speed_lamp_test");
    EXPECT_EQ(shown("speed"), lamp) << clock;
    airspeed.frame(), engage.frame();
    EXPECT_EQ(airspeed.value("selected_speed"), pointer) << clock;
    EXPECT_EQ(engage.value("airspeed_hold_button"), pointer == 145) << clock;
  }
}

}  // namespace
