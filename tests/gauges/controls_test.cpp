/// Throttle pedestal: levers, speed brake, lift dumpers, brakes and hydraulic pressures.
#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Pedestal : public testing::Test {
 protected:
  f64& token(u32 number) { return host.tokens[number]; }
  rig::Events sent() { return std::exchange(host.events, {}); }

  rig::Host host;
};

TEST_F(Pedestal, EachThrottleLeverStandsWhereItsOwnThrottleIs) {
  constexpr std::pair<f64, int> table[] = {
      {0, 0},     {1, 0},     {1000, 0},   {1001, 1},   {1999, 1},  {2001, 2},  {3999, 2},  {4001, 3},
      {6001, 4},  {7999, 4},  {8001, 5},   {10001, 6},  {12001, 7}, {13999, 7}, {14001, 8}, {14999, 8},
      {15001, 9}, {15999, 9}, {16001, 10}, {16999, 10}, {17000, 0}, {1e300, 0}, {-500, 0}};
  rig::Gauge left("Thleft"), right("Thright");
  for (const auto& [position, image] : table) {
    host.tokens = {{128, position}, {163, 0}};
    left.frame(), right.frame();
    EXPECT_EQ(left.value("throttle_1_lever"), image) << position;
    EXPECT_EQ(right.value("throttle_2_lever"), 0) << "throttle 1 at " << position;
    host.tokens = {{163, position}, {128, 0}};
    left.frame(), right.frame();
    EXPECT_EQ(right.value("throttle_2_lever"), image) << position;
    EXPECT_EQ(left.value("throttle_1_lever"), 0) << "throttle 2 at " << position;
  }
}

/// Drags a control to a height above or below the top of its area.
void drag(const rig::Gauge& gauge, std::string_view control, i32 y) {
  const auto area = std::ranges::find(gauge.areas(), control, &rig::NamedArea::name);
  ASSERT_NE(area, gauge.areas().end());
  ASSERT_EQ(area->area->mouse_flags, 0x20800000u);
  EXPECT_EQ(area->area->routine({5, y}, 0x20800000u), 0);
}

TEST_F(Pedestal, AThrottleFollowsTheHandAlsoBeyondItsArea) {
  rig::Gauge left("Thleft"), right("Thright");
  for (const auto& [y, value] :
       {std::pair{0, 12580}, {1, 12506}, {150, 1480}, {170, 0}, {-40, 15540}}) {
    drag(left, "throttle_1_lever", y);
    drag(right, "throttle_2_lever", y);
    EXPECT_EQ(sent(), (rig::Events{{65820, value}, {65821, value}})) << y;
  }
  drag(left, "throttle_1_lever", 171);
  EXPECT_EQ(static_cast<i32>(sent()[0].second), -74) << "pulled against its stop";
}

TEST_F(Pedestal, TheFlapLeverStandsInTheDetentThatTheFlapsHaveReached) {
  constexpr std::pair<f64, int> table[] = {{0, 0},     {2730, 0},  {2731, 1},  {5459, 1},
                                           {5461, 2},  {8191, 3},  {10919, 3}, {10921, 4},
                                           {13649, 4}, {13651, 5}, {16384, 5}, {-9, 0}};
  rig::Gauge panel("Thright");
  for (const auto& [position, image] : table) {
    token(328) = position;
    panel.frame();
    EXPECT_EQ(panel.value("flap_lever"), image) << position;
  }
  panel.click("flap_lever_up"), panel.click("flap_lever_down");
  EXPECT_EQ(sent(), (rig::Events{{65759, 0}, {65758, 0}}));
}

class SpeedBrake : public Pedestal, public testing::WithParamInterface<const char*> {
 protected:
  u32 press(f64 throttle) {
    token(128) = throttle;
    panel.frame();
    sent();
    panel.click("speed_brake_switch");
    return aircraft.speedbrake_armed;
  }
  std::size_t events_in_a_frame(f64 throttle) {
    token(128) = throttle;
    sent();
    panel.frame();
    const rig::Events events = sent();
    for (const auto& event : events) EXPECT_EQ(event, (std::pair{66391u, 0u}));
    return events.size();
  }
  rig::Gauge panel{GetParam()};
};

TEST_P(SpeedBrake, IsArmedBelowTakeOffThrustAloneAndDisarmedAnyTime) {
  EXPECT_EQ(press(14999), 1u);
  EXPECT_TRUE(rig::heard(sbrake_sound_request));
  EXPECT_EQ(sent(), (rig::Events{{66391, 0}}));
  EXPECT_EQ(press(0), 0u);
  EXPECT_EQ(sent(), (rig::Events{{66391, 0}}));
  for (const f64 throttle : {15000.0, 16500.0}) {
    EXPECT_EQ(press(throttle), 0u) << throttle;
    EXPECT_EQ(sent(), (rig::Events{{66391, 0}})) << "the host is told all the same";
  }
}

TEST_P(SpeedBrake, DisarmsItselfInTheFirstNotchOfTakeOffThrust) {
  press(0);
  EXPECT_EQ(events_in_a_frame(15000), 0u);
  EXPECT_EQ(events_in_a_frame(15500), 1u);
  EXPECT_EQ(aircraft.speedbrake_armed, 0u);
  EXPECT_EQ(events_in_a_frame(15500), 0u);
  press(0);
  for (int frame = 0; frame < 3; ++frame) {
    EXPECT_EQ(events_in_a_frame(16500), 1u) << "thrown past the notch it asks on and on";
    EXPECT_EQ(aircraft.speedbrake_armed, 1u);
  }
}

INSTANTIATE_TEST_SUITE_P(Panels, SpeedBrake, testing::Values("Thleft", "Vcthleft"));

TEST_F(Pedestal, TheSpeedBrakeIndicatorBelievesTheHostWhileArmed) {
  rig::Gauge dial("Sbrake"), light("Sbrakelg");
  struct Row {
    u32 armed;
    f64 out, shown;
  };
  for (const auto& [armed, out, shown] :
       {Row{0, 0, 0}, {0, 1, 0}, {1, 0, 0}, {1, 1, 60}, {1, 0.5, 0.5}}) {
    aircraft.speedbrake_armed = armed;
    token(869) = out;
    token(783) = 0.45;
    dial.frame(), light.frame();
    EXPECT_EQ(dial.value("speed_brake_position"), shown) << armed << ' ' << out;
    EXPECT_EQ(dial.value("stabiliser_position"), 4.5);
    EXPECT_EQ(light.value("speed_brake_light"), armed);
  }
}

class BrakeSection : public Pedestal, public testing::WithParamInterface<const char*> {
 protected:
  BrakeSection() {
    aircraft.dc_power_on = 1;
    token(604) = 100;
    panel.frame();
    if (panel.value("brake_control_switch") == 0) panel.click("brake_control_switch");
    panel.frame();
    sent();
  }
  /// Upper left, upper right, lower left, lower right.
  std::array<f64, 4> brakes() {
    panel.frame();
    return {panel.value("upper_left_brake_pressure"), panel.value("upper_right_brake_pressure"),
            panel.value("lower_left_brake_pressure"), panel.value("lower_right_brake_pressure")};
  }
  rig::Gauge panel{GetParam()};
};

TEST_P(BrakeSection, PressuresShowEachBrakeInSteps) {
  struct Row {
    f64 left, right;
    std::array<f64, 4> shown;
  };
  for (const Row& row : {Row{0, 0, {160, 160, 150, 150}},
                         {9999, 10001, {160, 200, 150, 200}},
                         {29999, 30001, {200, 220, 200, 220}},
                         {32767, 0, {220, 160, 220, 150}}}) {
    token(320) = row.left, token(321) = row.right;
    EXPECT_EQ(brakes(), row.shown) << row.left << ' ' << row.right;
  }
  EXPECT_EQ(panel.value("upper_accumulator_pressure"), 3200);
  EXPECT_EQ(panel.value("lower_accumulator_pressure"), 3200);
  aircraft.dc_power_on = 0;
  EXPECT_EQ(brakes(), (std::array<f64, 4>{}));
  EXPECT_EQ(panel.value("upper_accumulator_pressure"), 0);
}

TEST_P(BrakeSection, TheSwitchTellsTheHostAndClicks) {
  panel.click("brake_control_switch");
  EXPECT_EQ(sent(), (rig::Events{{66720, 0}}));
  EXPECT_TRUE(rig::heard(toggle_click_sound_request));
  panel.frame();
  EXPECT_EQ(panel.value("brake_control_switch"), 0);
}

TEST_P(BrakeSection, TheTestRunsTwoToThreeSecondsOnAStandingAircraftThatIsNotParked) {
  struct Row {
    const char* when;
    f64 parking_brake, knots;
    bool switched_on, accepted;
  };
  for (const Row& row : {Row{"ready", 0, 19.9, true, true},
                         {"parked", 1, 0, true, false},
                         {"rolling", 0, 20, true, false},
                         {"switched off", 0, 0, false, false}}) {
    SCOPED_TRACE(row.when);
    token(323) = row.parking_brake, token(61) = row.knots;
    if (!row.switched_on) panel.click("brake_control_switch");
    panel.frame();
    sent();
    rig::heard(toggle_click_sound_request);
    panel.right_click("brake_control_switch");
    EXPECT_TRUE(rig::heard(toggle_click_sound_request));
    EXPECT_TRUE(sent().empty());
    EXPECT_EQ(brakes()[0], row.accepted ? 120 : 160);
    EXPECT_EQ(panel.value("brake_test_light"), row.accepted);
    token(604) += 2.9;
    EXPECT_EQ(brakes()[3], row.accepted ? 120 : 150);
    token(604) += 0.2;
    EXPECT_EQ(brakes()[3], 150);
    EXPECT_EQ(panel.value("brake_test_light"), 0);
    token(604) = 100;
  }
}

INSTANTIATE_TEST_SUITE_P(Panels, BrakeSection, testing::Values("Thleft", "Vcbrake"));

TEST_F(Pedestal, TheCopysBrakeSwitchIsItsOwn) {
  rig::Gauge panel("Thleft"), copy("Vcbrake");
  const u32 before = aircraft.brake_control_switch_on;
  EXPECT_EQ(before, 1u) << "found on";
  copy.click("brake_control_switch");
  panel.frame();
  EXPECT_EQ(panel.value("brake_control_switch"), 1);
}

TEST_F(Pedestal, TheParkingBrakeLeverAndItsLightFollowTheHost) {
  rig::Gauge panel("Thleft"), light("Ttc");
  panel.click("parking_brake_lever");
  EXPECT_EQ(sent(), (rig::Events{{65752, 0}}));
  EXPECT_TRUE(rig::heard(pbrake_sound_request));
  token(323) = 32767;
  panel.frame(), light.frame();
  EXPECT_EQ(panel.value("parking_brake_lever"), 32767);
  EXPECT_EQ(light.value("parking_brake_light"), 32767);
  EXPECT_EQ(light.value("top_temperature_control_switch"), 1) << "found on";
}

TEST_F(Pedestal, TheSelectorIsSharedAndTheAuxiliarySwitchIsNot) {
  rig::Gauge panel("Thright"), copy("Vcthright");
  panel.click("pedestal_selector_switch_left"), panel.click("auxiliary_switch_up");
  panel.frame(), copy.frame();
  EXPECT_EQ(aircraft.pedestal_selector_switch, 1u);
  EXPECT_EQ(copy.value("pedestal_selector_switch"), 1);
  EXPECT_EQ(panel.value("auxiliary_switch"), 2);
  EXPECT_EQ(copy.value("auxiliary_switch"), 0);
  copy.click("pedestal_selector_switch_right"), copy.click("pedestal_selector_switch_right");
  EXPECT_EQ(aircraft.pedestal_selector_switch, 2u);
}

TEST_F(Pedestal, ArmingTheLiftDumpersTellsTheHostWhatTheyAreToDo) {
  rig::Gauge panel("Ldmain");
  panel.click("lift_dump_arm_switch");
  EXPECT_EQ(sent(), (rig::Events{{66066, 0}, {66065, 0}})) << "stay in";
  panel.click("lift_dump_arm_switch");
  EXPECT_EQ(sent(), (rig::Events{{66067, 0}, {66065, 0}})) << "disarmed";
  panel.click("lift_dump_deployment_switch");
  EXPECT_TRUE(sent().empty());
  panel.click("lift_dump_arm_switch");
  EXPECT_EQ(sent(), (rig::Events{{66066, 0}, {66064, 0}, {66067, 0}})) << "run out";
}

TEST_F(Pedestal, ArmedLiftDumpersRunOutOnTheGroundWithBothThrottlesClosed) {
  rig::Gauge lights("Liftdump");
  struct Row {
    u32 armed;
    f64 ground, throttle_1, throttle_2;
    std::size_t asks;
  };
  for (const Row& row : {Row{1, 1, 99, 99, 1},
                         {0, 1, 0, 0, 0},
                         {1, 0, 0, 0, 0},
                         {1, 0.9, 0, 0, 0},
                         {1, 1, 100, 0, 0},
                         {1, 1, 0, 100, 0}}) {
    aircraft.lift_dump_armed = row.armed;
    token(60) = row.ground, token(128) = row.throttle_1, token(163) = row.throttle_2;
    for (int frame = 0; frame < 2; ++frame) {
      lights.frame();
      EXPECT_EQ(sent(), rig::Events(row.asks, {66064, 0})) << row.ground << ' ' << row.throttle_1;
    }
  }
}

TEST_F(Pedestal, LiftDumperLightsTakeTheFirstCaseThatHolds) {
  constexpr int dark = 0, off = 1, armed = 2, out = 3;
  struct Row {
    const char* when;
    u32 is_armed, deployed;
    f64 ground, throttle_1, throttle_2, left, right;
    int left_light, right_light;
    u32 deployed_then;
  };
  for (const Row& row : {
           Row{"disarmed, whatever they do", 0, 0, 1, 0, 0, 16384, 16384, off, off, 0},
           {"armed in the air", 1, 0, 0, 0, 0, 0, 0, armed, armed, 0},
           {"armed, both throttles open", 1, 0, 1, 101, 101, 0, 0, armed, armed, 0},
           // The right light latches first; then each goes by its own dumper.
           {"armed, both throttles closed", 1, 0, 1, 99, 99, 0, 0, dark, out, 1},
           {"armed, both closed, running out", 1, 0, 1, 99, 99, 5601, 0, out, out, 1},
           {"one throttle open", 1, 0, 1, 101, 99, 0, 0, dark, dark, 0},
           {"the other one open, running out", 1, 0, 1, 99, 101, 5601, 5601, out, out, 1},
           {"deployed, disarmed, left one out", 0, 1, 0, 0, 0, 5601, 5600, out, dark, 1},
           {"deployed, armed, right one out", 1, 1, 1, 0, 0, 5600, 5601, dark, out, 1},
           {"neither on the ground nor off it", 1, 0, 0.5, 0, 0, 0, 0, dark, dark, 0},
       }) {
    rig::Gauge lights("Liftdump");
    aircraft.lift_dump_armed = row.is_armed, aircraft.lift_dump_deployed = row.deployed;
    host.tokens = {{60, row.ground},
                   {128, row.throttle_1},
                   {163, row.throttle_2},
                   {326, row.left},
                   {327, row.right}};
    lights.frame();
    EXPECT_EQ(lights.value("left_lift_dumper_light"), row.left_light) << row.when;
    EXPECT_EQ(lights.value("right_lift_dumper_light"), row.right_light) << row.when;
    EXPECT_EQ(aircraft.lift_dump_deployed, row.deployed_then) << row.when;
  }
}

TEST_F(Pedestal, TheFirstOfficersAccumulatorsNeedPowerToBeRead) {
  rig::Gauge dials("Fobrake");
  for (const u32 power : {0u, 1u}) {
    aircraft.dc_power_on = power;
    dials.frame();
    EXPECT_EQ(dials.value("left_accumulator_pressure"), power * 3200);
    EXPECT_EQ(dials.value("right_accumulator_pressure"), power * 3200);
  }
}

}  // namespace
