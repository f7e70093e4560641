/// Switches that only other panels' warnings look at: what they leave in the shared state.
#include <gtest/gtest.h>

#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

TEST(SharedState, ASwitchLeavesItsPositionForOthers) {
  rig::Host host;
  struct Row {
    const char *gauge, *control;
    u32 Aircraft::*position;
  };
  using A = Aircraft;
  const Row rows[] = {
      {"Hydp", "system_1_engine_1_pump_switch", &A::hyd_pump_upper_1},
      {"Hydp", "system_1_engine_2_pump_switch", &A::hyd_pump_upper_2},
      {"Hydp", "system_1_electric_pump_switch", &A::hyd_pump_upper_3},
      {"Hydp", "system_1_standby_pump_switch", &A::hyd_pump_upper_4},
      {"Hydp", "system_2_engine_1_pump_switch", &A::hyd_pump_lower_1},
      {"Hydp", "system_2_engine_2_pump_switch", &A::hyd_pump_lower_2},
      {"Hydp", "system_2_electric_pump_switch", &A::hyd_pump_lower_3},
      {"Hydp", "system_2_standby_pump_switch", &A::hyd_pump_lower_4},
      {"Pitot", "left_pitot_heat_switch", &A::pitot_heat_left},
      {"Pitot", "right_pitot_heat_switch", &A::pitot_heat_right},
      {"Windshield", "windshield_heat_knob", &A::windshield_switch},
      {"Windshield", "left_windshield_switch", &A::windshield_left_selector},
      {"Windshield", "right_windshield_switch", &A::windshield_right_selector},
      {"Emerlight", "emergency_lights_switch", &A::emergency_light_switch},
  };
  EXPECT_EQ(aircraft.windshield_switch, 1u) << "windshield heat is on in a fresh cockpit";
  EXPECT_EQ(aircraft.windshield_left_selector + aircraft.windshield_right_selector, 2u);
  for (const Row& row : rows) {
    rig::Gauge panel(row.gauge);
    const u32 before = aircraft.*row.position;
    panel.click(row.control);
    panel.frame();
    EXPECT_NE(aircraft.*row.position, before) << row.gauge << ' ' << row.control;
    EXPECT_EQ(panel.value(row.control), aircraft.*row.position) << row.gauge << ' ' << row.control;
  }
}

/// A pump's lamp says that it is on, a pitot's that its heat is off.
TEST(SharedState, ALampShinesByItsOwnSwitch) {
  rig::Host host;
  rig::Gauge pumps("Hydp"), pitot("Pitot");
  for (rig::Gauge* panel : {&pumps, &pitot}) {
    for (const rig::NamedArea& control : panel->areas()) {
      std::string lamp = control.name;
      lamp.replace(lamp.rfind("switch"), 6, "lamp");
      for (int step = 0; step < 2; ++step) {
        panel->click(control.name);
        panel->frame();
        const f64 on = panel->value(control.name);
        EXPECT_EQ(panel->value(lamp), panel == &pitot ? 1 - on : on) << lamp;
      }
    }
  }
}

}  // namespace
