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
    return duct.value("duct_pressure");
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

TEST_F(EngineStart, ValvesMakeTheLineUp) {
  enum Closed { breaks_it, is_borne, is_not_asked };
  const std::pair<const char*, Closed> rows[] = {
      {"engine_1_bleed_switch", is_borne}, {"engine_2_bleed_switch", is_borne},
      {"crossfeed_1_switch", breaks_it},   {"crossfeed_2_switch", is_not_asked},
      {"shut_off_valve_1_knob", is_borne}, {"shut_off_valve_2_knob", is_borne},
      {"isolation_1_knob", is_borne},      {"isolation_2_knob", breaks_it},
      {"manifold_1_knob", is_borne},       {"manifold_2_knob", is_not_asked},
  };
  for (const auto& [control, closed] : rows) valves.click(control);
  for (const auto& [control, closed] : rows) {
    valves.click(control);
    for (const u32 before : {0u, 1u}) {
      aircraft.bleed_lineup_ok = before;
      valves.frame();
      const u32 after[] = {0, before, 1};
      EXPECT_EQ(aircraft.bleed_lineup_ok, after[closed]) << control;
    }
    valves.click(control);
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
  using Row = std::tuple<f64, f64, u32, f64, u32, u32>;
  aircraft.apu_at_speed = 0;
  for (const auto& [eng1, eng2, apu_bleed, expected, light_before, light] :
       {Row{30, 30, 1, 80, 0, 2}, Row{30, 30, 0, 79, 0, 2}, Row{30, 20, 1, 60, 0, 0},
        Row{20, 30, 1, 60, 1, 1}, Row{30, 20, 0, 59, 2, 0}, Row{20, 20, 1, 10, 2, 0},
        Row{25, 30, 1, 10, 2, 0}, Row{25, 25, 0, 9, 2, 0}, Row{20, 25, 1, 10, 1, 0}}) {
    core_speeds(eng1, eng2);
    aircraft.apu_bleed_switch = apu_bleed;
    aircraft.duct_pressure_light = light_before;
    EXPECT_EQ(pressure(), expected) << eng1 << "/" << eng2;
    EXPECT_EQ(aircraft.duct_pressure_light, light) << eng1 << "/" << eng2;
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
  using Row = std::tuple<u32, f64, f64, f64>;
  for (const auto& [master, eng1, eng2, image] :
       {Row{0, 0, 0, 1}, Row{1, 0, 0, 0}, Row{1, 30, 20, 0}, Row{1, 20, 30, 0}, Row{1, 30, 30, 1},
        Row{1, 25, 30, 1}, Row{1, 25, 25, 1}, Row{1, 25, 20, 0}, Row{0, 30, 20, 1}}) {
    aircraft.start_master_switch = master;
    core_speeds(eng1, eng2);
    panel.expect({{"ready_light", image}});
  }
  panel.click("start_master_switch");
  host.sent();
  panel.click("start_master_switch"), panel.click("start_selector_off");
  EXPECT_TRUE(host.events.empty()) << "switched off they send nothing";
}

/// One engine at a time; the other one's switch is armed too and its engine runs.
TEST_F(EngineStart, StarterIsPushedOncePerPercentOfTheFirstTen) {
  const std::tuple<f64, std::size_t, u32> cases[] = {{1, 0, 1},     {5.5, 5, 1}, {10, 9, 1},
                                                     {10.1, 10, 1}, {25, 10, 1}, {25.1, 10, 2}};
  for (const auto& [core_speed, pushes, switch_after] : cases) {
    for (const u32 engine : {1u, 2u}) {
      aircraft.start_air_available = aircraft.start_master_switch = 1;
      aircraft.eng1_start_switch = aircraft.eng2_start_switch = 1;
      core_speeds(engine == 1 ? core_speed : 60, engine == 2 ? core_speed : 60);
      aircraft.start_selector = 3 - engine;
      panel.frame();
      EXPECT_EQ(host.sent(), rig::Events(pushes, {66299 + engine, 0})) << core_speed;
      EXPECT_EQ(aircraft.eng1_start_switch, engine == 1 ? switch_after : 1) << core_speed;
      EXPECT_EQ(aircraft.eng2_start_switch, engine == 2 ? switch_after : 1) << core_speed;
    }
  }
}

TEST_F(EngineStart, NothingTurnsWithoutAirMasterSelectorOrArmedSwitch) {
  core_speeds(8, 8);
  for (const u32 engine : {1u, 2u}) {
    u32& start_switch = engine == 1 ? aircraft.eng1_start_switch : aircraft.eng2_start_switch;
    const std::pair<u32*, u32> needed[] = {{&aircraft.start_air_available, 1},
                                           {&aircraft.start_master_switch, 1},
                                           {&aircraft.start_selector, 3 - engine},
                                           {&start_switch, 1}};
    for (const auto& missing : needed) {
      for (const auto& [condition, value] : needed) *condition = condition != missing.first ? value : 0;
      panel.frame();
      if (missing.first == &start_switch) start_switch = 2, panel.frame();
    }
    start_switch = 0;
  }
  EXPECT_TRUE(host.events.empty());
}

}  // namespace
