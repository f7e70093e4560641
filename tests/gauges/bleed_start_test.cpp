/// Air for the starters and the engine start: valves, duct pressure, start light and start sequence.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class EngineStart : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge valves{"Bleedair"};
  rig::Gauge duct{"Grdpsi"};
  rig::Gauge panel{"Engstart"};

  void core_speeds(f64 eng1, f64 eng2) {
    host.tokens[token::engine_1_core_speed] = eng1;
    host.tokens[token::engine_2_core_speed] = eng2;
  }
  f64 pressure(int frames = 1) {
    duct.frame(frames);
    return duct.value(1070);
  }
  /// An empty duct under the open bleed valve of an APU at speed.
  void open_apu_bleed() {
    core_speeds(0, 0);
    aircraft.apu_at_speed = 0;
    aircraft.apu_bleed_switch = 1;
    EXPECT_EQ(pressure(), 10);
    aircraft.apu_at_speed = 1;
  }
};

/// What a closed valve does to the line-up for a start.
enum Closed { breaks_it, is_borne, is_not_asked };

struct BleedControl {
  u32 Aircraft::*position;
  PanelPoint box, picture;
  SoundRequest sound;
  Closed when_closed;
};

constexpr SoundRequest toggle = toggle_click_sound_request, knob = click_sound_request;
constexpr BleedControl controls[] = {
    {&Aircraft::bleed_switch_upper_left, {77, 21}, {80, 22}, toggle, is_borne},
    {&Aircraft::bleed_switch_upper_right, {121, 21}, {125, 22}, toggle, is_borne},
    {&Aircraft::bleed_switch_lower_left, {74, 77}, {78, 78}, toggle, breaks_it},
    {&Aircraft::bleed_switch_lower_right, {119, 77}, {123, 78}, toggle, is_not_asked},
    {&Aircraft::bleed_valve_top_left, {36, 7}, {38, 8}, knob, is_borne},
    {&Aircraft::bleed_valve_top_right, {154, 9}, {156, 11}, knob, is_borne},
    {&Aircraft::bleed_valve_mid_left, {34, 95}, {36, 97}, knob, is_borne},
    {&Aircraft::bleed_valve_mid_right, {147, 94}, {149, 96}, knob, breaks_it},
    {&Aircraft::bleed_valve_bottom_left, {61, 127}, {63, 129}, knob, is_borne},
    {&Aircraft::bleed_valve_bottom_right, {117, 129}, {119, 131}, knob, is_not_asked},
};

TEST_F(EngineStart, BleedControlsAndTheLineUpTheyMake) {
  for (const BleedControl& control : controls) {
    valves.click(control.box.x, control.box.y);
    valves.frame();
    EXPECT_EQ(aircraft.*control.position, 1u) << &control - controls;
    EXPECT_EQ(valves.value_at(control.picture), 1) << &control - controls;
    EXPECT_TRUE(rig::heard(control.sound)) << &control - controls;
  }
  for (const BleedControl& control : controls) {
    aircraft.*control.position = 0;
    for (const u32 before : {0u, 1u}) {
      aircraft.bleed_lineup_ok = before;
      valves.frame();
      const u32 after[] = {0, before, 1};
      EXPECT_EQ(aircraft.bleed_lineup_ok, after[control.when_closed]) << &control - controls;
    }
    aircraft.*control.position = 1;
  }
}

TEST_F(EngineStart, ApuFillsTheDuctAndItLeaksWhenClosed) {
  for (const f64 night : {0.0, 1.0}) {  // the lit copy must not fill it twice as fast
    host.tokens[token::panel_lights] = night;
    open_apu_bleed();
    EXPECT_EQ(pressure(95), 200);
    EXPECT_EQ(aircraft.duct_pressure_light, 2u) << "kept at the limit";
    EXPECT_EQ(pressure(), 202);
    EXPECT_EQ(aircraft.duct_pressure_light, 1u);
    core_speeds(60, 60);
    EXPECT_EQ(pressure(500), 441) << "engines add nothing to an APU at speed";
    aircraft.ext_power_switch = 1;
    EXPECT_EQ(pressure(), 421);
    aircraft.ext_power_switch = 0;
    aircraft.apu_bleed_switch = 0;
    EXPECT_EQ(pressure(221), 200);
    EXPECT_EQ(aircraft.duct_pressure_light, 1u) << "kept at the limit";
    EXPECT_EQ(pressure(), 199);
    EXPECT_EQ(aircraft.duct_pressure_light, 2u);
    EXPECT_EQ(pressure(500), 9);
    EXPECT_EQ(aircraft.duct_pressure_light, 0u);
  }
}

TEST_F(EngineStart, EnginesFillTheDuctWithoutTheApu) {
  struct Row {
    f64 eng1, eng2;
    u32 apu_bleed;
    f64 pressure;
    u32 light_before, light;
  };
  const Row rows[] = {
      {30, 30, 1, 80, 0, 2}, {30, 30, 0, 79, 0, 2}, {30, 20, 1, 60, 0, 0},
      {20, 30, 1, 60, 1, 1}, {30, 20, 0, 59, 2, 0}, {20, 20, 1, 10, 2, 0},
      {25, 30, 1, 10, 2, 0}, {25, 25, 0, 9, 2, 0},  {20, 25, 1, 10, 1, 0},
  };
  aircraft.apu_at_speed = 0;
  for (const Row& row : rows) {
    core_speeds(row.eng1, row.eng2);
    aircraft.apu_bleed_switch = row.apu_bleed;
    aircraft.duct_pressure_light = row.light_before;
    EXPECT_EQ(pressure(), row.pressure) << row.eng1 << "/" << row.eng2;
    EXPECT_EQ(aircraft.duct_pressure_light, row.light) << row.eng1 << "/" << row.eng2;
  }
}

TEST_F(EngineStart, StartAirComesAndGoesOnlyOnAnOpenPath) {
  aircraft.bleed_lineup_ok = 1;
  for (const u32 before : {0u, 1u}) {
    open_apu_bleed();
    EXPECT_EQ(pressure(104), 218);
    EXPECT_EQ(aircraft.start_air_available, 0u);
    aircraft.start_air_available = before;
    EXPECT_EQ(pressure(), 220);
    EXPECT_EQ(aircraft.start_air_available, before) << "kept at the limit";
    EXPECT_EQ(pressure(), 222);
    EXPECT_EQ(aircraft.start_air_available, 1u);
  }
  aircraft.apu_bleed_switch = 0;
  EXPECT_EQ(pressure(500), 9);
  EXPECT_EQ(aircraft.start_air_available, 1u) << "trapped behind the closed valve";
  aircraft.apu_bleed_switch = 1;
  aircraft.bleed_lineup_ok = 0;
  pressure();
  EXPECT_EQ(aircraft.start_air_available, 1u) << "trapped behind the broken line-up";
  aircraft.bleed_lineup_ok = 1;
  pressure();
  EXPECT_EQ(aircraft.start_air_available, 0u);
}

TEST_F(EngineStart, StartLightWaitsForBothEngines) {
  struct Row {
    u32 master;
    f64 eng1, eng2, image;
  };
  const Row rows[] = {{0, 0, 0, 1},   {1, 0, 0, 0},   {1, 30, 20, 0}, {1, 20, 30, 0}, {1, 30, 30, 1},
                      {1, 25, 30, 1}, {1, 25, 25, 1}, {1, 25, 20, 0}, {0, 30, 20, 1}};
  for (const Row& row : rows) {
    aircraft.start_master_switch = row.master;
    core_speeds(row.eng1, row.eng2);
    panel.frame();
    EXPECT_EQ(panel.value(2110), row.image) << row.eng1 << "/" << row.eng2;
  }
}

TEST_F(EngineStart, TestLightsShineForTwoSecondsAndProlongEachOther) {
  struct Row {
    rig::Gauge* gauge;
    PanelPoint box, light;
  };
  const Row rows[] = {{&valves, {10, 42}, {10, 41}},
                      {&valves, {181, 43}, {180, 42}},
                      {&valves, {8, 74}, {10, 76}},
                      {&valves, {179, 74}, {176, 75}},
                      {&panel, {14, 13}, {14, 12}}};
  f64& clock = host.tokens[token::clock_seconds];
  for (const Row& row : rows) {
    clock += 10;
    row.gauge->frame();
    EXPECT_EQ(row.gauge->value_at(row.light), 1) << row.light.x << "," << row.light.y;
    row.gauge->click(row.box.x, row.box.y);
    clock += 2;
    row.gauge->frame();
    EXPECT_EQ(row.gauge->value_at(row.light), 0) << row.light.x << "," << row.light.y;
  }
  valves.click(10, 42);
  clock += 2;
  valves.click(181, 43);
  clock += 2;
  valves.frame();
  EXPECT_EQ(valves.value_at({10, 41}), 0) << "the second press prolongs the first light";
  EXPECT_EQ(rig::sounds_requested(), 0) << "tests are silent";
}

TEST_F(EngineStart, StartSwitchesAndSelectorSendTheirEvents) {
  panel.click(61, 1);
  EXPECT_EQ(aircraft.start_master_switch, 1u);
  panel.click(61, 1);
  EXPECT_EQ(aircraft.start_master_switch, 0u);
  for (const u32 position : {1u, 2u, 0u}) {
    panel.click(109, 1);
    panel.click(152, 1);
    EXPECT_EQ(aircraft.eng1_start_switch, position);
    EXPECT_EQ(aircraft.eng2_start_switch, position);
  }
  const std::pair<i32, f64> clicks[] = {{44, 2}, {116, 1}, {80, 0}};
  for (const auto& [x, position] : clicks) {
    panel.click(x, 52);
    panel.frame();
    EXPECT_EQ(panel.value(260), position);
    EXPECT_TRUE(rig::heard(toggle_click_sound_request));
  }
  EXPECT_EQ(host.events, (rig::Events{{65774, 0}, {66300, 0}, {66301, 0}}));
}

TEST_F(EngineStart, StarterIsPushedOncePerPercentOfTheFirstTen) {
  struct Row {
    f64 core_speed;
    std::size_t pushes;
    u32 switch_after;
  };
  for (const Row& row : {Row{1, 0, 1}, Row{5.5, 5, 1}, Row{10, 9, 1}, Row{10.1, 10, 1}, Row{25, 10, 1},
                         Row{25.1, 10, 2}}) {
    aircraft.start_air_available = aircraft.start_master_switch = 1;
    aircraft.eng1_start_switch = aircraft.eng2_start_switch = 1;
    core_speeds(row.core_speed, row.core_speed);
    for (const u32 engine : {1u, 2u}) {
      aircraft.start_selector = 3 - engine;
      host.events.clear();
      panel.frame();
      EXPECT_EQ(host.events, rig::Events(row.pushes, {66299 + engine, 0})) << row.core_speed;
    }
    EXPECT_EQ(aircraft.eng1_start_switch, row.switch_after) << row.core_speed;
    EXPECT_EQ(aircraft.eng2_start_switch, row.switch_after) << row.core_speed;
  }
}

TEST_F(EngineStart, NothingTurnsWithoutAirMasterSelectorOrArmedSwitch) {
  core_speeds(8, 8);
  u32* const needed[] = {&aircraft.start_air_available, &aircraft.start_master_switch,
                         &aircraft.start_selector, &aircraft.eng2_start_switch};
  for (u32* const missing : needed) {
    for (u32* const condition : needed) *condition = condition != missing;
    panel.frame();
  }
  EXPECT_TRUE(host.events.empty());
}

}  // namespace
