/// Electrical power, told as a crew would work it: switches in, lamps, meters, events and clicks out.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Electrics : public testing::Test {
 protected:
  rig::Host host;

  void power(bool on) {
    aircraft.dc_power_on = on;
    host.tokens[token::battery] = on;
  }
};

TEST_F(Electrics, BatterySwitchAsksTheHostAndShowsTheHostsAnswer) {
  host.flips(event::battery_toggle, token::battery);
  rig::Gauge panel("Masterbat");
  panel.frame();
  EXPECT_EQ(panel.value(40), 0) << "the lamp is dark in a cold cockpit";

  panel.click(47, 99);
  const rig::Events expected{{0x10346, 0}, {0x102C2, 0}, {0x1033B, 0}, {0x1033C, 0}, {0x1033D, 0}};
  EXPECT_EQ(host.events, expected);
  EXPECT_TRUE(rig::heard(toggle_click_sound_request));
  panel.frame();
  EXPECT_EQ(panel.value(2130), 1);
  EXPECT_EQ(panel.value(40), 1);

  host.on_event.clear();  // a host that does not follow takes the switch back
  panel.click(47, 99);
  EXPECT_EQ(aircraft.dc_power_on, 0u);
  panel.frame();
  EXPECT_EQ(panel.value(2130), 1);
}

TEST_F(Electrics, OnlyATokenThatTruncatesToOneIsOn) {
  rig::Gauge battery("Masterbat"), avionics("Avimaster");
  const std::pair<f64, u32> cases[] = {{0, 0},  {0.99, 0}, {1, 1},        {1.9, 1},  {2, 0},
                                       {-1, 0}, {NAN, 0},  {INFINITY, 0}, {1e300, 0}};
  for (const auto& [value, on] : cases) {
    host.tokens[token::battery] = host.tokens[token::avionics] = value;
    battery.frame();
    avionics.frame();
    EXPECT_EQ(aircraft.dc_power_on, on) << value;
    EXPECT_EQ(aircraft.avionics_master_on, on) << value;
  }
}

TEST_F(Electrics, AvionicsMasterFlipsAndSendsItsEvent) {
  host.flips(event::avionics_toggle, token::avionics);
  rig::Gauge panel("Avimaster");
  panel.click(40, 22);
  panel.frame();
  EXPECT_EQ(panel.value(2320), 1);
  EXPECT_EQ(panel.value(2330), 1);
  EXPECT_EQ(host.events, (rig::Events{{0x102F5, 0}}));
  EXPECT_TRUE(rig::heard(toggle_click_sound_request));
}

TEST_F(Electrics, SupplyLampsOfTheBatteryPanel) {
  rig::Gauge panel("Masterbat");
  struct Row {
    u32 connected, ext_switch, apu;
    f64 external, apu_buses, apu_on_line;
  };
  const Row rows[] = {
      {0, 0, 0, 0, 0, 0}, {1, 0, 0, 1, 0, 0}, {1, 1, 0, 2, 0, 0}, {0, 1, 0, 0, 0, 0},
      {0, 0, 1, 0, 1, 1}, {1, 1, 1, 2, 0, 1}, {0, 0, 2, 0, 0, 0},
  };
  for (const Row& row : rows) {
    aircraft.ground_power_connected = row.connected;
    aircraft.ext_power_switch = row.ext_switch;
    aircraft.apu_gen_switch = row.apu;
    panel.frame();
    EXPECT_EQ(panel.value(30), row.external) << row.connected << row.ext_switch << row.apu;
    EXPECT_EQ(panel.value(50), row.apu_buses) << row.connected << row.ext_switch << row.apu;
    EXPECT_EQ(panel.value(60), row.apu_on_line) << row.connected << row.ext_switch << row.apu;
  }
}

TEST_F(Electrics, GeneratorSwitchReturnsToTheCentreFromEitherSide) {
  rig::Gauge panel("Ctr");
  const i32 up = 20, down = 43;
  const std::pair<i32, u32> clicks[] = {{up, 1}, {down, 0}, {down, 2}, {up, 0}, {up, 1}, {up, 0}};
  for (const auto& [y, position] : clicks) {
    panel.click(60, y);
    EXPECT_EQ(aircraft.gen1_switch, position);
    EXPECT_TRUE(rig::heard(toggle_click_sound_request));
    panel.click(105, y);
    EXPECT_EQ(aircraft.gen2_switch, position);
  }
}

TEST_F(Electrics, GeneratorWarningFollowsSwitchAndCoreSpeed) {
  rig::Gauge panel("Ctr");
  struct Row {
    u32 position;
    f64 core_speed, warning;
  };
  for (const Row& row : {Row{0, 0, 0}, Row{1, 9.9, 1}, Row{1, 10, 0}, Row{1, 55, 0}, Row{2, 55, 1}}) {
    aircraft.gen2_switch = row.position;
    host.tokens[token::engine_2_core_speed] = row.core_speed;
    panel.frame();
    EXPECT_EQ(panel.value(2120, 1), row.warning) << row.position << " at " << row.core_speed;
    EXPECT_EQ(panel.value(2120, 0), 0) << "the other side stays dark";
  }
}

TEST_F(Electrics, AGuardKeepsItsSwitchOff) {
  struct Row {
    const char* gauge;
    i32 guard_bitmap, switch_bitmap;
    PanelPoint guard, control;
  };
  for (const Row& row :
       {Row{"Ctr", 2180, 2170, {80, 80}, {80, 110}}, Row{"Acpwr", 2160, 2150, {142, 40}, {142, 80}}}) {
    rig::Gauge panel(row.gauge);
    panel.click(row.control.x, row.control.y);
    panel.frame();
    EXPECT_EQ(panel.value(row.switch_bitmap), 0) << row.gauge << ": guard closed";
    panel.click(row.guard.x, row.guard.y);
    panel.click(row.control.x, row.control.y);
    panel.frame();
    EXPECT_EQ(panel.value(row.guard_bitmap), 1) << row.gauge;
    EXPECT_EQ(panel.value(row.switch_bitmap), 1) << row.gauge << ": guard open";
    panel.click(row.guard.x, row.guard.y);
    panel.frame();
    EXPECT_EQ(panel.value(row.switch_bitmap), 0) << row.gauge << ": closing forces it off";
    panel.click(row.control.x, row.control.y);  // a gauge's own state outlives the test: let it go
  }
}

TEST_F(Electrics, AcBusIndicatorLatchesUntilTheSwitchIsWorkedAgain) {
  rig::Gauge panel("Acpwr");
  const PanelPoint indicator{13, 121};
  panel.click(12, 40);  // guard open
  panel.click(12, 70);  // switch on
  panel.frame();
  EXPECT_EQ(panel.value_at(indicator), 0) << "lit";
  panel.click(12, 40);  // guard closed: switch off, latch stays
  panel.frame();
  EXPECT_EQ(panel.value_at(indicator), 0);
  panel.click(12, 70);
  panel.frame();
  EXPECT_EQ(panel.value_at(indicator), 1) << "dark";
}

TEST_F(Electrics, IndicatorTestsLastTwoSecondsAndShareTheirDeadline) {
  rig::Gauge panel("Acpwr");
  auto at = [&](f64 seconds) {
    host.tokens[token::clock_seconds] = seconds;
    panel.frame();
    return std::pair(panel.value_at({13, 121}), panel.value_at({147, 118}));
  };
  at(100);
  panel.click(14, 123);
  EXPECT_EQ(rig::sounds_requested(), 0) << "test areas are silent";
  EXPECT_EQ(at(102.9), std::pair(0., 1.));
  panel.click(149, 120);  // moves the left side's deadline too
  EXPECT_EQ(at(104.5), std::pair(0., 0.));
  EXPECT_EQ(at(105), std::pair(1., 1.));

  panel.click(14, 123);
  EXPECT_EQ(at(91), std::pair(0., 1.)) << "the clock may run back by up to 16 seconds";
  EXPECT_EQ(at(88), std::pair(1., 1.)) << "but not further";

  at(10);
  panel.click(14, 123);
  EXPECT_EQ(at(10), std::pair(1., 1.)) << "a young clock gives no test";
}

TEST_F(Electrics, SelectorsStopAtTheirEnds) {
  rig::Gauge panel("Acdcsw");
  for (int i = 0; i < 9; ++i) panel.click(43, 8);
  EXPECT_EQ(aircraft.dc_meter_selector, 7u);
  for (int i = 0; i < 9; ++i) panel.click(7, 8);
  EXPECT_EQ(aircraft.dc_meter_selector, 0u);
  panel.click(137, 8);
  panel.click(137, 8);
  panel.click(101, 8);
  EXPECT_EQ(aircraft.ac_meter_selector, 1u);
  EXPECT_TRUE(rig::heard(click_sound_request));
  EXPECT_FALSE(rig::heard(toggle_click_sound_request));
}

class Meters : public Electrics {
 protected:
  rig::Gauge meters{"Acdc"};
  f64 dc_load() { return meters.value_at({37, 38}); }
  f64 dc_volts() { return meters.value_at({36, 112}); }
  f64 ac_volts() { return meters.value_at({121, 112}); }
  f64 ac_frequency() { return meters.value_at({120, 37}); }
  void SetUp() override { power(true); }
};

TEST_F(Meters, DcMetersReadTheSelectedSource) {
  const f64 load_at_10[] = {0, 10, 8, 16, -5, 18, 7, 14};
  const f64 volts_at_84[] = {0, 66, 64, 65, 64, 66, 64, 65};
  const f64 volts_at_40[] = {0, 45, 44, 43, 20, 42, 43, 46};
  for (u32 position = 0; position < 8; ++position) {
    aircraft.dc_meter_selector = position;
    host.tokens[token::dc_amperes] = 10;
    host.tokens[token::dc_voltmeter] = 84;
    meters.frame();
    EXPECT_EQ(dc_load(), load_at_10[position]) << position;
    EXPECT_EQ(dc_volts(), volts_at_84[position]) << position;
    host.tokens[token::dc_voltmeter] = 40;
    meters.frame();
    EXPECT_EQ(dc_volts(), volts_at_40[position]) << position;
  }
  aircraft.dc_meter_selector = 4;
  aircraft.ext_power_switch = 1;
  meters.frame();
  EXPECT_EQ(dc_load(), 10);
  EXPECT_EQ(dc_volts(), 22);
  aircraft.dc_meter_selector = 2;
  host.tokens[token::dc_amperes] = 0;
  meters.frame();
  EXPECT_EQ(dc_load(), -2) << "the scale has its zero in the middle";
}

TEST_F(Meters, DcVoltmeterKeepsItsReadingAtTheMiddle) {
  aircraft.dc_meter_selector = 1;
  host.tokens[token::dc_voltmeter] = 200;
  meters.frame();
  EXPECT_EQ(dc_volts(), 182);
  host.tokens[token::dc_voltmeter] = 66;
  meters.frame();
  EXPECT_EQ(dc_volts(), 90) << "a kept reading is cut to the end of the scale";
  host.tokens[token::dc_voltmeter] = 70;
  meters.frame();
  EXPECT_EQ(dc_volts(), 52);
  host.tokens[token::dc_voltmeter] = 66;
  meters.frame();
  EXPECT_EQ(dc_volts(), 52);
}

TEST_F(Meters, AcMetersReadTheSelectedSource) {
  host.tokens[token::ac_bus_1_voltmeter] = 180;
  host.tokens[token::ac_bus_2_voltmeter] = 170;
  host.tokens[token::generator_1_load] = 12;
  host.tokens[token::generator_2_load] = 14;
  aircraft.apu_gen_switch = 1;
  aircraft.ext_power_switch = 1;
  const f64 volts[] = {0, 269, 272, 270, 271, 258, 260, 270};
  const f64 frequency[] = {0, 20, 17, 14, 15, 16, 20, 18};
  for (u32 position = 0; position < 8; ++position) {
    aircraft.ac_meter_selector = position;
    meters.frame();
    EXPECT_EQ(ac_volts(), volts[position]) << position;
    EXPECT_EQ(ac_frequency(), frequency[position]) << position;
  }
  aircraft.ext_power_switch = 0;
  meters.frame();
  EXPECT_EQ(ac_volts(), 0) << "external power switched off";
  EXPECT_EQ(ac_frequency(), 0);
}

TEST_F(Meters, ApuFrequencyKeepsItsReadingWhileTheEnginesDisagree) {
  aircraft.ac_meter_selector = 1;
  aircraft.apu_gen_switch = 1;
  struct Row {
    f64 eng1, eng2, load;
  };
  for (const Row& row : {Row{0, 0, 20}, Row{30, 0, 20}, Row{30, 30, 22}, Row{0, 30, 22},
                         Row{10, 10, 22}, Row{5, 5, 20}}) {
    host.tokens[token::engine_1_core_speed] = row.eng1;
    host.tokens[token::engine_2_core_speed] = row.eng2;
    meters.frame();
    EXPECT_EQ(ac_frequency(), row.load) << row.eng1 << "/" << row.eng2;
  }
  aircraft.apu_gen_switch = 0;
  meters.frame();
  EXPECT_EQ(ac_frequency(), 0);
}

TEST_F(Meters, EverythingRestsWithoutDcPower) {
  aircraft.dc_meter_selector = aircraft.ac_meter_selector = 2;
  for (const u32 t : {token::dc_amperes, token::dc_voltmeter, token::ac_bus_1_voltmeter, token::generator_1_load}) {
    host.tokens[t] = 50;
  }
  power(false);
  meters.frame();
  EXPECT_EQ(dc_load() + dc_volts() + ac_volts() + ac_frequency(), 0);
}

TEST_F(Electrics, LoadAndDriveMetersNeedTheirSwitches) {
  rig::Gauge load("Acload"), drive("Gendrive");
  host.tokens = {{token::generator_1_load, 60},
                 {token::generator_2_load, 500},
                 {token::auxiliary_load, 20},
                 {token::engine_1_oil_temperature, 8000},
                 {token::engine_2_oil_temperature, -5}};
  load.frame();
  drive.frame();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(load.value(410, i), 0);
  EXPECT_EQ(drive.value(440, 0), 0);

  power(true);
  aircraft.gen1_switch = aircraft.gen2_switch = aircraft.apu_gen_switch = 1;
  load.frame();
  drive.frame();
  EXPECT_EQ(load.value(410, 0), 60);
  EXPECT_EQ(load.value(410, 1), 125) << "limited to the scale";
  EXPECT_EQ(load.value(410, 2), 65);
  EXPECT_EQ(drive.value(440, 0), 8000);
  EXPECT_EQ(drive.value(440, 1), 0) << "limited to the scale";

  aircraft.apu_gen_switch = 0;
  aircraft.ext_power_switch = 1;
  load.frame();
  EXPECT_EQ(load.value(410, 2), 55) << "the ground unit's load";
  power(false);
  load.frame();
  EXPECT_EQ(load.value(410, 2), 0);
}

TEST_F(Electrics, EmergencyLightSwitchGoesRound) {
  rig::Gauge panel("Emerlight");
  const f64 lamps[4][3] = {{0, 0, 1}, {0, 1, 0}, {1, 0, 1}, {0, 1, 0}};
  for (u32 step = 0; step < 5; ++step) {
    const u32 position = step % 4;
    panel.frame();
    EXPECT_EQ(panel.value(1230), position);
    EXPECT_EQ(panel.value(1240), lamps[position][0]) << position;
    EXPECT_EQ(panel.value(1250), lamps[position][1]) << position;
    EXPECT_EQ(panel.value(1260), lamps[position][2]) << position;
    panel.click(9, 9);
  }
}

}  // namespace
