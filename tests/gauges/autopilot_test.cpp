/// Autopilot panels: what the crew turns and presses, what the host hears of it, and what the lamps say.
#include <gtest/gtest.h>

#include <utility>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;
using rig::Events;

class Autopilot : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge control{"Apcon"}, mode{"Apmode"}, engage{"Apset"};

  /// What the host hears of one click.
  Events sent(rig::Gauge& panel, const char* part) {
    host.events.clear();
    panel.click(part);
    return std::exchange(host.events, {});
  }
  /// One event with the value 0, or for 0 none.
  static Events only(u32 event, std::size_t times = 1) {
    return Events(event != 0 ? times : 0, {event, 0});
  }
};

TEST_F(Autopilot, TheSelectorIsHeardWhileTheAutopilotIsEngaged) {
  struct Move {
    u32 master, from, to, event, hold, arm;  // hold and arm were on
  };
  for (const Move& move :
       {Move{1, 1, 0, 0x1011B, 1, 1}, Move{1, 0, 1, 0, 0, 0}, Move{1, 2, 1, 0, 0, 0},
        Move{1, 1, 2, 0, 1, 0}, Move{1, 3, 2, 0, 1, 0}, Move{1, 2, 3, 0x10113, 0, 1},
        Move{1, 4, 3, 0x10113, 0, 1}, Move{1, 3, 4, 0x1011B, 1, 1}, Move{1, 5, 4, 0x1011B, 1, 1},
        Move{1, 4, 5, 0x10113, 0, 0}, Move{0, 2, 3, 0, 1, 1}, Move{0, 4, 5, 0, 1, 1},
        Move{0, 1, 0, 0, 1, 1}, Move{1, 0, 0, 0, 1, 1}, Move{1, 5, 5, 0, 1, 1}}) {
    SCOPED_TRACE(testing::Message() << move.from << " to " << move.to);
    aircraft.ap_master_on = move.master;
    aircraft.ap_mode_selector = move.from;
    aircraft.ap_sel2_hold_on = aircraft.ap_sel3_arm_on = 1;
    const bool up = move.to > move.from || move.to == 5;
    EXPECT_EQ(sent(mode, up ? "mode_selector_up" : "mode_selector_down"), only(move.event));
    EXPECT_EQ(aircraft.ap_mode_selector, move.to);
    EXPECT_EQ(aircraft.ap_sel2_hold_on, move.hold);
    EXPECT_EQ(aircraft.ap_sel3_arm_on, move.arm);
  }
}

TEST_F(Autopilot, AnArmedApproachCapturesTheGlideSlope) {
  struct Row {
    f64 bits, signal;
    u32 selector, arm, image, event, hold;
  };
  for (const Row& row : {Row{0xC0, 1, 3, 1, 4, 0x1010E, 0}, Row{0xC0, 1, 3, 0, 3, 0x10116, 1},
                         Row{0x40, 0.99, 3, 1, 3, 0x10116, 1}, Row{0x40, 1, 4, 1, 4, 0x10116, 1},
                         Row{0x40, 1, 2, 1, 2, 0x10116, 1}, Row{0x80, 1, 3, 1, 3, 0, 1}}) {
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
    EXPECT_EQ(host.events, only(row.event, 2)) << "in every frame";
  }
}

TEST_F(Autopilot, EachButtonEngagesOnlyWhereItCan) {
  struct Press {
    const char* button;
    u32 Aircraft::*flag;
    u32 master, selector, throttle, before, event, after;
  };
  constexpr auto arm = &Aircraft::ap_sel3_arm_on, hold = &Aircraft::ap_sel2_hold_on,
                 speed = &Aircraft::apset_button_b_on;
  for (const Press& press : {Press{"approach_button", arm, 1, 3, 0, 0, 0x1010D, 1},
                             Press{"approach_button", arm, 1, 3, 0, 1, 0x10115, 0},
                             Press{"approach_button", arm, 1, 2, 0, 0, 0x10115, 0},
                             Press{"approach_button", arm, 0, 3, 0, 0, 0x10115, 0},
                             Press{"heading_hold_button", hold, 1, 2, 0, 0, 0x1010F, 1},
                             Press{"heading_hold_button", hold, 1, 2, 0, 1, 0x10117, 0},
                             Press{"heading_hold_button", hold, 1, 3, 0, 0, 0x10117, 0},
                             Press{"heading_hold_button", hold, 0, 2, 0, 0, 0x10117, 0},
                             Press{"airspeed_hold_button", speed, 0, 0, 1, 0, 0x1022D, 1},
                             Press{"airspeed_hold_button", speed, 0, 0, 1, 1, 0x1022E, 0},
                             Press{"airspeed_hold_button", speed, 1, 0, 0, 0, 0x1022E, 0}}) {
    aircraft.ap_master_on = press.master;
    aircraft.ap_mode_selector = press.selector;
    aircraft.apset_button_a_on = press.throttle;
    aircraft.*press.flag = press.before;
    EXPECT_EQ(sent(engage, press.button), only(press.event)) << press.button << press.selector;
    EXPECT_EQ(aircraft.*press.flag, press.after) << press.button << press.selector;
  }
}

TEST_F(Autopilot, TheAutothrottleTakesItsSpeedHoldAlong) {
  for (const auto& [events, lit] :
       {std::pair{Events{{0x10144, 0}}, 2}, {{{0x1022E, 0}, {0x10144, 0}}, 0}}) {
    EXPECT_EQ(sent(engage, "autothrottle_button"), events);
    if (lit > 0) engage.click("airspeed_hold_button");
    engage.frame();
    EXPECT_EQ(engage.value("autothrottle_button") + engage.value("airspeed_hold_button"), lit);
  }
}

/// The host's word goes before the click.
TEST_F(Autopilot, WhatTheHostEngagesTheLampsFollow) {
  for (const f64 engaged : {0.0, 1.5, 2.0}) {
    host.tokens = {{103, engaged}, {106, engaged}, {108, engaged}};
    aircraft.ap_master_on = aircraft.ap_sel2_hold_on = aircraft.ap_mode_button_on = engaged != 1.5;
    for (rig::Gauge* panel : {&control, &engage, &mode}) panel->frame();
    for (const f64 shown :
         {control.value("autopilot_master_switch"), engage.value("autopilot_master_button"),
          engage.value("heading_hold_button"), mode.value("altitude_hold_switch"),
          f64{1} * aircraft.ap_master_on, f64{1} * aircraft.ap_mode_button_on}) {
      EXPECT_EQ(shown, engaged == 1.5) << engaged;
    }
  }
  for (const auto& [selector, lit] : {std::pair{2u, 0.0}, {3u, 1.0}, {4u, 0.0}}) {
    aircraft.ap_mode_selector = selector;
    aircraft.ap_sel3_arm_on = 1;
    engage.frame();
    EXPECT_EQ(engage.value("approach_button"), lit) << selector;
  }
}

TEST(AutopilotControls, AskTheHost) {
  struct Row {
    const char *gauge, *control;
    Events events;
  };
  for (const Row& row :
       {Row{"Apcon", "autopilot_master_switch", {{0x1002C, 0}}},
        Row{"Apcon", "yaw_damper_switch", {{0x10101, 0}}}, Row{"Apcon", "door_switch", {{0x10355, 0}}},
        Row{"Apcon", "mach_trim_switch", {}}, Row{"Apcon", "stabiliser_trim_switch", {}},
        Row{"Apset", "autopilot_master_button", {{0x1002C, 0}}},
        Row{"Apmode", "altitude_hold_switch", {{0x10110, 0}}},
        Row{"Apmode", "selected_speed_knob_down", {{0x10169, 1}}},
        Row{"Apmode", "selected_speed_knob_up", {{0x10168, 1}}},
        Row{"Apalt", "selected_altitude_knob_down", {{0x10165, 0}}},
        Row{"Apalt", "selected_altitude_knob_up", {{0x10164, 0}}},
        Row{"Apcourse", "selected_heading_knob_down", {{0x10158, 1}}},
        Row{"Apcourse", "selected_heading_knob_up", {{0x10157, 1}}},
        Row{"Apcourse", "vertical_speed_thumb_wheel_down", {{0x10167, 1}}},
        Row{"Apcourse", "vertical_speed_thumb_wheel_up", {{0x10166, 1}}},
        Row{"Apcourse", "navigation_source_button", {{0x10347, 0}}}}) {
    rig::Host host;
    rig::Gauge gauge(row.gauge), engage("Apset");
    gauge.click(row.control);
    EXPECT_EQ(host.events, row.events) << row.control;
    engage.frame();
    const std::string_view name = row.control;
    EXPECT_EQ(engage.value("mach_trim_lamp"), name == "mach_trim_switch");
    EXPECT_EQ(engage.value("stabiliser_trim_lamp"), name == "stabiliser_trim_switch");
    if (name != "altitude_hold_switch") continue;
    gauge.click(row.control);
    EXPECT_EQ(host.events.back(), std::pair(0x10118u, 0u));
  }
}

TEST_F(Autopilot, TheTestSwitchSpringsBack) {
  for (const auto& [half, image] : {std::pair{"test_switch_1", 1.0}, {"test_switch_2", 2.0}}) {
    host.tokens[604] = 100;
    control.click(half);
    for (const auto& [clock, shown] : {std::pair{102.9, image}, {85.0, image}, {103.0, 0.0}}) {
      host.tokens[604] = clock;
      control.frame();
      EXPECT_EQ(control.value("test_switch"), shown) << half << " at " << clock;
    }
  }
}

TEST(AutopilotReadOuts, ShowTheHostsSelections) {
  struct Row {
    const char *gauge, *part;
    u32 token;
    f64 selected, shown;
  };
  for (const Row& row :
       {Row{"Apmode", "selected_speed_hundreds", 116, 245, 2},
        Row{"Apmode", "selected_speed_tens", 116, -35, -3},
        Row{"Apmode", "selected_speed_units", 116, 245, 5},
        Row{"Apcourse", "selected_heading_hundreds", 107, 359.5, 3},
        Row{"Apcourse", "selected_heading_tens", 107, 359.5, 5},
        Row{"Apcourse", "selected_heading_units", 107, 359.5, 9.5},
        Row{"Apcourse", "vertical_speed_wheel", 120, 7000, 6200},
        Row{"Apcourse", "vertical_speed_wheel", 120, -6300, -6200},
        Row{"Apcourse", "vertical_speed_wheel", 120, -1200, -1200},
        Row{"Apalt", "ten_thousands_of_feet", 109, 12345, 1},
        Row{"Apalt", "thousands_of_feet", 109, 12345, 2},
        Row{"Apalt", "hundreds_of_feet", 109, 12345, 345}, Row{"Apalt", "power_flag", 364, 1, 1},
        Row{"Aplight", "autopilot_lamp", 103, 1, 1}}) {
    rig::Host host;
    rig::Gauge gauge(row.gauge);
    host.tokens[row.token] = row.selected;
    gauge.frame();
    EXPECT_EQ(gauge.value(row.part), row.shown) << row.part << row.selected;
  }
}

class CategoryTwo : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Cat2apsys"};

  /// What the lamps show, arm, localizer, glide slope, speed and altitude; both columns say the same.
  std::string shown() {
    panel.frame();
    std::string images;
    for (const std::string lamp : {"arm_lamp", "localizer_lamp", "glide_slope_lamp"}) {
      EXPECT_EQ(panel.value("left_" + lamp), panel.value("right_" + lamp));
      images += static_cast<char>('0' + panel.value("left_" + lamp));
    }
    for (const char* lamp : {"speed_lamp", "altitude_lamp"})
      images += static_cast<char>('0' + panel.value(lamp));
    return images;
  }
};

TEST_F(CategoryTwo, LampsFollowTheApproach) {
  struct Row {
    u32 selector, arm;
    f64 bits, signal;
    const char* lamps;
  };
  for (const Row& row :
       {Row{3, 1, 0xC0, 1, "12200"}, Row{3, 1, 0xC0, 0.5, "01100"}, Row{3, 1, 0x80, 1, "02000"},
        Row{3, 1, 0x40, 1, "10200"}, Row{4, 1, 0xC0, 1, "10200"}, Row{5, 1, 0xC0, 0, "00100"},
        Row{2, 1, 0xC0, 1, "00000"}, Row{3, 0, 0xC0, 1, "00000"}}) {
    aircraft.ap_mode_selector = row.selector;
    aircraft.ap_sel3_arm_on = row.arm;
    host.tokens = {{46, row.bits}, {44, row.signal}};
    EXPECT_EQ(shown(), row.lamps) << row.selector << row.arm << ' ' << row.bits;
  }
}

TEST_F(CategoryTwo, SpeedAndAltitudeAreWatchedWhileTheyAreHeld) {
  struct Row {
    u32 throttle, speed_hold, altitude_hold;
    f64 speed, altitude;
    const char* lamps;
  };
  for (const Row& row : {Row{1, 1, 1, 151, 4751, "00012"}, Row{1, 1, 1, 150, 4750, "00021"},
                         Row{1, 1, 1, 130, 5249, "00022"}, Row{1, 1, 1, 129, 5250, "00011"},
                         Row{1, 0, 0, 151, 0, "00000"}, Row{0, 1, 0, 151, 0, "00000"}}) {
    aircraft.apset_button_a_on = row.throttle, aircraft.apset_button_b_on = row.speed_hold;
    aircraft.ap_mode_button_on = row.altitude_hold;
    host.tokens = {{116, 140}, {61, row.speed}, {109, 5000}, {74, row.altitude}};
    EXPECT_EQ(shown(), row.lamps) << row.speed << ' ' << row.altitude;
  }
}

TEST_F(CategoryTwo, EachTestLightsEveryLampInItsColour) {
  f64& clock = host.tokens[604];
  panel.click("green_test_button");
  EXPECT_EQ(shown(), "12222");
  clock += 2;
  panel.click("amber_test_button");
  clock += 2;
  EXPECT_EQ(shown(), "11121") << "both, for one prolongs the other";
  clock += 1;
  EXPECT_EQ(shown(), "00000");
  panel.click("amber_test_button");
  EXPECT_EQ(shown(), "01111");
  EXPECT_EQ(rig::sounds_requested(), 0);
}

TEST_F(CategoryTwo, TheSpeedTestIsSeenOnThreePanels) {
  rig::Gauge airspeed("Airspeed"), engage("Apset");
  panel.frame();
  host.tokens[604] = 200;
  panel.click("speed_lamp_test");
  for (const auto& [clock, flaps, lamps, pointer] : {std::tuple{200.0, 0.0, "00010", 145.0},
                                                     {202.0, 4000.0, "00000", 145.0},
                                                     {203.0, 0.0, "00000", 120.0}}) {
    host.tokens = {{604, clock}, {328, flaps}, {116, 120}};
    EXPECT_EQ(shown(), lamps) << clock;
    airspeed.frame(), engage.frame();
    EXPECT_EQ(airspeed.value("selected_speed"), pointer) << clock;
    EXPECT_EQ(engage.value("airspeed_hold_button"), pointer == 145) << clock;
  }
}

}  // namespace
