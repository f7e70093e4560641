/// The hydraulic panel: eight pump switches, each with a light of its own.
#include <gtest/gtest.h>

#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

TEST(Hydraulics, EachSwitchTurnsItsOwnPumpAndLight) {
  rig::Host host;
  rig::Gauge panel("Hydp");
  u32* const pumps[2][4] = {{&aircraft.hyd_pump_upper_1, &aircraft.hyd_pump_upper_2,
                             &aircraft.hyd_pump_upper_3, &aircraft.hyd_pump_upper_4},
                            {&aircraft.hyd_pump_lower_1, &aircraft.hyd_pump_lower_2,
                             &aircraft.hyd_pump_lower_3, &aircraft.hyd_pump_lower_4}};
  for (i32 worked = 0; worked < 8; ++worked) {
    const PanelPoint control{31 + worked % 4 * 40, 72 + worked / 4 * 77};
    panel.click(control.x, control.y);
    EXPECT_TRUE(rig::heard(toggle_click_sound_request)) << worked;
    panel.frame();
    for (i32 i = 0; i < 8; ++i) {
      const PanelPoint lever{35 + i % 4 * 40, 78 + i / 4 * 77}, light{lever.x - 10, lever.y - 25};
      EXPECT_EQ(*pumps[i / 4][i % 4], i == worked) << i << " while " << worked << " is on";
      EXPECT_EQ(panel.value_at(lever), i == worked) << i << " while " << worked << " is on";
      EXPECT_EQ(panel.value_at(light), i == worked) << i << " while " << worked << " is on";
    }
    panel.click(control.x + 25, control.y + 33);
  }
}

}  // namespace
