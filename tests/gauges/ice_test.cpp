/// Ice protection: knobs and switches in, supply pressures and events out.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Ice : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge engines{"Icepsi"}, wings{"Airfoil"};

  f64 left_engine() { return engines.value("left_engine_anti_ice_pressure"); }
  f64 right_engine() { return engines.value("right_engine_anti_ice_pressure"); }
  f64 left_wing() { return wings.value("left_wing_anti_ice_pressure"); }
  f64 right_wing() { return wings.value("right_wing_anti_ice_pressure"); }

  void frame(int count = 1) { engines.frame(count), wings.frame(count); }
  void SetUp() override { off(); }
  /// Everything off, with DC power.
  void off() {
    aircraft.engine_antiice_left = aircraft.engine_antiice_right = 0;
    aircraft.wing_antiice_left = aircraft.wing_antiice_right = 0;
    aircraft.dc_power_on = 1;
    frame();
  }
};

TEST_F(Ice, EngineKnobsTellTheHostOnAndOff) {
  rig::Gauge panel("Antiice");
  const rig::Events round{{66029, 0}, {66030, 0}, {66029, 0}, {66030, 0}};
  for (const char* knob : {"left_engine_anti_ice_knob", "right_engine_anti_ice_knob"}) {
    for (int i = 0; i < 4; ++i) panel.click(knob);
    EXPECT_EQ(host.sent(), round) << knob;
  }
}

/// The other engine stays off, and its pressure at rest.
TEST_F(Ice, EnginePressureSettlesByKnobAndLever) {
  struct Row {
    u32 knob, lever;
    f64 left_first, left, right_first, right;
  };
  const Row rows[] = {{0, 1, 9, 9, 9, 9},        {1, 0, 12, 541, 12, 541},  {2, 2, 9, 9, 9, 9},
                      {3, 0, 12, 521, 12, 521},  {1, 1, 12, 1001, 12, 541}, {3, 1, 11, 1001, 12, 521},
                      {1, 2, 12, 541, 12, 1001}, {3, 2, 12, 521, 11, 1001}};
  for (const f64 night : {0.0, 1.0}) {  // the lit copy must not build it up twice as fast
    host.tokens[token::panel_lights] = night;
    for (const Row& row : rows) {
      SCOPED_TRACE(testing::Message() << "knob " << row.knob << ", lever " << row.lever);
      for (const bool left : {true, false}) {
        off();
        (left ? aircraft.engine_antiice_left : aircraft.engine_antiice_right) = row.knob;
        aircraft.antiice_upper_switch = row.lever;
        frame();
        EXPECT_EQ(left ? left_engine() : right_engine(), left ? row.left_first : row.right_first);
        frame(1000);
        EXPECT_EQ(left_engine(), left ? row.left : 9);
        EXPECT_EQ(right_engine(), left ? 9 : row.right);
      }
    }
  }
}

TEST_F(Ice, EnginePressureFallsBackUnderItsRegulatorAtOnce) {
  aircraft.engine_antiice_left = aircraft.antiice_upper_switch = 1;
  frame(1000);
  aircraft.antiice_upper_switch = 0;
  frame();
  EXPECT_EQ(left_engine(), 541);
  aircraft.engine_antiice_left = 2;
  frame();
  EXPECT_EQ(left_engine(), 9);
}

TEST_F(Ice, WingPressureSettlesByItsSwitchAndTheRaisedLimit) {
  for (const f64 night : {0.0, 1.0}) {
    host.tokens[token::panel_lights] = night;
    for (int setting = 0; setting < 2; ++setting) {
      off();
      const bool raised = wings.value("high_pressure_switch") == 1;
      aircraft.wing_antiice_left = 1;
      frame();
      EXPECT_EQ(left_wing(), 12);
      EXPECT_EQ(right_wing(), 9) << "the other wing stays off";
      aircraft.wing_antiice_right = 1;
      frame(99);
      EXPECT_EQ(left_wing(), 210);
      EXPECT_EQ(right_wing(), 208);
      frame(400);
      EXPECT_EQ(left_wing(), raised ? 511 : 501);
      EXPECT_EQ(right_wing(), raised ? 591 : 581);
      wings.click("high_pressure_switch");
    }
  }
}

TEST_F(Ice, WithoutDcPowerOnlyTheStepsOfTheFrameAreLeft) {
  aircraft.engine_antiice_left = aircraft.wing_antiice_left = 1;
  aircraft.engine_antiice_right = 3;
  aircraft.antiice_upper_switch = 2;
  frame(100);
  aircraft.dc_power_on = 0;
  frame(2);
  EXPECT_EQ(left_engine(), 12);
  EXPECT_EQ(right_engine(), 11);
  EXPECT_EQ(left_wing(), 12);
  EXPECT_EQ(right_wing(), 9);
}

}  // namespace
