/// Throttle pedestal: levers, speed brake, lift dumpers, brakes and hydraulic pressures.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Pedestal : public testing::Test {
 protected:
  f64& token(u32 number) { return host.tokens[number]; }
  rig::Events sent() { return host.sent(); }

  rig::Host host;
};

TEST_F(Pedestal, EachThrottleLeverStandsWhereItsOwnThrottleIs) {
  constexpr std::pair<f64, int> table[] = {
      {0, 0},     {1, 0},     {1000, 0},   {1001, 1},   {1999, 1},  {2001, 2},  {3999, 2},  {4001, 3},
      {6001, 4},  {7999, 4},  {8001, 5},   {10001, 6},  {12001, 7}, {13999, 7}, {14001, 8}, {14999, 8},
      {15001, 9}, {15999, 9}, {16001, 10}, {16999, 10}, {17000, 0}, {1e300, 0}, {-500, 0}};
  rig::Gauge left("Thleft"), right("Thright");
  for (const auto& [position, image] : table) {
    SCOPED_TRACE(position);
    host.tokens = {{128, position}};
    left.expect({{"throttle_1_lever", image}}), right.expect({{"throttle_2_lever", 0}});
    host.tokens = {{163, position}};
    left.expect({{"throttle_1_lever", 0}}), right.expect({{"throttle_2_lever", image}});
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
}

class SpeedBrake : public Pedestal, public testing::WithParamInterface<const char*> {
 protected:
  /// What the host hears of a frame, and of a press after it.
  std::size_t asked_at(f64 throttle, bool press = false) {
    token(128) = throttle;
    panel.frame();
    if (press) sent(), panel.click("speed_brake_switch");
    const rig::Events events = sent();
    for (const auto& event : events) EXPECT_EQ(event, (std::pair{66391u, 0u}));
    return events.size();
  }
  rig::Gauge panel{GetParam()};
};

TEST_P(SpeedBrake, IsArmedBelowTakeOffThrustAloneAndDisarmedAnyTime) {
  for (const auto& [throttle, armed] :
       {std::pair{14999.0, 1u}, {0.0, 0u}, {15000.0, 0u}, {16500.0, 0u}}) {
    EXPECT_EQ(asked_at(throttle, true), 1u) << throttle << ", the host is told all the same";
    EXPECT_EQ(aircraft.speedbrake_armed, armed) << throttle;
  }
}

TEST_P(SpeedBrake, DisarmsItselfInTheFirstNotchOfTakeOffThrust) {
  asked_at(0, true);
  EXPECT_EQ(asked_at(15000), 0u);
  EXPECT_EQ(asked_at(15500), 1u);
  EXPECT_EQ(aircraft.speedbrake_armed, 0u);
  EXPECT_EQ(asked_at(15500), 0u);
  asked_at(0, true);
  for (int frame = 0; frame < 3; ++frame) {
    EXPECT_EQ(asked_at(16500), 1u) << "thrown past the notch it asks on and on";
    EXPECT_EQ(aircraft.speedbrake_armed, 1u);
  }
}

INSTANTIATE_TEST_SUITE_P(Panels, SpeedBrake, testing::Values("Thleft", "Vcthleft"));

TEST_F(Pedestal, TheSpeedBrakeIndicatorBelievesTheHostWhileArmed) {
  rig::Gauge dial("Sbrake"), light("Sbrakelg");
  for (const auto& [armed, out, shown] :
       {std::tuple{0u, 0.0, 0.0}, {0u, 1.0, 0.0}, {1u, 0.0, 0.0}, {1u, 1.0, 60.0}, {1u, 0.5, 0.5}}) {
    aircraft.speedbrake_armed = armed;
    host.tokens = {{869, out}, {783, 0.45}};
    dial.expect({{"speed_brake_position", shown}, {"stabiliser_position", 4.5}});
    light.expect({{"speed_brake_light", armed}});
  }
}

class BrakeSection : public Pedestal, public testing::WithParamInterface<const char*> {
 protected:
  BrakeSection() {
    aircraft.dc_power_on = 1;
    token(604) = 100;
    panel.frame();
    if (panel.value("brake_control_switch") == 0) panel.click("brake_control_switch");
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
  panel.expect({{"upper_accumulator_pressure", 3200}, {"lower_accumulator_pressure", 3200}});
  aircraft.dc_power_on = 0;
  EXPECT_EQ(brakes(), (std::array<f64, 4>{}));
  panel.expect({{"upper_accumulator_pressure", 0}, {"lower_accumulator_pressure", 0}});
}

TEST_P(BrakeSection, IsTestedOnAStandingAircraftThatIsNotParked) {
  for (const auto& [when, parking_brake, knots, switched_on] : {std::tuple{"ready", 0.0, 19.9, true},
                                                                {"parked", 1.0, 0.0, true},
                                                                {"rolling", 0.0, 20.0, true},
                                                                {"switched off", 0.0, 0.0, false}}) {
    SCOPED_TRACE(when);
    token(323) = parking_brake, token(61) = knots;
    if (!switched_on) panel.click("brake_control_switch");
    panel.expect({{"brake_control_switch", switched_on}});
    panel.right_click("brake_control_switch");
    const bool accepted = when == std::string_view("ready");
    EXPECT_EQ(brakes()[0], accepted ? 120 : 160);
    EXPECT_EQ(brakes()[3], accepted ? 120 : 150);
    EXPECT_EQ(panel.value("brake_test_light"), accepted);
    token(604) += 10;
    panel.frame();
  }
}

INSTANTIATE_TEST_SUITE_P(Panels, BrakeSection, testing::Values("Thleft", "Vcbrake"));

TEST_F(Pedestal, TheCopiesForTheCabinViewShareTheSelectorAndNothingElse) {
  rig::Gauge left("Thleft"), brake("Vcbrake"), right("Thright"), copy("Vcthright");
  brake.click("brake_control_switch");
  left.expect({{"brake_control_switch", 1}});
  right.click("pedestal_selector_switch_left"), right.click("auxiliary_switch_up");
  right.expect({{"pedestal_selector_switch", 1}, {"auxiliary_switch", 2}});
  copy.expect({{"pedestal_selector_switch", 1}, {"auxiliary_switch", 0}});
  copy.click("pedestal_selector_switch_right"), copy.click("pedestal_selector_switch_right");
  right.expect({{"pedestal_selector_switch", 2}});
}

TEST_F(Pedestal, TheParkingBrakeLeverAndItsLightFollowTheHost) {
  token(323) = 32767;
  rig::Gauge("Thleft").expect({{"parking_brake_lever", 32767}});
  rig::Gauge("Ttc").expect({{"parking_brake_light", 32767}, {"top_temperature_control_switch", 1}});
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
  using Row = std::tuple<u32, f64, f64, f64, std::size_t>;
  for (const auto& [armed, ground, throttle_1, throttle_2, asks] :
       {Row{1, 1, 99, 99, 1}, Row{0, 1, 0, 0, 0}, Row{1, 0, 0, 0, 0}, Row{1, 0.9, 0, 0, 0},
        Row{1, 1, 100, 0, 0}, Row{1, 1, 0, 100, 0}}) {
    aircraft.lift_dump_armed = armed;
    host.tokens = {{60, ground}, {128, throttle_1}, {163, throttle_2}};
    for (int frame = 0; frame < 2; ++frame) {
      lights.frame();
      EXPECT_EQ(sent(), rig::Events(asks, {66064, 0})) << ground << ' ' << throttle_1;
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
    SCOPED_TRACE(row.when);
    lights.expect(
        {{"left_lift_dumper_light", row.left_light}, {"right_lift_dumper_light", row.right_light}});
    EXPECT_EQ(aircraft.lift_dump_deployed, row.deployed_then) << row.when;
  }
}

TEST_F(Pedestal, TheFirstOfficersAccumulatorsNeedPowerToBeRead) {
  rig::Gauge dials("Fobrake");
  for (const u32 power : {0u, 1u}) {
    aircraft.dc_power_on = power;
    dials.expect(
        {{"left_accumulator_pressure", power * 3200}, {"right_accumulator_pressure", power * 3200}});
  }
}

}  // namespace
