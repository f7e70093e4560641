// The functions of flows, on the real module in a small panel.
#include "host/script/flow_api.h"

#include <gtest/gtest.h>

#include "platform/platform_host.h"

namespace {

using namespace host;

constexpr const char* panel =
    "[Window00]\nident=500\nident_day=20\nident_night=27\nsize_mm=600,400\nvisible=1\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Acdc, 400,0\n"
    "gauge03=Tarnvale!Cainstlg, 0,200\ngauge04=Tarnvale!Acpwr, 200,200\n"
    "[Window Titles]\nWindow02=Overhead\n"
    "[Window02]\nident=502\nsize_mm=200,200\ngauge00=Tarnvale!Avimaster, 0,0\n";

class FlowApi : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    platform_choose_audio(PLATFORM_AUDIO_NONE);
    module = new GaugeModule(COCKPIT_DIR "/Tarnvale.GAU");
  }

  FlowApi() { bind_flow_api(runner, session); }

  std::string fly(const std::string& text) {
    try {
      runner.run(text, "t.lua");
      return "";
    } catch (const FlowError& error) {
      return error.what();
    }
  }

  static GaugeModule* module;
  std::vector<std::string> said;
  Cockpit cockpit{*module, parse_panel_config(panel, "panel.cfg")};
  FlowSession session{cockpit,
                      {{},
                       {},
                       [](double seconds) { return seconds / 2; },
                       [this](const std::string& text) { said.push_back(text); }}};
  LuaRunner runner;
};

GaugeModule* FlowApi::module = nullptr;

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
                "expect(window_open(27) and window_open(500) and not window_open(20))"),
            "");
}

TEST_F(FlowApi, OpensAndClosesWindows) {
  EXPECT_EQ(fly("open_window(502)\nclick('Avimaster', 50, 30)\nexpect(image('Avimaster', 2330) == 1)\n"
                "close_window(502)\nexpect(not window_open(502))"),
            "");
}

TEST_F(FlowApi, FailsAndRepairsASystem) {
  EXPECT_EQ(fly("fail(20)\nwait(0.1)\nexpect(image('Masterbat', 40) == nil, 'a failed lamp shows')\n"
                "repair(20)\nwait(0.1)\nexpect(image('Masterbat', 40) == 0)"),
            "");
}

TEST_F(FlowApi, TellsMessagesAndSound) {
  session.messages = {"one", "two"};
  EXPECT_EQ(fly("expect(#messages() == 2 and messages()[2] == 'two')\nexpect_near(sound_level(0.5), "
                "0.25, 0)"),
            "");
}

struct Failure {
  const char* text;
  const char* message;
};

TEST_F(FlowApi, SaysWhyAFlowFails) {
  const Failure failures[] = {
      {"expect(image('Masterbat', 40) == 1, 'the lamp is dark')", "the lamp is dark"},
      {"expect_near(3, 5, 1.5, 'the needle')", "the needle is 3, not within 1.5 of 5"},
      {"expect_near(nil, 5, 1)", "the value is nil, not within 1 of 5"},
      {"expect_event('battery_toggle')", "the gauges have not sent battery_toggle but nothing"},
      {"click('Cainstlg', 27, 83) expect_event('battery_toggle')",
       "the gauges have not sent battery_toggle but panel_lights_toggle"},
      {"wait_until(function() end, 2, 'the end')", "waited 2.0 s in vain for the end"},
      {"click('Masterbat', 1, 1)", "nothing answers the left button at 1,1 of Masterbat"},
      {"right_click('Masterbat', 47, 99)", "nothing answers the right button at 47,99 of Masterbat"},
      {"wheel('Masterbat', 47, 99, 1)", "the wheel works nothing at 47,99 of Masterbat"},
      {"click('Altimeter', 1, 1)", "no window has a gauge 'Altimeter'"},
      {"click('Avimaster', 50, 30)", "Avimaster is not shown: its window 'Overhead' (502) is closed"},
      {"image('Masterbat', 9999)", "Masterbat shows no element 1 with bitmap 9999"},
      {"image('Masterbat', 40, 2)", "Masterbat shows no element 2 with bitmap 40"},
      {"image('Acdc', 350)", "that element is not an icon"},
      {"value('Acdc', 350, 1, 4)", "argument 4 (axis) must be 1, 2 or 3"},
      {"text('Acdc')", "Acdc shows no text field 1"},
      {"token('batery')", "the aircraft has no token 'batery'"},
      {"event('battery_toggel')",
       "the aircraft has no event 'battery_toggel'; did you mean battery_toggle?"},
      {"event(1)", "the aircraft has no event 1"},
      {"event(-1)", "argument 1 (event) must be a whole number from 0 to 4294967295"},
      {"wait(-1)", "a flow waits 0 to 86400 seconds at once"},
      {"hold('Masterbat', 47, 99, 1e9)", "a gesture lasts 0 to 3600 seconds"},
      {"sound_level(0)", "argument 1 (seconds) must be 0 to 10"},
      {"picture('../escape')", "argument 1 (name) must be letters, digits, - and _"},
      {"picture('big', nil, 100)", "argument 3 (zoom) must be 0.1 to 4"},
  };
  for (const Failure& each : failures) {
    const std::string message = fly(each.text);
    EXPECT_EQ(message.rfind(std::string("t.lua:1: ") + each.message, 0), 0u)
        << each.text << "\n  " << message;
  }
}

}  // namespace
