/// Electrical power: the battery's and the supplies' lamps, the generators' warnings and the meters.
#include <gtest/gtest.h>

#include <cmath>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Electrics : public testing::Test {
 protected:
  rig::Host host;
};

TEST_F(Electrics, BatterySwitchAsksTheHostAndShowsTheHostsAnswer) {
  rig::Gauge panel("Masterbat");
  panel.click("battery_switch");
  const rig::Events expected{{0x10346, 0}, {0x102C2, 0}, {0x1033B, 0}, {0x1033C, 0}, {0x1033D, 0}};
  EXPECT_EQ(host.events, expected);
  EXPECT_EQ(aircraft.dc_power_on, 1u);
  panel.expect({{"battery_switch", 0}});  // a host that does not follow takes the switch back
  host.follows = true;
  panel.click("battery_switch");
  panel.expect({{"battery_switch", 1}});
}

TEST_F(Electrics, OnlyATokenThatTruncatesToOneIsOn) {
  rig::Gauge battery("Masterbat"), avionics("Avimaster");
  const std::pair<f64, u32> cases[] = {{0, 0},  {0.99, 0}, {1, 1},        {1.9, 1},  {2, 0},
                                       {-1, 0}, {NAN, 0},  {INFINITY, 0}, {1e300, 0}};
  for (const auto& [value, on] : cases) {
    host.tokens[token::battery] = host.tokens[token::avionics] = value;
    battery.expect({{"battery_lamp", on}}), avionics.expect({{"avionics_lamp", on}});
    EXPECT_EQ(aircraft.dc_power_on, on) << value;
    EXPECT_EQ(aircraft.avionics_master_on, on) << value;
  }
}

TEST_F(Electrics, SupplyLampsSayWhatFeedsTheBuses) {
  rig::Gauge battery("Masterbat"), ac("Acpwr");
  using Row = std::tuple<u32, u32, u32, f64, f64, f64>;
  for (const auto& [connected, ext_switch, apu, external, apu_on_bus, apu_generator] :
       {Row{0, 0, 0, 0, 0, 0}, Row{1, 0, 0, 1, 0, 0}, Row{1, 1, 0, 2, 0, 0}, Row{0, 1, 0, 0, 0, 0},
        Row{0, 0, 1, 0, 1, 1}, Row{1, 1, 1, 2, 0, 1}, Row{0, 0, 2, 0, 0, 0}}) {
    SCOPED_TRACE(testing::Message() << connected << ext_switch << apu);
    aircraft.ground_power_connected = connected;
    aircraft.ext_power_switch = ext_switch;
    aircraft.apu_gen_switch = apu;
    battery.expect({{"external_power_lamp", external},
                    {"apu_on_bus_lamp", apu_on_bus},
                    {"apu_generator_lamp", apu_generator}});
    ac.expect({{"bus_1_lamp", apu_on_bus},
               {"bus_2_lamp", apu_on_bus},
               {"apu_generator_lamp", apu_generator}});
  }
}

TEST_F(Electrics, GeneratorWarningFollowsSwitchAndCoreSpeed) {
  rig::Gauge panel("Ctr");
  for (const auto& [position, core_speed, warning] :
       {std::tuple{0u, 0.0, 0}, {1u, 9.9, 1}, {1u, 10.0, 0}, {2u, 55.0, 1}}) {
    aircraft.gen2_switch = position;
    host.tokens[token::engine_2_core_speed] = core_speed;
    panel.expect({{"generator_2_lamp", warning}});
  }
}

TEST_F(Electrics, DisconnectLightLatchesUntilTheSwitchIsWorkedAgain) {
  rig::Gauge panel("Acpwr");
  const auto light = [&](const char* control) {
    panel.click(control);
    panel.frame();
    return panel.value("drive_1_disconnect_light");
  };
  panel.frame();
  if (panel.value("drive_1_disconnect_guard") == 0) panel.click("drive_1_disconnect_guard");
  if (panel.value("drive_1_disconnect_switch") == 1) panel.click("drive_1_disconnect_switch");
  EXPECT_EQ(light("drive_1_disconnect_switch"), 0) << "lit";
  EXPECT_EQ(light("drive_1_disconnect_guard"), 0) << "the closed guard leaves it lit";
  EXPECT_EQ(panel.value("drive_1_disconnect_switch"), 0);
  EXPECT_EQ(light("drive_1_disconnect_switch"), 1) << "dark";
  EXPECT_EQ(light("drive_1_disconnect_switch"), 1) << "a closed guard lets nothing latch";
}

class Meters : public Electrics {
 protected:
  rig::Gauge meters{"Acdc"};

  void SetUp() override { aircraft.dc_power_on = 1; }
  f64 shown(const char* meter) {
    meters.frame();
    return meters.value(meter);
  }
};

TEST_F(Meters, DcMetersReadTheSelectedSource) {
  const f64 load_at_10[] = {0, 10, 8, 16, -5, 18, 7, 14};
  const f64 volts_at_84[] = {0, 66, 64, 65, 64, 66, 64, 65};
  const f64 volts_at_40[] = {0, 45, 44, 43, 20, 42, 43, 46};
  host.tokens[token::dc_amperes] = 10;
  for (u32 position = 0; position < 8; ++position) {
    aircraft.dc_meter_selector = position;
    host.tokens[token::dc_voltmeter] = 84;
    EXPECT_EQ(shown("dc_ammeter"), load_at_10[position]) << position;
    EXPECT_EQ(shown("dc_voltmeter"), volts_at_84[position]) << position;
    host.tokens[token::dc_voltmeter] = 40;
    EXPECT_EQ(shown("dc_voltmeter"), volts_at_40[position]) << position;
  }
  aircraft.ext_power_switch = 1;
  aircraft.dc_meter_selector = 4;
  EXPECT_EQ(shown("dc_ammeter"), 10);
  EXPECT_EQ(shown("dc_voltmeter"), 22);
  aircraft.dc_meter_selector = 2;
  host.tokens[token::dc_amperes] = 0;
  EXPECT_EQ(shown("dc_ammeter"), -2) << "the scale has its zero in the middle";
}

TEST_F(Meters, DcVoltmeterKeepsItsReadingAtTheMiddle) {
  aircraft.dc_meter_selector = 1;
  const std::pair<f64, f64> readings[] = {{200, 182}, {66, 90}, {70, 52}, {66, 52}, {65, 70}};
  for (const auto& [volts, shows] : readings) {
    host.tokens[token::dc_voltmeter] = volts;
    EXPECT_EQ(shown("dc_voltmeter"), shows) << volts;
  }
}

TEST_F(Meters, AcMetersReadTheSelectedSource) {
  host.tokens = {{token::ac_bus_1_voltmeter, 180},
                 {token::ac_bus_2_voltmeter, 170},
                 {token::generator_1_load, 12},
                 {token::generator_2_load, 14}};
  aircraft.apu_gen_switch = aircraft.ext_power_switch = 1;
  const f64 volts[] = {0, 269, 272, 270, 271, 258, 260, 270};
  const f64 frequency[] = {0, 20, 17, 14, 15, 16, 20, 18};
  for (u32 position = 0; position < 8; ++position) {
    aircraft.ac_meter_selector = position;
    EXPECT_EQ(shown("ac_voltmeter"), volts[position]) << position;
    EXPECT_EQ(shown("ac_frequency_meter"), frequency[position]) << position;
  }
  aircraft.ext_power_switch = 0;
  EXPECT_EQ(shown("ac_voltmeter") + shown("ac_frequency_meter"), 0) << "external power switched off";
  aircraft.ac_meter_selector = 1;
  aircraft.apu_gen_switch = 2;
  EXPECT_EQ(shown("ac_voltmeter"), 0) << "the APU is not on line";
}

TEST_F(Meters, ApuFrequencyKeepsItsReadingWhileTheEnginesDisagree) {
  aircraft.ac_meter_selector = aircraft.apu_gen_switch = 1;
  struct Row {
    f64 eng1, eng2, shows;
  };
  for (const Row& row : {Row{0, 0, 20}, Row{30, 0, 20}, Row{30, 30, 22}, Row{0, 30, 22},
                         Row{10, 10, 22}, Row{5, 10, 22}, Row{9.9, 9.9, 20}}) {
    host.tokens[token::engine_1_core_speed] = row.eng1;
    host.tokens[token::engine_2_core_speed] = row.eng2;
    EXPECT_EQ(shown("ac_frequency_meter"), row.shows) << row.eng1 << "/" << row.eng2;
  }
  aircraft.apu_gen_switch = 2;
  EXPECT_EQ(shown("ac_frequency_meter"), 20) << "kept";
  aircraft.apu_gen_switch = 0;
  EXPECT_EQ(shown("ac_frequency_meter"), 0);
}

TEST_F(Meters, EverythingRestsWithoutDcPower) {
  aircraft.dc_meter_selector = aircraft.ac_meter_selector = 2;
  for (const u32 source :
       {token::dc_amperes, token::dc_voltmeter, token::ac_bus_1_voltmeter, token::generator_1_load}) {
    host.tokens[source] = 50;
  }
  for (const u32 on : {1u, 0u}) {
    aircraft.dc_power_on = on;
    for (const char* meter : {"dc_ammeter", "dc_voltmeter", "ac_voltmeter", "ac_frequency_meter"}) {
      EXPECT_EQ(shown(meter) != 0, on == 1) << meter;
    }
  }
}

TEST_F(Electrics, LoadAndDriveMetersNeedTheirSwitchUp) {
  rig::Gauge load("Acload"), drive("Gendrive");
  host.tokens = {{token::generator_1_load, 60},
                 {token::generator_2_load, 500},
                 {token::engine_1_oil_temperature, 8000},
                 {token::engine_2_oil_temperature, 20000}};
  for (const u32 position : {0u, 1u, 2u}) {
    aircraft.gen1_switch = position;
    aircraft.gen2_switch = (position + 1) % 3;
    const bool first = position == 1, second = position == 0;
    load.expect({{"generator_1_load", first * 60}, {"generator_2_load", second * 125}});
    drive.expect(
        {{"drive_1_oil_temperature", first * 8000}, {"drive_2_oil_temperature", second * 16384}});
  }
}

TEST_F(Electrics, AuxiliaryLoadIsTheApusOrTheGroundUnits) {
  rig::Gauge load("Acload");
  using Row = std::tuple<u32, u32, u32, f64, f64>;
  for (const auto& [power, apu, ground, at_20, at_minus_5] :
       {Row{1, 1, 0, 65, 45}, Row{1, 1, 1, 65, 45}, Row{1, 0, 1, 55, 35}, Row{1, 2, 1, 55, 35},
        Row{1, 0, 0, 0, 0}, Row{0, 1, 1, 0, 0}}) {
    aircraft.dc_power_on = power;
    aircraft.apu_gen_switch = apu;
    aircraft.ext_power_switch = ground;
    for (const auto& [source, shows] : {std::pair(20., at_20), std::pair(-5., at_minus_5)}) {
      host.tokens[token::auxiliary_load] = source;
      load.expect({{"auxiliary_load", shows}});
    }
  }
}

TEST_F(Electrics, EmergencyLightLampsSayThePosition) {
  rig::Gauge panel("Emerlight");
  const f64 lamps[4][3] = {{0, 0, 1}, {0, 1, 0}, {1, 0, 1}, {0, 1, 0}};
  for (u32 position = 0; position < 4; ++position) {
    aircraft.emergency_light_switch = position;
    const auto& [bar, armed, not_armed] = lamps[position];
    panel.expect(
        {{"emergency_lights_on_bar", bar}, {"armed_lamp", armed}, {"not_armed_lamp", not_armed}});
  }
}

}  // namespace
