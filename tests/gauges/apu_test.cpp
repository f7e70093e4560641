/// The auxiliary power unit, from the first press of its button to the cold exhaust.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Apu : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Apu"}, instrument{"Apuins"};

  f64 speed() { return instrument.value("apu_speed"); }
  f64 temperature() { return instrument.value("apu_temperature"); }

  void SetUp() override { cold(); }
  /// Cold and stopped, with DC power and the master on.
  void cold() {
    aircraft.dc_power_on = aircraft.apu_running = aircraft.apu_gen_switch = 0;
    instrument.frame();
    aircraft.dc_power_on = aircraft.apu_master_switch = 1;
  }
  void running(int frames, u32 generator = 0) {
    cold();
    aircraft.apu_running = 1;
    aircraft.apu_gen_switch = generator;
    instrument.frame(frames);
  }
};

TEST_F(Apu, SettlesWhereTheGeneratorSwitchGovernsIt) {
  using Row = std::tuple<u32, f64, f64, f64, f64>;
  for (const auto& [generator, first, at_100, settled, heat] :
       {Row{0, 12, 210, 1251, 1200}, Row{1, 12, 210, 1301, 1280}, Row{2, 11, 110, 1501, 1501}}) {
    for (const f64 night : {0.0, 1.0}) {  // the lit copy must not turn it twice as fast
      host.tokens[token::panel_lights] = night;
      running(1, generator);
      EXPECT_EQ(speed(), first) << generator;
      instrument.frame(99);
      EXPECT_EQ(speed(), at_100) << generator;
      instrument.frame(1900);
      instrument.expect({{"apu_speed", settled}, {"apu_temperature", heat}});
    }
  }
  aircraft.apu_gen_switch = 0;
  instrument.frame();
  EXPECT_EQ(speed(), 1251) << "back under the governor at once";
}

TEST_F(Apu, ThresholdsActWhenPassedNotWhenReached) {
  using Row = std::tuple<int, u32, u32, u32>;
  for (const auto& [frames, before, above_1000, at_speed] :
       {Row{494, 1, 0, 0}, Row{495, 0, 0, 0}, Row{495, 1, 1, 0}, Row{496, 0, 1, 0}, Row{594, 1, 1, 0},
        Row{595, 0, 1, 0}, Row{595, 1, 1, 1}, Row{596, 0, 1, 1}}) {
    running(frames - 1);
    aircraft.apu_speed_above_1000 = aircraft.apu_at_speed = before;
    instrument.frame();
    EXPECT_EQ(aircraft.apu_speed_above_1000, above_1000) << speed() << " from " << before;
    EXPECT_EQ(aircraft.apu_at_speed, at_speed) << speed() << " from " << before;
  }
  running(95);
  EXPECT_EQ(temperature(), 10) << "at " << speed();
  instrument.frame();
  EXPECT_EQ(temperature(), 11) << "it heats itself above 200";
}

TEST_F(Apu, RunsDownAfterAStopAndCoolsSlowly) {
  running(2000);
  panel.click("start_button");
  EXPECT_EQ(host.events, (rig::Events{{66705, 0}}));
  instrument.frame(1050);
  panel.frame();
  EXPECT_EQ(speed(), 201);
  EXPECT_EQ(temperature(), 1200);
  EXPECT_EQ(aircraft.apu_at_speed, 1u) << "kept until the master clears it";
  EXPECT_EQ(panel.value("low_speed_light"), 1) << "dark";
  instrument.frame(80);
  EXPECT_EQ(temperature(), 1180) << "one step in four frames";
  aircraft.apu_running = 1;
  instrument.frame(8);
  EXPECT_EQ(temperature(), 1180) << "a new start ends the cooling";
  aircraft.apu_running = 0;
  instrument.frame(5000);
  EXPECT_EQ(speed(), 9);
  EXPECT_EQ(temperature(), 10);
}

TEST_F(Apu, MasterOffEndsEverythingAtOnce) {
  running(2000);
  panel.click("master_switch");
  EXPECT_EQ(aircraft.apu_master_switch + aircraft.apu_running + aircraft.apu_at_speed, 0u);
  instrument.frame();
  EXPECT_EQ(speed(), 9);
  EXPECT_EQ(temperature(), 10);
  panel.click("master_switch");
  EXPECT_EQ(aircraft.apu_master_switch, 1u);
  EXPECT_EQ(host.events, rig::Events(2, {66706, 0})) << "sent both ways";
}

TEST_F(Apu, DcLossHoldsBothNeedlesAtRest) {
  running(2000, 1);
  aircraft.dc_power_on = 0;
  instrument.frame();
  EXPECT_EQ(speed() + temperature(), 20);
  EXPECT_EQ(aircraft.apu_at_speed, 1u) << "the loss is felt on the next frame";
  instrument.frame(3);
  EXPECT_EQ(speed() + temperature(), 20);
  EXPECT_EQ(aircraft.apu_at_speed + aircraft.apu_speed_above_1000, 0u);
}

TEST_F(Apu, StartButtonNeedsMasterCentredGeneratorAndOneSupply) {
  struct Row {
    u32 running, master, generator, left, right, runs;
    rig::Events events;
  };
  const rig::Events none{}, started{{66704, 0}}, stopped{{66705, 0}};
  const Row rows[] = {
      {0, 1, 0, 1, 0, 1, started}, {0, 1, 0, 0, 1, 1, started}, {0, 1, 0, 0, 0, 0, none},
      {0, 1, 0, 1, 1, 0, none},    {0, 0, 0, 1, 0, 0, stopped}, {0, 1, 1, 1, 0, 0, stopped},
      {1, 1, 0, 1, 1, 0, stopped}, {1, 1, 2, 0, 0, 0, stopped}, {1, 0, 0, 1, 0, 0, stopped},
  };
  rig::Gauge light("Apulg");
  for (const Row& row : rows) {
    SCOPED_TRACE(&row - rows);
    aircraft.apu_running = row.running;
    aircraft.apu_master_switch = row.master;
    aircraft.apu_gen_switch = row.generator;
    aircraft.aircon_left_on = row.left;
    aircraft.aircon_right_on = row.right;
    panel.click("start_button");
    EXPECT_EQ(host.sent(), row.events);
    EXPECT_EQ(rig::heard(apu_sound_request), row.events == started);
    light.expect({{"apu_running_lamp", row.runs}});
    panel.expect(
        {{"start_button", row.runs}, {"armed_light", row.master == 1 && row.generator == 0 ? 0 : 1}});
  }
}

}  // namespace
