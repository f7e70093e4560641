/// Air conditioning: switches and selectors in, duct and cabin temperatures, lights and events out.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class AirConditioning : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Tempcon"}, ducts{"Ductc"}, cabin{"Cabc"};

  f64 left_duct() { return ducts.value_at({37, 35}); }
  f64 right_duct() { return ducts.value_at({121, 35}); }
  f64 cabin_temperature() { return cabin.value(320); }
  f64 left_light() { return panel.value_at({66, 87}); }

  void run(int frames = 1) {
    for (int i = 0; i < frames; ++i) {
      ducts.frame();
      cabin.frame();
      panel.frame();
    }
  }
  /// Both sides supplied and under automatic control, the ducts cold to begin with.
  void SetUp() override {
    run();
    aircraft.dc_power_on = 1;
    aircraft.aircon_left_on = aircraft.aircon_right_on = 1;
    aircraft.aircon_left_auto = aircraft.aircon_right_auto = 1;
  }
  /// The shared override switch holds only under an open guard.
  void open_override_guard(bool open) {
    panel.frame();
    if ((panel.value(2160) == 1) != open) panel.click(78, 124);
  }
};

TEST_F(AirConditioning, DuctsAndCabinFollowTheirSelectors) {
  rig::Gauge indicator("Tempset");
  const f64 duct[] = {10, 15, 18, 22, 25, 27, 35, 40, 55, 60};
  const f64 cabin_at[] = {15, 17, 20, 21, 22, 23, 24, 25, 26, 27};
  for (u32 right = 0; right < 10; ++right) {
    const u32 left = 9 - right;
    aircraft.temp_selector_left = left;
    aircraft.temp_selector_right = right;
    run();
    indicator.frame();
    EXPECT_EQ(left_duct(), duct[left]) << left;
    EXPECT_EQ(right_duct(), duct[right]) << right;
    EXPECT_EQ(cabin_temperature(), cabin_at[right]) << right;
    EXPECT_EQ(indicator.value(220, 0), left);
    EXPECT_EQ(indicator.value(220, 1), right);
  }
}

TEST_F(AirConditioning, ASideNeedsSupplyControlAndDcPower) {
  rig::Gauge indicator("Tempset");
  struct Row {
    u32 supply, automatic, power;
    f64 duct, cabin, indicated;
  };
  for (const Row& row : {Row{1, 1, 1, 40, 25, 7}, Row{1, 0, 1, 10, 0, 0}, Row{0, 1, 1, 10, 0, 7},
                         Row{0, 0, 1, 10, 0, 0}, Row{1, 1, 0, 2, 0, 7}, Row{0, 0, 0, 2, 0, 0}}) {
    aircraft.temp_selector_left = aircraft.temp_selector_right = 7;
    aircraft.aircon_right_on = row.supply;
    aircraft.aircon_right_auto = row.automatic;
    aircraft.dc_power_on = row.power;
    run(3);
    indicator.frame();
    EXPECT_EQ(right_duct(), row.duct) << row.supply << row.automatic << row.power;
    EXPECT_EQ(cabin_temperature(), row.cabin) << row.supply << row.automatic << row.power;
    EXPECT_EQ(indicator.value(220, 1), row.indicated) << row.supply << row.automatic;
    EXPECT_EQ(left_duct(), row.power == 1 ? 40 : 2) << "the other side stands by itself";
  }
}

TEST_F(AirConditioning, OverrideHeatsADegreeAFrameAndLightsTheOverheatLight) {
  for (const f64 night : {0.0, 1.0}) {  // the lit copy must not heat twice as fast
    host.tokens[token::panel_lights] = night;
    open_override_guard(true);
    aircraft.temp_override_switch = 0;
    aircraft.temp_selector_left = 5;
    run(2);
    EXPECT_EQ(left_duct(), 27);
    EXPECT_EQ(left_light(), 1) << "dark";

    panel.click(78, 148);
    EXPECT_EQ(aircraft.temp_override_switch, 1u);
    run(29);
    EXPECT_EQ(left_duct(), 56);
    EXPECT_EQ(left_light(), 1) << "follows a frame later";
    run();
    EXPECT_EQ(left_duct(), 57);
    EXPECT_EQ(left_light(), 0) << "lit";
    run(40);
    EXPECT_EQ(left_duct(), 61) << "one step past the scale";

    open_override_guard(false);
    run(3);
    EXPECT_EQ(aircraft.temp_override_switch, 0u);
    EXPECT_EQ(left_duct(), 27);
    EXPECT_EQ(left_light(), 1);
  }
}

TEST_F(AirConditioning, OverheatLightStaysAsItWasAtItsThreshold) {
  for (const u32 before : {9u, 0u}) {
    aircraft.temp_selector_left = before;
    run(2);
    const f64 light = left_light();
    EXPECT_EQ(light, before == 9 ? 0 : 1);
    aircraft.temp_selector_left = 8;
    run(3);
    EXPECT_EQ(left_light(), light) << "at 55, from selector " << before;
  }
}

TEST_F(AirConditioning, AKnobLeansTheWayItWasTurnedForTwoSeconds) {
  struct Row {
    i32 x_down, x_up;
    PanelPoint knob;
    u32 Aircraft::*selector;
  };
  f64 now = 100;
  for (const Row& row : {Row{8, 35, {9, 92}, &Aircraft::temp_selector_left},
                         Row{123, 150, {122, 92}, &Aircraft::temp_selector_right}}) {
    const auto lean = [&](f64 seconds) {
      host.tokens[token::clock_seconds] = seconds;
      panel.frame();
      return panel.value_at(row.knob);
    };
    panel.click(row.x_down, 93);
    EXPECT_TRUE(rig::heard(click_sound_request));
    EXPECT_EQ(lean(now), 0) << "at its end it clicks and does not turn";

    panel.click(row.x_up, 93);
    EXPECT_EQ(aircraft.*row.selector, 1u);
    EXPECT_EQ(lean(now + 2.9), 2);
    panel.click(row.x_down, 93);  // a turn the other way starts its own two seconds
    EXPECT_EQ(aircraft.*row.selector, 0u);
    EXPECT_EQ(lean(now + 4.9), 1);
    EXPECT_EQ(lean(now + 5), 0);

    for (int i = 0; i < 12; ++i) panel.click(row.x_up, 93);
    EXPECT_EQ(aircraft.*row.selector, 9u);
    EXPECT_EQ(lean(now + 8), 0);
    panel.click(row.x_up, 93);
    EXPECT_EQ(lean(now + 8), 0);
    now += 100;
    lean(now);
  }
}

TEST_F(AirConditioning, RamAirAsksTheHostOnEveryPressAndNotWhenItsGuardCloses) {
  rig::Gauge ram_air("Ramair");
  ram_air.frame();
  if (ram_air.value(1320) == 1) ram_air.click(72, 3);
  ram_air.click(72, 27);  // under the closed guard it does not move, and asks all the same
  ram_air.click(72, 3);
  ram_air.click(72, 27);
  ram_air.frame();
  EXPECT_EQ(ram_air.value(1330), 1);
  EXPECT_EQ(host.events, rig::Events(2, {66841, 0}));
  ram_air.click(72, 3);
  ram_air.frame();
  EXPECT_EQ(ram_air.value(1330), 0);
  EXPECT_EQ(host.events.size(), 2u);
}

}  // namespace
