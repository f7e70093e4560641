/// Fuel control, fuel computer and fire protection.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

TEST(FuelControl, EachPumpFeedsItsOwnPressure) {
  rig::Host host;
  rig::Gauge panel("Cutoff"), left("Eng1ins"), right("Eng2ins");
  const auto pressures = [&] {
    left.frame(), right.frame();
    return std::pair{left.value("fuel_pressure"), right.value("fuel_pressure")};
  };
  EXPECT_EQ(pressures(), std::pair(0.0, 0.0)) << "without DC power";
  aircraft.dc_power_on = 1;
  EXPECT_EQ(pressures(), std::pair(850.0, 850.0));
  panel.click("pump_1_switch");
  EXPECT_EQ(pressures(), std::pair(950.0, 850.0));
  panel.click("pump_2_switch"), panel.click("pump_1_switch");
  EXPECT_EQ(pressures(), std::pair(850.0, 950.0));
}

TEST(FuelControl, APumpSwitchedOnAloneOverTheCrossfeedFeedsBothEngines) {
  struct Row {
    u32 pump, other_on, crossfeed;
    rig::Events on;
  };
  for (const Row& row :
       {Row{1, 0, 1, {{65888, 0}, {66340, 0}}}, Row{1, 1, 1, {{66340, 0}}}, Row{1, 0, 0, {{66340, 0}}},
        Row{2, 0, 1, {{65889, 0}, {66341, 0}}}, Row{2, 1, 1, {{66341, 0}}}}) {
    rig::Host host;
    rig::Gauge panel("Cutoff");
    const std::string pump = "pump_" + std::to_string(row.pump) + "_switch";
    (row.pump == 1 ? aircraft.fuel_pump2_switch : aircraft.fuel_pump1_switch) = row.other_on;
    aircraft.fuel_crossfeed_switch = row.crossfeed;
    panel.click(pump);
    EXPECT_EQ(host.sent(), row.on) << pump << " with the other at " << row.other_on;
    panel.click(pump);
    EXPECT_EQ(host.sent(), (rig::Events{row.on.back()})) << "switched off";
  }
}

TEST(FuelControl, LightsFollowPumpsLeversAndSelectors) {
  rig::Host host;
  rig::Gauge panel("Cutoff"), flag("Fuelshut");
  aircraft.fuel_pump2_switch = 1;
  aircraft.fuel_selector_left = 2;
  host.tokens[token::fuel_lever_1] = 1;
  panel.expect({{"pump_1_left_low_pressure_light", 1},
                {"pump_1_right_low_pressure_light", 1},
                {"pump_2_left_low_pressure_light", 0},
                {"pump_2_right_low_pressure_light", 0},
                {"left_feed_light", 1},
                {"right_feed_light", 0},
                {"engine_1_fuel_valve_light", 1},
                {"engine_2_fuel_valve_light", 0}});
  for (const auto& [left, right, withdrawn] :
       {std::tuple{1.0, 1.0, 1}, {1.0, 0.0, 0}, {0.0, 1.0, 0}, {1.0, 0.999, 0}, {2.0, 1.0, 0}}) {
    host.tokens = {{token::fuel_lever_1, left}, {token::fuel_lever_2, right}};
    flag.expect({{"fuel_shut_off_flag", withdrawn}});
  }
}

class Fire : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge handles{"Firesw"}, captain{"Cafire"}, first_officer{"Fofire"};

  /// How many of the nine lights and handles are lit.
  int lit() {
    int count = 0;
    for (rig::Gauge* panel : {&captain, &first_officer, &handles}) {
      panel->frame();
      for (const rig::NamedPart& part : panel->parts()) {
        count += part.name.find("fire") != part.name.npos && panel->value(part) == 1;
      }
    }
    return count;
  }
};

TEST_F(Fire, TheTestNeedsPowerLightsEverythingForTwoSecondsAndRings) {
  rig::Gauge panel("Lightsp");
  panel.click("fire_test_button");
  EXPECT_EQ(lit(), 0);
  aircraft.dc_power_on = 1;
  panel.click("fire_test_button");
  EXPECT_EQ(lit(), 9);
  EXPECT_TRUE(rig::heard(fire_sound_request));
  panel.click("fire_test_button");
  EXPECT_EQ(lit(), 0) << "a second press ends it";
  panel.click("fire_test_button");
  for (const auto& [clock, expected] : {std::pair{102.9, 9}, {103.0, 0}}) {
    host.tokens[token::clock_seconds] = clock;
    EXPECT_EQ(lit(), expected);
  }
  rig::heard(fire_sound_request);
  EXPECT_EQ(lit(), 0);
  EXPECT_FALSE(rig::heard(fire_sound_request));
}

TEST_F(Fire, TheGeneratorSwitchedDownIsAnApuFire) {
  aircraft.apu_gen_switch = 2;
  EXPECT_EQ(lit(), 2);
  EXPECT_EQ(captain.value("apu_fire_light") + first_officer.value("apu_fire_light"), 2);
  EXPECT_TRUE(rig::heard(fire_sound_request));
}

TEST_F(Fire, HandlesMoveByBothButtonsBetweenTheirEnds) {
  const std::pair<u32, f64> moves[] = {{MOUSE_LEFT, 0},  {MOUSE_RIGHT, 1}, {MOUSE_RIGHT, 2},
                                       {MOUSE_RIGHT, 2}, {MOUSE_LEFT, 1},  {MOUSE_LEFT, 0}};
  for (const char* handle : {"left_fire_handle", "apu_fire_handle", "right_fire_handle"}) {
    for (const auto& [button, position] : moves) {
      handles.click(handle, button);
      handles.expect({{handle, position}});
    }
  }
}

class FuelComputer : public testing::Test {
 protected:
  FuelComputer() {
    aircraft.dc_power_on = aircraft.fuel_computer_power = 1;
    host.tokens[token::left_tank_quantity] = 5432.9;
    host.tokens[token::right_tank_quantity] = 1234;
    host.tokens[token::engine_1_fuel_flow] = 123456;
    host.tokens[token::engine_2_fuel_flow] = 98765;
  }
  /// The computer's modes live as long as the module.
  ~FuelComputer() override {
    if (used_mode) computer.click("fuel_used_mode_button");
  }

  std::string shown(const char* display) {
    computer.frame();
    return computer.text(display);
  }

  rig::Host host;
  rig::Gauge computer{"Ffsys"};
  bool used_mode = false;
};

TEST_F(FuelComputer, EachDisplayShowsWhatItsSelectorChooses) {
  struct Row {
    u32 left, right;
    const char *left_text, *right_text;
  };
  for (const Row& row : {Row{0, 1, "543", "098"}, Row{1, 0, "123", "123"}, Row{2, 0, "000", "123"},
                         Row{0, 2, "543", "000"}, Row{3, 3, "   ", "   "}}) {
    aircraft.fuel_selector_left = row.left;
    aircraft.fuel_selector_right = row.right;
    EXPECT_EQ(shown("left_display"), row.left_text) << row.left;
    EXPECT_EQ(shown("right_display"), row.right_text) << row.right;
  }
  aircraft.fuel_selector_left = 1;
  host.tokens[token::engine_1_fuel_flow] = 999900;
  EXPECT_EQ(shown("left_display"), "   ") << "a flow beyond the display";
  host.tokens[token::engine_1_fuel_flow] = 999899;
  EXPECT_EQ(shown("left_display"), "999");
}

TEST_F(FuelComputer, IsBlankWithoutEitherPower) {
  for (u32* power : {&aircraft.dc_power_on, &aircraft.fuel_computer_power}) {
    *power = 0;
    for (const char* display : {"left_display", "right_display", "weight_display"}) {
      EXPECT_EQ(shown(display), "   ") << display;
    }
    *power = 1;
  }
}

TEST_F(FuelComputer, CountsTheFuelUsedFromItsDatumAndHolds) {
  host.tokens[token::centre_tank_quantity] = 101;
  computer.service(SERVICE_SET_UP);
  computer.click("fuel_used_mode_button"), used_mode = true;
  host.tokens[token::left_tank_quantity] -= 1000;
  EXPECT_EQ(shown("left_display"), "104") << "5432 and half of the centre tank, less 4432.9";
  EXPECT_EQ(shown("right_display"), "005") << "half of the centre tank";
  computer.click("reset_button");
  host.tokens[token::left_tank_quantity] -= 1000;
  EXPECT_EQ(shown("left_display"), "104") << "held";
  computer.click("reset_button");
  host.tokens[token::left_tank_quantity] -= 250;
  EXPECT_EQ(shown("left_display"), "025") << "from the new datum";
  host.tokens[token::left_tank_quantity] += 2000;
  EXPECT_EQ(shown("left_display"), "000") << "fuel added stands at the foot";
  host.tokens[token::left_tank_quantity] = -90000;
  EXPECT_EQ(shown("left_display"), "999") << "and at the top";
}

TEST_F(FuelComputer, WeighsTheAircraftOrTheFuelAlone) {
  EXPECT_EQ(shown("weight_display"), "171");
  host.tokens[token::total_fuel] = 3390;
  EXPECT_EQ(shown("weight_display"), "272") << "33.9 x 3.7862 x 0.7911 = 101.5 on top";
  computer.click("weight_mode_button");
  EXPECT_EQ(shown("weight_display"), "101");
  computer.click("weight_mode_button");
}

TEST_F(FuelComputer, DotsTellLowFuelAndTest) {
  for (const auto& [left, right, fuel, low, test] : {std::tuple{1u, 0u, 249.0, "10", "00"},
                                                     {0u, 1u, 249.0, "01", "00"},
                                                     {1u, 1u, 250.0, "00", "00"},
                                                     {2u, 0u, 0.0, "00", "10"},
                                                     {0u, 2u, 0.0, "00", "01"}}) {
    SCOPED_TRACE(testing::Message() << left << right << " with " << fuel);
    aircraft.fuel_selector_left = left;
    aircraft.fuel_selector_right = right;
    host.tokens[token::total_fuel] = fuel;
    computer.expect({{"left_low_fuel_dot", low[0] - '0'},
                     {"right_low_fuel_dot", low[1] - '0'},
                     {"left_check_dot", test[0] - '0'},
                     {"right_check_dot", test[1] - '0'}});
  }
}

TEST(CentreTank, TheTestDrivesTheDialToTheMiddle) {
  rig::Host host;
  rig::Gauge gauge("Fuelc");
  host.tokens[token::centre_tank_quantity] = 100;
  gauge.click("quantity_test_switch");
  gauge.expect({{"centre_tank_quantity", 415}});
  host.tokens[token::clock_seconds] = 106;
  gauge.frame(2);
  EXPECT_EQ(gauge.value("centre_tank_quantity"), 100);
}

}  // namespace
