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

TEST_F(Lighting, BothKnobsTurnOneLevelThatEveryOverlayShows) {
  rig::Gauge captain("Cainstlg"), first_officer("Foinstlg");
  captain.click("instrument_lights_knob_up");
  EXPECT_EQ(aircraft.instrument_light_level, 1u);
  first_officer.click("instrument_lights_knob_up");
  for (rig::Gauge& gauge : rig::built_gauges()) {
    if (gauge.parts().empty() || gauge.parts().front().name != "instrument_lighting") continue;
    for (const u32 level : {2u, 0u, 1u, 3u, 0xFFFFFFFFu}) {
      if (level != 2) aircraft.instrument_light_level = level;
      gauge.frame();
      EXPECT_EQ(gauge.value("instrument_lighting"), level <= 2 ? level : 0) << gauge.header().name;
    }
    aircraft.instrument_light_level = 2;
  }
}

TEST_F(Lighting, PanelLightSwitchSwapsThePilotsOwnWindows) {
  host.follows = true;
  struct Row {
    const char* gauge;
    u32 day, night;
  };
  for (const Row& row : {Row{"Cainstlg", 20, 27}, Row{"Foinstlg", 21, 28}}) {
    rig::Gauge panel(row.gauge);
    host.windows.clear();
    for (const u32 on : {1u, 0u}) {
      panel.click("panel_lights_button");
      EXPECT_EQ(aircraft.panel_lights_on, on) << row.gauge;
      panel.frame();
      EXPECT_EQ(panel.value("panel_lights_button"), on) << row.gauge;
    }
    const rig::WindowCalls expected{{'o', row.night}, {'c', row.day}, {'o', row.day}, {'c', row.night}};
    EXPECT_EQ(host.windows, expected) << row.gauge;
  }
  EXPECT_EQ(host.events, rig::Events(4, {0x100D6, 0}));
  rig::Gauge("Lightspp").click("panel_lights_switch");
  EXPECT_EQ(host.windows.size(), 4u) << "the pedestal's switch leaves the windows alone";
}

TEST_F(Lighting, OnlyTheCaptainsSwitchTakesTheHostsLightsOver) {
  host.tokens[token::panel_lights] = 1;
  for (const char* name : {"Foinstlg", "Lightspp", "Cainstlg"}) {
    EXPECT_EQ(aircraft.panel_lights_on, 0u) << "before " << name;
    rig::Gauge panel(name);
    panel.frame();
  }
  EXPECT_EQ(aircraft.panel_lights_on, 1u);
}

TEST_F(Lighting, ThreeLandingLightLeversMoveAsOne) {
  rig::Gauge panel("Lightsp");
  host.tokens[token::landing_lights] = 1;
  panel.frame();
  EXPECT_EQ(panel.value("left_landing_light_lever") + panel.value("middle_landing_light_lever") +
                panel.value("right_landing_light_lever"),
            3);
}

TEST_F(Lighting, FireTestNeedsPowerAndEndsOnASecondPress) {
  rig::Gauge panel("Lightsp");
  aircraft.fire_test_active = 1;
  panel.click("fire_test_button");
  EXPECT_EQ(aircraft.fire_test_active, 0u) << "without power a press ends the test";
  aircraft.dc_power_on = 1;
  host.tokens[token::clock_seconds] = 250.8;
  panel.click("fire_test_button");
  EXPECT_EQ(aircraft.fire_test_active, 1u);
  EXPECT_EQ(aircraft.fire_test_clock, 250u);
  EXPECT_EQ(aircraft.fire_test_deadline, 252u);
  panel.click("fire_test_button");
  EXPECT_EQ(aircraft.fire_test_active, 0u);
}

}  // namespace
