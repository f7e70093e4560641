/// Air conditioning: switches and selectors in, duct and cabin temperatures, lights and events out.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

/// One side of the air conditioning: its part of the shared state and of the panels' names.
struct Side {
  std::string name;
  u32 Aircraft::*supply;
  u32 Aircraft::*automatic;
  u32 Aircraft::*selector;
};
const Side sides[] = {
    {"left", &Aircraft::aircon_left_on, &Aircraft::aircon_left_auto, &Aircraft::temp_selector_left},
    {"right", &Aircraft::aircon_right_on, &Aircraft::aircon_right_auto,
     &Aircraft::temp_selector_right}};
const Side& other_than(const Side& side) { return &side == &sides[0] ? sides[1] : sides[0]; }

class AirConditioning : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Tempcon"}, ducts{"Ductc"}, cabin{"Cabc"}, indicator{"Tempset"};

  f64 duct(const Side& side) { return ducts.value(side.name + "_duct_temperature"); }
  f64 light(const Side& side) { return panel.value(side.name + "_duct_hot_light"); }
  f64 indicated(const Side& side) { return indicator.value(side.name + "_selected_temperature"); }

  void run(int frames = 1) {
    for (; frames > 0; --frames) {
      for (rig::Gauge* gauge : {&ducts, &cabin, &panel, &indicator}) gauge->frame();
    }
  }
  /// Both sides supplied and under automatic control, the ducts cold to begin with.
  void SetUp() override {
    run();
    aircraft.dc_power_on = 1;
    for (const Side& side : sides) aircraft.*side.supply = aircraft.*side.automatic = 1;
  }
  /// The shared override switch holds only under an open guard.
  void open_override_guard(bool open) {
    panel.frame();
    if ((panel.value("override_guard") == 1) != open) panel.click("override_guard");
  }
};

TEST_F(AirConditioning, DuctsAndCabinFollowTheirSelectors) {
  const f64 duct_at[] = {10, 15, 18, 22, 25, 27, 35, 40, 55, 60};
  const f64 cabin_at[] = {15, 17, 20, 21, 22, 23, 24, 25, 26, 27};
  for (u32 right = 0; right < 10; ++right) {
    const u32 left = 9 - right;
    aircraft.temp_selector_left = left;
    aircraft.temp_selector_right = right;
    run();
    EXPECT_EQ(duct(sides[0]), duct_at[left]) << left;
    EXPECT_EQ(duct(sides[1]), duct_at[right]) << right;
    EXPECT_EQ(cabin.value("cabin_temperature"), cabin_at[right]) << right;
    EXPECT_EQ(indicated(sides[0]), left);
    EXPECT_EQ(indicated(sides[1]), right);
  }
}

TEST_F(AirConditioning, ASideNeedsItsSupplyItsControlAndDcPower) {
  using Row = std::tuple<u32, u32, u32, f64, f64, f64>;
  for (const auto& [supply, automatic, power, warm, cabin_warm, needle] :
       {Row{1, 1, 1, 40, 25, 7}, Row{1, 0, 1, 10, 0, 0}, Row{0, 1, 1, 10, 0, 7}, Row{0, 0, 1, 10, 0, 0},
        Row{1, 1, 0, 2, 0, 7}, Row{0, 0, 0, 2, 0, 0}}) {
    for (const Side& side : sides) {
      const Side& other = other_than(side);
      SCOPED_TRACE(testing::Message() << side.name << supply << automatic << power);
      aircraft.*side.selector = aircraft.*other.selector = 7;
      aircraft.*side.supply = supply;
      aircraft.*side.automatic = automatic;
      aircraft.*other.supply = aircraft.*other.automatic = 1;
      aircraft.dc_power_on = power;
      run(3);
      EXPECT_EQ(duct(side), warm);
      EXPECT_EQ(indicated(side), needle);
      EXPECT_EQ(duct(other), power == 1 ? 40 : 2);
      EXPECT_EQ(indicated(other), 7);
      const f64 heated_from_the_left = power == 1 ? 25 : 0;
      EXPECT_EQ(cabin.value("cabin_temperature"),
                &side == &sides[1] ? cabin_warm : heated_from_the_left);
    }
  }
}

TEST_F(AirConditioning, OverrideHeatsADegreeAFrameAndLightsTheOverheatLight) {
  for (const f64 night : {0.0, 1.0}) {  // the lit copy must not heat twice as fast
    for (const Side& side : sides) {
      const Side& other = other_than(side);
      host.tokens[token::panel_lights] = night;
      open_override_guard(true);
      aircraft.temp_override_switch = 0;
      aircraft.*side.selector = 5;
      aircraft.*other.automatic = 0;
      run(2);
      EXPECT_EQ(duct(side), 27);
      EXPECT_EQ(light(side), 1) << "dark";

      panel.click("override_switch");
      EXPECT_EQ(aircraft.temp_override_switch, 1u);
      run(29);
      EXPECT_EQ(duct(side), 56);
      EXPECT_EQ(light(side), 1) << "follows a frame later";
      run();
      EXPECT_EQ(duct(side), 57);
      EXPECT_EQ(light(side), 0) << "lit";
      EXPECT_EQ(light(other), 1);
      run(40);
      EXPECT_EQ(duct(side), 61) << "one step past the scale";

      open_override_guard(false);
      run(3);
      EXPECT_EQ(aircraft.temp_override_switch, 0u);
      EXPECT_EQ(duct(side), 27);
      EXPECT_EQ(light(side), 1);
      aircraft.*other.automatic = 1;
    }
  }
}

TEST_F(AirConditioning, OverheatLightStaysAsItWasAtItsThreshold) {
  for (const u32 before : {9u, 0u}) {
    aircraft.temp_selector_left = before;
    run(2);
    aircraft.temp_selector_left = 8;
    run(3);
    EXPECT_EQ(light(sides[0]), before == 9 ? 0 : 1) << "at 55, from selector " << before;
  }
}

TEST_F(AirConditioning, AKnobLeansTheWayItWasTurnedForTwoSeconds) {
  f64 now = 100;
  for (const Side& side : sides) {
    const std::string knob = side.name + "_temperature_selector";
    struct Turn {
      const char* way;
      int times;
      f64 after;  ///< seconds from the beginning
      f64 lean;
      u32 selected;
    };
    for (const Turn& turn :
         {Turn{"_down", 1, 0, 0, 0}, Turn{"_up", 1, 2.9, 2, 1}, Turn{"_down", 1, 4.9, 1, 0},
          Turn{"_down", 0, 5, 0, 0}, Turn{"_up", 12, 8, 0, 9}, Turn{"_down", 1, 8, 1, 8}}) {
      for (int i = 0; i < turn.times; ++i) panel.click(knob + turn.way);
      host.tokens[token::clock_seconds] = now + turn.after;
      panel.frame();
      EXPECT_EQ(panel.value(knob), turn.lean) << side.name << turn.way << ' ' << turn.after;
      EXPECT_EQ(aircraft.*side.selector, turn.selected) << side.name << turn.way;
    }
    now += 100;
  }
}

TEST_F(AirConditioning, RamAirAsksTheHostOnEveryPressAndNotWhenItsGuardCloses) {
  rig::Gauge ram_air("Ramair");
  ram_air.frame();
  if (ram_air.value("inlet_guard") == 1) ram_air.click("inlet_guard");
  ram_air.click("inlet_switch");  // under the closed guard it does not move, and asks all the same
  ram_air.click("inlet_guard");
  ram_air.click("inlet_switch");
  ram_air.expect({{"inlet_switch", 1}});
  ram_air.click("inlet_guard");
  ram_air.expect({{"inlet_switch", 0}});
  EXPECT_EQ(host.events, rig::Events(2, {66841, 0}));
}

}  // namespace
