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
    host.sent();
    panel.click(part);
    return host.sent();
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
    mode.frame();
    mode.expect({{"mode_selector", row.image}});
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
    engage.expect({{"approach_button", lit}});
  }
}

TEST_F(Autopilot, TrimLampsFollowTheirSwitches) {
  for (const std::string trim : {"mach_trim", "stabiliser_trim"}) {
    for (const f64 on : {1, 0}) {
      control.click(trim + "_switch");
      engage.expect(
          {{trim + "_lamp", on}, {trim == "mach_trim" ? "stabiliser_trim_lamp" : "mach_trim_lamp", 0}});
    }
  }
  mode.click("altitude_hold_switch"), mode.click("altitude_hold_switch");
  EXPECT_EQ(host.events, (Events{{0x10110, 0}, {0x10118, 0}})) << "the trims send nothing";
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
  panel.click("green_test_button");
  EXPECT_EQ(shown(), "12222");
  panel.click("amber_test_button");
  EXPECT_EQ(shown(), "11121") << "both";
  host.tokens[604] += 3;
  EXPECT_EQ(shown(), "00000");
  panel.click("amber_test_button");
  EXPECT_EQ(shown(), "01111");
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
    airspeed.expect({{"selected_speed", pointer}});
    engage.expect({{"airspeed_hold_button", pointer == 145}});
  }
}

}  // namespace
