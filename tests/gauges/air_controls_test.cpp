/// The controls of the air and ice panels that work alike, each in one table: switches, guarded
/// switches, lights under test.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class AirControls : public testing::Test {
 protected:
  rig::Host host;
};

TEST_F(AirControls, ASwitchMovesItsOwnPictureAndVariableAndClicks) {
  constexpr SoundRequest toggle = toggle_click_sound_request, push = click_sound_request;
  struct Row {
    const char* gauge;
    PanelPoint control, picture;
    u32 positions;
    SoundRequest sound;
    u32 Aircraft::*variable;  // null: the gauge's own
  };
  const Row rows[] = {
      {"Tempcon", {58, 38}, {62, 39}, 2, toggle, &Aircraft::aircon_left_on},
      {"Tempcon", {104, 38}, {108, 39}, 2, toggle, &Aircraft::aircon_right_on},
      {"Tempcon", {21, 43}, {23, 45}, 2, push, &Aircraft::aircon_valve_left},
      {"Tempcon", {131, 43}, {133, 45}, 2, push, &Aircraft::aircon_valve_right},
      {"Tempcon", {26, 158}, {30, 161}, 2, toggle, &Aircraft::aircon_left_auto},
      {"Tempcon", {136, 158}, {140, 161}, 2, toggle, &Aircraft::aircon_right_auto},
      {"Tempset", {81, 17}, {86, 19}, 2, toggle, nullptr},
      {"Antiice", {6, 50}, {11, 49}, 4, toggle, &Aircraft::engine_antiice_left},
      {"Antiice", {42, 50}, {47, 49}, 4, toggle, &Aircraft::engine_antiice_right},
      {"Airfoil", {17, 77}, {22, 81}, 2, toggle, nullptr},
      {"Aimain", {34, 6}, {36, 8}, 2, push, nullptr},
      {"Aimain", {131, 9}, {133, 11}, 2, push, nullptr},
      {"Aimain", {36, 191}, {38, 193}, 2, push, nullptr},
      {"Aimain", {113, 194}, {115, 196}, 2, push, nullptr},
      {"Aimain", {58, 140}, {64, 142}, 2, toggle, &Aircraft::wing_antiice_left},
      {"Aimain", {103, 140}, {109, 142}, 2, toggle, &Aircraft::wing_antiice_right},
      {"Pitot", {8, 30}, {12, 32}, 2, toggle, &Aircraft::pitot_heat_left},
      {"Pitot", {46, 30}, {50, 32}, 2, toggle, &Aircraft::pitot_heat_right},
      {"Windshield", {35, 8}, {29, 15}, 2, toggle, &Aircraft::windshield_switch},
      {"Windshield", {20, 41}, {23, 43}, 4, toggle, &Aircraft::windshield_left_selector},
      {"Windshield", {65, 41}, {68, 43}, 4, toggle, &Aircraft::windshield_right_selector},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.gauge << " " << row.control.x << "," << row.control.y);
    rig::Gauge panel(row.gauge);
    panel.frame();
    u32 position = static_cast<u32>(panel.value_at(row.picture));
    for (u32 step = 0; step < row.positions; ++step) {  // all the way round
      position = (position + 1) % row.positions;
      panel.click(row.control.x, row.control.y);
      panel.frame();
      EXPECT_EQ(panel.value_at(row.picture), position);
      if (row.variable != nullptr) {
        EXPECT_EQ(aircraft.*row.variable, position);
      }
      EXPECT_TRUE(rig::heard(row.sound));
      EXPECT_EQ(rig::sounds_requested(), 0);
    }
  }
}

TEST_F(AirControls, AThreePositionLeverReturnsToTheCentreFromEitherSide) {
  struct Row {
    const char* gauge;
    PanelPoint up, down, picture;
  };
  for (const Row& row :
       {Row{"Antiice", {19, 24}, {19, 26}, {27, 5}}, Row{"Aimain", {85, 29}, {85, 31}, {92, 10}}}) {
    rig::Gauge panel(row.gauge);
    const std::pair<PanelPoint, f64> clicks[] = {{row.up, 1},   {row.down, 0}, {row.down, 2},
                                                 {row.down, 0}, {row.up, 1},   {row.up, 0}};
    for (const auto& [at, position] : clicks) {
      panel.click(at.x, at.y);
      panel.frame();
      EXPECT_EQ(panel.value_at(row.picture), position) << row.gauge;
    }
  }
}

TEST_F(AirControls, AGuardHoldsItsSwitchAtRest) {
  struct Row {
    const char* gauge;
    PanelPoint guard, control;
    i32 guard_bitmap, switch_bitmap;
    int nth;
    f64 last;
    PanelPoint light = {};  // that follows the switch, where there is one
  };
  const Row rows[] = {
      {"Tempcon", {78, 145}, {78, 148}, 2160, 2150, 0, 1},
      {"Ramair", {72, 24}, {72, 27}, 1320, 1330, 0, 1},
      {"Ramair", {102, 24}, {102, 27}, 1340, 1350, 0, 3},
      {"Spdrive", {92, 106}, {92, 109}, 2180, 2170, 0, 1, {99, 12}},
      {"Spdrive", {7, 107}, {7, 110}, 2180, 2170, 1, 1, {56, 12}},
      {"Aimain", {109, 85}, {109, 88}, 2160, 2220, 0, 3},
      {"Aimain", {53, 85}, {53, 88}, 2160, 2220, 1, 3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.gauge << " " << row.guard.x << "," << row.guard.y);
    rig::Gauge panel(row.gauge);
    const auto clicked = [&](PanelPoint at) {
      panel.click(at.x, at.y);
      EXPECT_TRUE(rig::heard(toggle_click_sound_request));
      panel.frame(2);
      const f64 position = panel.value(row.switch_bitmap, row.nth);
      if (row.light.x != 0) {
        EXPECT_EQ(panel.value_at(row.light), position);
      }
      return std::pair(panel.value(row.guard_bitmap, row.nth), position);
    };
    panel.frame();
    if (panel.value(row.guard_bitmap, row.nth) == 1) clicked(row.guard);
    EXPECT_EQ(clicked(row.control), std::pair(0., 0.)) << "guard closed";
    EXPECT_EQ(clicked(row.guard), std::pair(1., 0.));
    for (f64 step = 1; step <= row.last; ++step) {
      EXPECT_EQ(clicked(row.control), std::pair(1., step));
    }
    EXPECT_EQ(clicked(row.control), std::pair(1., 0.)) << "round to rest";
    clicked(row.control);
    EXPECT_EQ(clicked(row.guard), std::pair(0., 0.)) << "closing forces it off";
  }
}

TEST_F(AirControls, ALightUnderTestShinesTwoSecondsAndMakesNoSound) {
  struct Row {
    const char* gauge;
    PanelPoint press, light;
    f64 lit;
  };
  const Row rows[] = {
      {"Tempcon", {49, 3}, {49, 3}, 0},      {"Tempcon", {66, 86}, {66, 87}, 0},
      {"Tempcon", {96, 86}, {95, 87}, 0},    {"Ramair", {7, 10}, {6, 10}, 0},
      {"Aimain", {6, 34}, {6, 33}, 0},       {"Aimain", {164, 40}, {161, 39}, 0},
      {"Aimain", {2, 165}, {2, 164}, 0},     {"Aimain", {2, 198}, {1, 196}, 0},
      {"Aimain", {153, 170}, {153, 169}, 0}, {"Aimain", {152, 203}, {151, 202}, 0},
      {"Windshield", {5, 6}, {5, 6}, 1},     {"Windshield", {69, 6}, {68, 5}, 1},
  };
  aircraft.duct_left_temp_normal = aircraft.duct_right_temp_normal = 1;
  f64 now = 100;
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.gauge << " " << row.light.x << "," << row.light.y);
    rig::Gauge panel(row.gauge);
    const auto light_at = [&](f64 seconds) {
      host.tokens[token::clock_seconds] = seconds;
      panel.frame();
      return panel.value_at(row.light);
    };
    EXPECT_NE(light_at(now), row.lit);
    panel.click(row.press.x, row.press.y);
    EXPECT_EQ(rig::sounds_requested(), 0);
    EXPECT_EQ(light_at(now + 2.9), row.lit);
    EXPECT_NE(light_at(now + 3), row.lit);
    now += 100;
  }
}

}  // namespace
