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
  for (const auto& [name, day, night] : {std::tuple{"Cainstlg", 20u, 27u}, {"Foinstlg", 21u, 28u}}) {
    rig::Gauge panel(name);
    host.windows.clear();
    for (const u32 on : {1u, 0u}) {
      panel.click("panel_lights_button");
      EXPECT_EQ(aircraft.panel_lights_on, on) << name;
      panel.expect({{"panel_lights_button", on}});
    }
    const rig::WindowCalls expected{{'o', night}, {'c', day}, {'o', day}, {'c', night}};
    EXPECT_EQ(host.windows, expected) << name;
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

}  // namespace
