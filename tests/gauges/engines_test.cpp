/// Engine instruments, fuel control and fire protection.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

/// A needle shows its token between the ends of its dial.
TEST(EngineDials, ShowTheirOwnEngineWithinTheDial) {
  struct Row {
    const char *gauge, *part;
    u32 token;
    f64 low, high;
  };
  constexpr Row rows[] = {
      {"Engn1", "engine_1_fan_speed", 624, 0, 120},
      {"Engn1", "engine_2_fan_speed", 643, 0, 120},
      {"Engtgt", "engine_1_gas_temperature", 631, 0, 3800},
      {"Engtgt", "engine_2_gas_temperature", 650, 0, 3800},
      {"Eng1n2", "core_speed", 625, 0, 120},
      {"Eng2n2", "core_speed", 644, 0, 120},
      {"Eng1ins", "oil_pressure", 148, 0, 32768},
      {"Eng1ins", "oil_temperature", 147, -4681, 16384},
      {"Eng2ins", "oil_pressure", 183, 0, 32768},
      {"Eng2ins", "oil_temperature", 182, -4681, 16384},
      {"Fuelrl", "left_tank_quantity", 304, 0, 1280},
      {"Fuelrl", "right_tank_quantity", 303, 0, 1280},
      {"Fuelc", "centre_tank_quantity", 305, 0, 830},
      {"Fouti", "hydraulic_pressure", 185, 0, 14500000},
      {"Fouti", "hydraulic_quantity", 186, 0, 20000},
      {"Foflt", "hydraulic_pressure", 150, 0, 14500000},
      {"Foflt", "hydraulic_quantity", 151, 0, 20000},
  };
  for (const Row& row : rows) {
    rig::Host host;
    rig::Gauge gauge(row.gauge);
    const f64 middle = (row.low + row.high) / 2;
    for (const auto& [measured, shown] : {std::pair{row.low - 10, row.low},
                                          {middle, middle},
                                          {row.high, row.high},
                                          {row.high + 10, row.high}}) {
      host.tokens = {{row.token, measured}};
      gauge.frame();
      EXPECT_EQ(gauge.value(row.part), shown) << row.gauge << ' ' << row.part << " at " << measured;
    }
  }
}

TEST(EngineDials, ThePressureRatioIsShownTwiceAsWide) {
  const std::pair<const char*, const char*> ratios[] = {{"Engn1", "engine_1_pressure_ratio"},
                                                        {"Eng1n2", "pressure_ratio"},
                                                        {"Engn1", "engine_2_pressure_ratio"},
                                                        {"Eng2n2", "pressure_ratio"}};
  for (const auto& [name, part] : ratios) {
    rig::Host host;
    rig::Gauge gauge(name);
    const bool second = std::string_view(part).find('2') != std::string_view::npos ||
                        std::string_view(name) == "Eng2n2";
    for (const auto& [measured, shown] : {std::pair{0.9, 1.0}, {1.0, 1.0}, {1.2, 1.4}, {1.5, 1.78}}) {
      host.tokens = {{second ? 649u : 630u, measured}};
      gauge.frame();
      EXPECT_NEAR(gauge.value(part), shown, 1e-12) << name << ' ' << part;
    }
  }
}

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
    const char* pump;
    u32 u32_other, crossfeed;
    rig::Events on;
  };
  const Row rows[] = {
      {"pump_1_switch", 0, 1, {{65888, 0}, {66340, 0}}},
      {"pump_1_switch", 1, 1, {{66340, 0}}},
      {"pump_1_switch", 0, 0, {{66340, 0}}},
      {"pump_2_switch", 0, 1, {{65889, 0}, {66341, 0}}},
      {"pump_2_switch", 1, 1, {{66341, 0}}},
  };
  for (const Row& row : rows) {
    rig::Host host;
    rig::Gauge panel("Cutoff");
    const bool first = std::string_view(row.pump) == "pump_1_switch";
    (first ? aircraft.fuel_pump2_switch : aircraft.fuel_pump1_switch) = row.u32_other;
    aircraft.fuel_crossfeed_switch = row.crossfeed;
    panel.click(row.pump);
    EXPECT_EQ(host.events, row.on) << row.pump << " with the other at " << row.u32_other;
    host.events.clear();
    panel.click(row.pump);
    EXPECT_EQ(host.events, (rig::Events{row.on.back()})) << "switched off";
  }
}

TEST(FuelControl, LightsFollowPumpsLeversAndSelectors) {
  rig::Host host;
  rig::Gauge panel("Cutoff"), flag("Fuelshut");
  aircraft.fuel_pump2_switch = 1;
  aircraft.fuel_selector_left = 2;
  host.tokens[token::fuel_lever_1] = 1;
  panel.frame();
  for (const auto& [part, image] : {std::pair{"pump_1_left_low_pressure_light", 1},
                                    {"pump_1_right_low_pressure_light", 1},
                                    {"pump_2_left_low_pressure_light", 0},
                                    {"pump_2_right_low_pressure_light", 0},
                                    {"left_feed_light", 1},
                                    {"right_feed_light", 0},
                                    {"engine_1_fuel_valve_light", 1},
                                    {"engine_2_fuel_valve_light", 0},
                                    {"engine_1_fuel_lever", 1},
                                    {"engine_2_fuel_lever", 0}}) {
    EXPECT_EQ(panel.value(part), image) << part;
  }
  for (const auto& [left, right, withdrawn] :
       {std::tuple{1.0, 1.0, 1}, {1.0, 0.0, 0}, {0.0, 1.0, 0}, {1.0, 0.999, 0}, {2.0, 1.0, 0}}) {
    host.tokens[token::fuel_lever_1] = left;
    host.tokens[token::fuel_lever_2] = right;
    flag.frame();
    EXPECT_EQ(flag.value("fuel_shut_off_flag"), withdrawn) << left << ' ' << right;
  }
}

class Fire : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge handles{"Firesw"}, captain{"Cafire"}, first_officer{"Fofire"};

  /// How many of the nine lights and handles are lit.
  int lit() {
    captain.frame(), first_officer.frame(), handles.frame();
    int count = 0;
    for (const rig::Gauge* strip : {&captain, &first_officer}) {
      for (const char* light :
           {"left_engine_fire_light", "apu_fire_light", "right_engine_fire_light"}) {
        count += strip->value(light) == 1;
      }
    }
    for (const char* handle : {"left_fire_handle", "apu_fire_handle", "right_fire_handle"}) {
      count += handles.value(handle) == 1;
    }
    return count;
  }
};

TEST_F(Fire, TheTestLightsEverythingForTwoSecondsAndRings) {
  aircraft.dc_power_on = 1;
  rig::Gauge panel("Lightsp");
  panel.click("fire_test_button");
  EXPECT_EQ(lit(), 9);
  EXPECT_TRUE(rig::heard(fire_sound_request));
  host.tokens[token::clock_seconds] = 102.9;
  EXPECT_EQ(lit(), 9);
  host.tokens[token::clock_seconds] = 103;
  EXPECT_EQ(lit(), 0);
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
  for (const char* handle : {"left_fire_handle", "apu_fire_handle", "right_fire_handle"}) {
    for (const auto& [button, position] : {std::pair{MOUSE_LEFT, 0},
                                           {MOUSE_RIGHT, 1},
                                           {MOUSE_RIGHT, 2},
                                           {MOUSE_RIGHT, 2},
                                           {MOUSE_LEFT, 1},
                                           {MOUSE_LEFT, 0}}) {
      handles.click(handle, button);
      handles.frame();
      EXPECT_EQ(handles.value(handle), position) << handle;
      EXPECT_TRUE(rig::heard(toggle_click_sound_request));
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
    if (used_mode) computer.click("fuel_used_mode_button");
    if (hold) computer.click("reset_button");
  }
  ~FuelComputer() override { back_to_rest(); }

  /// The computer's modes live as long as the module.
  void back_to_rest() {
    if (used_mode) computer.click("fuel_used_mode_button");
    if (hold) computer.click("reset_button");
    used_mode = hold = false;
  }
  void press_used_mode() { computer.click("fuel_used_mode_button"), used_mode = !used_mode; }
  void press_reset() { computer.click("reset_button"), hold = !hold; }

  std::string shown(const char* display) {
    computer.frame();
    return computer.text(display);
  }

  rig::Host host;
  rig::Gauge computer{"Ffsys"};
  bool used_mode = false, hold = false;
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
  press_used_mode();
  host.tokens[token::left_tank_quantity] -= 1000;
  EXPECT_EQ(shown("left_display"), "104") << "5432 and half of the centre tank, less 4432.9";
  EXPECT_EQ(shown("right_display"), "005") << "half of the centre tank";
  press_reset();
  host.tokens[token::left_tank_quantity] -= 1000;
  EXPECT_EQ(shown("left_display"), "104") << "held";
  press_reset();
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
  struct Row {
    u32 left, right;
    f64 fuel;
    f64 left_low, right_low, left_test, right_test;
  };
  for (const Row& row :
       {Row{1, 0, 249, 1, 0, 0, 0}, Row{0, 1, 249, 0, 1, 0, 0}, Row{1, 1, 250, 0, 0, 0, 0},
        Row{2, 0, 0, 0, 0, 1, 0}, Row{0, 2, 0, 0, 0, 0, 1}}) {
    aircraft.fuel_selector_left = row.left;
    aircraft.fuel_selector_right = row.right;
    host.tokens[token::total_fuel] = row.fuel;
    computer.frame();
    EXPECT_EQ(computer.value("left_low_fuel_dot"), row.left_low) << row.left << ' ' << row.fuel;
    EXPECT_EQ(computer.value("right_low_fuel_dot"), row.right_low) << row.right << ' ' << row.fuel;
    EXPECT_EQ(computer.value("left_check_dot"), row.left_test) << row.left;
    EXPECT_EQ(computer.value("right_check_dot"), row.right_test) << row.right;
  }
}

TEST(CentreTank, TheTestDrivesTheDialToTheMiddleForFiveSeconds) {
  rig::Host host;
  rig::Gauge gauge("Fuelc");
  host.tokens[token::centre_tank_quantity] = 100;
  gauge.click("quantity_test_switch");
  for (const auto& [clock, reading] : {std::pair{100.0, 415.0}, {105.9, 415.0}, {106.0, 100.0}}) {
    host.tokens[token::clock_seconds] = clock;
    gauge.frame(2);
    EXPECT_EQ(gauge.value("centre_tank_quantity"), reading) << clock;
    EXPECT_EQ(gauge.value("quantity_test_switch"), reading == 415) << clock;
  }
}

TEST(FuelRequest, TheLeverSpringsBackAfterTwoSeconds) {
  rig::Host host;
  rig::Gauge gauge("Fuelreq");
  gauge.click("fuel_request_lever");
  EXPECT_EQ(host.events, (rig::Events{{66657, 0}}));
  for (const auto& [clock, image] : {std::pair{102.5, 1}, {103.0, 0}}) {
    host.tokens[token::clock_seconds] = clock;
    gauge.frame();
    EXPECT_EQ(gauge.value("fuel_request_lever"), image) << clock;
  }
}

}  // namespace
