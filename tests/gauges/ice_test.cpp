/// Ice protection: knobs and switches in, supply pressures, events and lights out.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Ice : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge engines{"Icepsi"}, wings{"Airfoil"};

  f64 left_engine() { return engines.value(1110, 0); }
  f64 right_engine() { return engines.value(1110, 1); }
  f64 left_wing() { return wings.value(1140, 0); }
  f64 right_wing() { return wings.value(1140, 1); }

  /// Everything off, with DC power.
  void SetUp() override { off(); }
  void off() {
    aircraft.engine_antiice_left = aircraft.engine_antiice_right = 0;
    aircraft.wing_antiice_left = aircraft.wing_antiice_right = 0;
    aircraft.dc_power_on = 1;
    engines.frame();
    wings.frame();
  }
};

TEST_F(Ice, EngineKnobsTellTheHostOnAndOff) {
  rig::Gauge panel("Antiice");
  const rig::Events round{{66029, 0}, {66030, 0}, {66029, 0}, {66030, 0}};
  for (const i32 x : {6, 42}) {
    host.events.clear();
    for (int i = 0; i < 4; ++i) panel.click(x, 50);
    EXPECT_EQ(host.events, round) << x;
  }
}

TEST_F(Ice, EnginePressureSettlesByKnobAndLever) {
  struct Row {
    u32 knob, lever;
    f64 left_first, left, right_first, right;
  };
  const Row rows[] = {
      {0, 0, 9, 9, 9, 9},        {1, 0, 12, 541, 12, 541},  {2, 0, 9, 9, 9, 9},
      {3, 0, 12, 521, 12, 521},  {1, 1, 12, 1001, 12, 541}, {3, 1, 11, 1001, 12, 521},
      {1, 2, 12, 541, 12, 1001}, {3, 2, 12, 521, 11, 1001}, {0, 1, 9, 9, 9, 9},
      {2, 2, 9, 9, 9, 9},
  };
  for (const f64 night : {0.0, 1.0}) {  // the lit copy must not build it up twice as fast
    host.tokens[token::panel_lights] = night;
    for (const Row& row : rows) {
      SCOPED_TRACE(testing::Message() << "knob " << row.knob << ", lever " << row.lever);
      off();
      aircraft.engine_antiice_left = aircraft.engine_antiice_right = row.knob;
      aircraft.antiice_upper_switch = row.lever;
      engines.frame();
      EXPECT_EQ(left_engine(), row.left_first);
      EXPECT_EQ(right_engine(), row.right_first);
      engines.frame(1000);
      EXPECT_EQ(left_engine(), row.left);
      EXPECT_EQ(right_engine(), row.right);
    }
  }
}

TEST_F(Ice, EnginePressureFallsBackUnderItsRegulatorAtOnce) {
  aircraft.engine_antiice_left = aircraft.antiice_upper_switch = 1;
  engines.frame(1000);
  aircraft.antiice_upper_switch = 0;
  engines.frame();
  EXPECT_EQ(left_engine(), 541);
  aircraft.engine_antiice_left = 2;
  engines.frame();
  EXPECT_EQ(left_engine(), 9);
}

TEST_F(Ice, WingPressureSettlesByItsSwitchAndTheRaisedLimit) {
  for (const f64 night : {0.0, 1.0}) {
    host.tokens[token::panel_lights] = night;
    for (int setting = 0; setting < 2; ++setting) {
      off();
      const bool raised = wings.value(2210) == 1;
      aircraft.wing_antiice_left = 1;
      wings.frame();
      EXPECT_EQ(left_wing(), 12);
      EXPECT_EQ(right_wing(), 9) << "the other wing stays off";
      aircraft.wing_antiice_right = 1;
      wings.frame(99);
      EXPECT_EQ(left_wing(), 210);
      EXPECT_EQ(right_wing(), 208);
      wings.frame(400);
      EXPECT_EQ(left_wing(), raised ? 511 : 501);
      EXPECT_EQ(right_wing(), raised ? 591 : 581);
      wings.click(17, 77);
    }
  }
}

TEST_F(Ice, WithoutDcPowerOnlyTheStepsOfTheFrameAreLeft) {
  aircraft.engine_antiice_left = aircraft.wing_antiice_left = 1;
  aircraft.engine_antiice_right = 3;
  aircraft.antiice_upper_switch = 2;
  engines.frame(100);
  wings.frame(100);
  aircraft.dc_power_on = 0;
  engines.frame(2);
  wings.frame(2);
  EXPECT_EQ(left_engine(), 12);
  EXPECT_EQ(right_engine(), 11);
  EXPECT_EQ(left_wing(), 12);
  EXPECT_EQ(right_wing(), 9);
}

TEST_F(Ice, PitotLightsShineWhileTheHeatIsOff) {
  rig::Gauge panel("Pitot");
  for (const u32 left : {0u, 1u}) {
    for (const u32 right : {0u, 1u}) {
      aircraft.pitot_heat_left = left;
      aircraft.pitot_heat_right = right;
      panel.frame();
      EXPECT_EQ(panel.value_at({4, 7}), left == 0) << left << right;
      EXPECT_EQ(panel.value_at({41, 6}), right == 0) << left << right;
    }
  }
}

TEST_F(Ice, WindshieldHeatIsOnInAFreshCockpit) {
  rig::Gauge panel("Windshield");
  panel.frame();
  EXPECT_EQ(panel.value(1010), 1);
  EXPECT_EQ(panel.value(2190, 0), 1);
  EXPECT_EQ(panel.value(2190, 1), 1);
}

}  // namespace
