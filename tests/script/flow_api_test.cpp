// The functions of flows, on the real module in a small panel.
#include "host/script/flow_api.h"

#include <gtest/gtest.h>

#include "tests/rig/loaded_module.h"
#include "tests/rig/refusal.h"
#include "tests/rig/rows.h"

namespace {

using namespace host;

constexpr const char* panel =
    "[Window00]\nident=500\nident_day=20\nident_night=27\nsize_mm=600,400\nvisible=1\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Acdc, 400,0\n"
    "gauge03=Tarnvale!Cainstlg, 0,200\ngauge04=Tarnvale!Acpwr, 200,200\n"
    "gauge05=Tarnvale!Cabalt, 400,200\n"
    "[Window Titles]\nWindow02=Overhead\n"
    "[Window02]\nident=502\nsize_mm=200,200\ngauge00=Tarnvale!Avimaster, 0,0\n";

class FlowApi : public testing::Test {
 protected:
  FlowApi() { bind_flow_api(runner, session); }

  std::string fly(const std::string& text) {
    return refusal<FlowError>([&] { runner.run(text, "t.lua"); });
  }

  std::vector<std::string> said;
  Cockpit cockpit{loaded_module(), parse_panel_config(panel, "panel.cfg")};
  CockpitInputs inputs{cockpit};
  FlowSession session{inputs,
                      {{},
                       {},
                       [](double seconds) { return seconds / 2; },
                       [this](const std::string& text) { said.push_back(text); }}};
  LuaRunner runner;
};

TEST_F(FlowApi, ClicksAndSeesWhatFollows) {
  EXPECT_EQ(
      fly("say('battery')\n"
          "click('Masterbat', 47, 99)\n"
          "expect_event('battery_toggle')\nexpect_event(0x102C2, 0)\n"
          "expect(#events() == 5 and events()[1].name == 'battery_toggle' and events()[1].value == 0)\n"
          "expect(token('battery') == 1 and token(364) == 1)\n"
          "expect(image('Masterbat', 40) == 1)\n"
          "expect(image('Masterbat', 2130, 1) == 1 and image('Masterbat', 2130, 2) == 0)\n"
          "wait(0.1)\nexpect(#events() == 5, 'events stay until the next gesture')\n"
          "click('Acdcsw', 50, 30)\nexpect(#events() == 0)"),
      "");
  EXPECT_EQ(said, std::vector<std::string>{"battery"});
}

TEST_F(FlowApi, TurnsKnobsWithTheWheelAndReadsNeedles) {
  EXPECT_EQ(fly("local dc = {'Acdcsw', 40, 35}\n"
                "set_token('battery', 1)\nset_token(750, 40)\n"
                "wheel(dc, -9)\nwheel(dc, 2)\nexpect(image('Acdcsw', 380) == 2)\n"
                "wait(0.2)\nexpect_near(value('Acdc', 350), 38, 0, 'amperes')\n"
                "wheel(dc, -9)\nexpect(image('Acdcsw', 380) == 0)\n"
                "release_token(750)\nwait(0.2)\nexpect(token(750) ~= 40)"),
            "");
}

TEST_F(FlowApi, GoesByTheNamesOfControlsAndParts) {
  EXPECT_EQ(
      fly("click('masterbat', 'battery_switch')\n"
          "expect(image('Masterbat', 'battery_switch') == 1)\n"
          "expect(image('Masterbat', 'battery_lamp') == 1)\n"
          "hold({'Masterbat', 'battery_switch'}, 1)\nexpect_near(now(), 20 / 18, 1e-9)\n"
          "expect(image('Masterbat', 'battery_lamp') == 0)\n"
          "set_token('battery', 1)\nset_token(750, 40)\nwheel('Acdcsw', 'dc_meter_selector', "
          "2)\nwait(0.2)\n"
          "expect_near(value('Acdc', 'dc_ammeter'), 38, 0)\n"
          "expect(value('Acdc', 'dc_ammeter', 2) == 0, 'an axis that a needle does not have')\n"
          "wheel('Acdcsw', 'dc_meter_selector_up', -1)\nclick('Acdcsw', 'dc_meter_selector_down')\n"
          "expect(image('Acdcsw', 'dc_meter_selector') == 0)\n"
          "expect(text('Cabalt', 'pressure_setting') ~= '')"),
      "");
}

TEST_F(FlowApi, CountsTimeInWholeFrames) {
  EXPECT_EQ(fly("wait(1)\nexpect_near(now(), 1, 1e-9)\nwait(0)\nexpect_near(now(), 1, 1e-9)\n"
                "wait(0.06)\nexpect_near(now(), 20 / 18, 1e-9)\n"
                "local n = 0\nwait_until(function() n = n + 1; return n == 10 end, 5, 'ten')\n"
                "expect_near(now(), 29 / 18, 1e-9)"),
            "");
  EXPECT_EQ(cockpit.frames(), 29u);
}

TEST_F(FlowApi, SeesOneOfTheDayAndNightCopies) {
  EXPECT_EQ(fly("expect(image('Cainstlg', 13310) == 0)\n"
                "click('Cainstlg', 27, 83)\nwait(0.1)\n"
                "expect(image('Cainstlg', 13310) == 1, 'the lit copy shows')\n"
                "expect(image('Cainstlg', 'panel_lights_button') == 1, 'the lit copy has its name')\n"
                "expect(window_open(27) and window_open(500) and not window_open(20))"),
            "");
}

TEST_F(FlowApi, OpensAndClosesWindows) {
  EXPECT_EQ(fly("open_window(502)\nclick('Avimaster', 50, 30)\nexpect(image('Avimaster', 2330) == 1)\n"
                "close_window(502)\nexpect(not window_open(502))"),
            "");
}

TEST_F(FlowApi, FailsAndRepairsASystem) {
  EXPECT_EQ(fly("fail(20)\nwait(0.1)\nexpect(image('Masterbat', 40) == nil and not shown('Masterbat', "
                "40), 'a failed lamp shows')\n"
                "repair(20)\nwait(0.1)\nexpect(image('Masterbat', 40) == 0 and shown('Masterbat', "
                "'battery_lamp'))"),
            "");
}

TEST_F(FlowApi, TellsMessagesAndSound) {
  session.messages = {"one", "two"};
  session.sounds = {{"v1", 1.5}, {"rotate", 2}};
  EXPECT_EQ(
      fly("expect(#messages() == 2 and messages()[2] == 'two')\nexpect_near(sound_level(0.5), "
          "0.25, 0)\nexpect(#sounds() == 2 and sounds()[2].name == 'rotate' and sounds()[1].seconds "
          "== 1.5)"),
      "");
}

TEST_F(FlowApi, MovesTheControlsThatItNames) {
  simulation::FlightControls& controls = cockpit.aircraft().controls();
  EXPECT_EQ(
      fly("fly{elevator = 0.1, aileron = -0.2, rudder = 1, pitch_trim = -1, aileron_trim = 0.3,\n"
          "    rudder_trim = -0.4, throttle = {0.5, 0.6}, flaps = 18, gear = 'up', speed_brake = 0.7,\n"
          "    lift_dumpers = true, brakes = 0.8, tiller = -0.9, parking_brake = true}\n"
          "fly{}\nfly{flaps = 0, rudder = 0.5}"),
      "");
  EXPECT_EQ(std::tie(controls.elevator, controls.aileron, controls.rudder, controls.pitch_trim),
            std::tuple(0.1, -0.2, 0.5, -1.0));
  EXPECT_EQ(
      std::tie(controls.aileron_trim, controls.rudder_trim, controls.speed_brake, controls.tiller),
      std::tuple(0.3, -0.4, 0.7, -0.9));
  EXPECT_EQ(controls.throttle, (std::array{0.5, 0.6}));
  EXPECT_EQ(controls.brake, (std::array{0.8, 0.8}));
  EXPECT_EQ(std::tie(controls.flap_detent, controls.gear_down, controls.lift_dumpers_out,
                     controls.parking_brake_set),
            std::tuple(0u, false, true, true));
  EXPECT_EQ(
      fly("local c = controls()\n"
          "expect(c.elevator == 0.1 and c.flaps == 0 and c.gear == 'up' and c.parking_brake == true)\n"
          "expect(#c.throttle == 2 and c.throttle[2] == 0.6)\nfly(c)"),
      "");
  EXPECT_NE(fly("fly{elevator = 0.9, flaps = 7}"), "");
  EXPECT_EQ(controls.elevator, 0.1) << "all or nothing";
}

TEST_F(FlowApi, MakesWeatherAndPutsTheAircraftIntoIt) {
  EXPECT_EQ(fly("weather{pressure = 1000, warmer_by = -5}\n"
                "weather{wind_from = 338, wind_speed = 10, gusts = 1}\n"
                "make_ready()\nplace_on_runway()\nwait(0.1)\n"
                "expect_near(token('engine_1_core_speed'), 52, 1, 'N2')\n"
                "expect_near(token('heading'), 70, 0.1, 'the runway')\n"
                "place_in_flight{altitude = 4000, airspeed = 150, heading = 250, along = -9000, right "
                "= 100,\n"
                "                flaps = 18, gear = 'down'}\nwait(0.1)\n"
                "expect_near(token('indicated_airspeed'), 150, 2, 'the airspeed')\n"
                "expect_near(token('heading'), 250, 0.5, 'the heading')\n"
                "expect(controls().flaps == 18 and controls().gear == 'down')"),
            "");
  const simulation::Weather& weather = cockpit.aircraft().weather();
  EXPECT_EQ(std::tie(weather.sea_level_pressure_hpa, weather.warmer_by_celsius, weather.wind.speed_kt,
                     weather.wind.gust_mps),
            std::tuple(1000.0, -5.0, 10.0, 1.0));
  EXPECT_EQ(weather.wind.from_true_deg, 340) << "the compass shows two degrees less";
}

TEST_F(FlowApi, SaysWhyAFlowFails) {
  for (const Row& row : rows_of("script/failing_flows.txt", 2)) {
    const std::string message = fly(row[0]);
    EXPECT_TRUE(message.starts_with("t.lua:1: " + row[1])) << row[0] << "\n  " << message;
  }
}

}  // namespace
