/// Panel and cockpit lighting: knobs and switches in, light states, windows and overlays out.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Lighting : public testing::Test {
 protected:
  rig::Host host;
};

TEST_F(Lighting, KnobsStopAtTheirEndsAndStillClick) {
  struct Row {
    const char* gauge;
    PanelPoint down, up;
  };
  for (const Row& row : {Row{"Cainstlg", {51, 21}, {73, 21}}, Row{"Foinstlg", {10, 17}, {32, 17}}}) {
    rig::Gauge panel(row.gauge);
    for (const u32 level : {1u, 2u, 2u}) {
      panel.click(row.up.x, row.up.y);
      EXPECT_EQ(aircraft.instrument_light_level, level) << row.gauge;
      EXPECT_TRUE(rig::heard(click_sound_request)) << row.gauge;
    }
    for (const u32 level : {1u, 0u, 0u}) {
      panel.click(row.down.x, row.down.y);
      EXPECT_EQ(aircraft.instrument_light_level, level) << row.gauge;
      EXPECT_TRUE(rig::heard(click_sound_request)) << row.gauge;
    }
  }
}

TEST_F(Lighting, OverlayShowsTheLevelAndNothingElse) {
  rig::Gauge meters("Gendrive");
  for (const u32 level : {0u, 1u, 2u, 3u, 0xFFFFFFFFu}) {
    aircraft.instrument_light_level = level;
    meters.frame();
    EXPECT_EQ(meters.value(450), level <= 2 ? level : 0);
  }
}

TEST_F(Lighting, PanelLightSwitchSwapsThePilotsOwnWindows) {
  host.flips(event::panel_lights_toggle, token::panel_lights);
  struct Row {
    const char* gauge;
    PanelPoint control;
    u32 day, night;
  };
  for (const Row& row : {Row{"Cainstlg", {14, 70}, 20, 27}, Row{"Foinstlg", {61, 62}, 21, 28}}) {
    rig::Gauge panel(row.gauge);
    host.windows.clear();
    panel.click(row.control.x, row.control.y);
    EXPECT_EQ(aircraft.panel_lights_on, 1u);
    panel.frame();
    EXPECT_EQ(panel.value(13310), 1) << row.gauge;
    panel.click(row.control.x, row.control.y);
    EXPECT_EQ(aircraft.panel_lights_on, 0u);
    const rig::WindowCalls expected{{'o', row.night}, {'c', row.day}, {'o', row.day}, {'c', row.night}};
    EXPECT_EQ(host.windows, expected) << row.gauge;
    EXPECT_TRUE(rig::heard(click_sound_request));
  }
  EXPECT_EQ(host.events, rig::Events(4, {0x100D6, 0}));
}

TEST_F(Lighting, OnlyTheCaptainsSwitchTakesTheHostsLightsOver) {
  rig::Gauge captain("Cainstlg"), first_officer("Foinstlg");
  host.tokens[token::panel_lights] = 1;
  first_officer.frame();
  EXPECT_EQ(first_officer.value(13310), 1);
  EXPECT_EQ(aircraft.panel_lights_on, 0u);
  captain.frame();
  EXPECT_EQ(aircraft.panel_lights_on, 1u);
}

TEST_F(Lighting, LightSwitchesSendTheirEventAndFollowTheHost) {
  struct Row {
    const char* gauge;
    PanelPoint control;
    u32 event, token;
    i32 bitmap;
    int nth;
    SoundRequest sound;
  };
  const Row rows[] = {
      {"Lightsp", {2, 10}, 0x100D7, 14, 4310, 0, toggle_click_sound_request},
      {"Lightsp", {128, 3}, 0x10348, 620, 4260, 1, toggle_click_sound_request},
      {"Lightsp", {155, 3}, 0x102C0, 369, 4260, 0, toggle_click_sound_request},
      {"Lightspp", {83, 12}, 0x102BF, 368, 4260, 3, toggle_click_sound_request},
      {"Lightspp", {48, 12}, 0x1034B, 619, 4260, 2, toggle_click_sound_request},
      {"Lightspp", {15, 12}, 0x10018, 11, 4260, 1, toggle_click_sound_request},
      {"Lightspp", {133, 12}, 0x100D6, 10, 4260, 0, toggle_click_sound_request},
      {"Ovhmain", {281, 7}, 0x102BF, 368, 13230, 2, click_sound_request},
      {"Ovhmain", {245, 7}, 0x1034B, 619, 13230, 1, click_sound_request},
      {"Ovhmain", {209, 7}, 0x10018, 11, 13230, 0, click_sound_request},
      {"Ovhmain", {2, 2}, 0x100D7, 14, 13220, 0, toggle_click_sound_request},
      {"Ovhmain", {352, 2}, 0x102C0, 369, 13240, 0, toggle_click_sound_request},
  };
  for (const Row& row : rows) {
    rig::Gauge panel(row.gauge);
    host.flips(row.event, row.token);
    host.events.clear();
    for (const f64 expected : {1.0, 0.0}) {
      panel.click(row.control.x, row.control.y);
      panel.frame();
      EXPECT_EQ(panel.value(row.bitmap, row.nth), expected) << row.gauge << " token " << row.token;
    }
    EXPECT_EQ(host.events, rig::Events(2, {row.event, 0})) << row.gauge;
    EXPECT_TRUE(rig::heard(row.sound)) << row.gauge;
  }
  EXPECT_TRUE(host.windows.empty()) << "the pedestal's panel-light switch leaves the windows alone";
}

TEST_F(Lighting, ThreeGangSwitchMovesAsOne) {
  rig::Gauge panel("Lightsp");
  host.tokens[token::landing_lights] = 1;
  panel.frame();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(panel.value(4310, i), 1);
}

TEST_F(Lighting, FireTestNeedsPowerAndEndsOnASecondPress) {
  rig::Gauge panel("Lightsp");
  aircraft.fire_test_active = 1;
  panel.click(90, 25);
  EXPECT_EQ(aircraft.fire_test_active, 0u) << "without power a press ends the test";
  aircraft.dc_power_on = 1;
  host.tokens[token::clock_seconds] = 250.8;
  panel.click(90, 25);
  EXPECT_EQ(aircraft.fire_test_active, 1u);
  EXPECT_EQ(aircraft.fire_test_clock, 250u);
  EXPECT_EQ(aircraft.fire_test_deadline, 252u);
  panel.click(90, 25);
  EXPECT_EQ(aircraft.fire_test_active, 0u);
  EXPECT_EQ(rig::sounds_requested(), 0);
}

}  // namespace
