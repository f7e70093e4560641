/// Start page, window buttons, cabin signs and announcements.
#include <gtest/gtest.h>

#include <unordered_map>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Windows : public testing::Test {
 protected:
  rig::Host host;
};

TEST_F(Windows, EachButtonOpensAndClosesItsOwn) {
  struct Row {
    const char *gauge, *button;
    rig::WindowCalls windows;
    rig::Events events;
  };
  const Row rows[] = {
      {"Ovhtoggle", "close_overhead_panel", {{'c', 502}}, {}},
      {"Pedtg", "close_pedestal_panel", {{'c', 503}}, {}},
      {"Thrtg", "close_throttle_panel", {{'c', 504}}, {}},
      {"Checktg", "open_close_kneeboard", {}, {{0x10154, 0}}},
      {"Fopselect", "open_captains_panel", {{'o', 500}, {'c', 501}}, {}},
      {"Pselect", "open_overhead_panel", {{'o', 502}}, {}},
      {"Pselect", "open_pedestal_panel", {{'o', 503}}, {}},
      {"Pselect", "open_throttle_panel", {{'o', 504}}, {}},
      {"Pselect", "open_close_pushback_panel", {{'o', 505}}, {}},
      {"Pselect", "open_close_pushback_panel", {{'c', 505}}, {}},
      {"Pselect", "open_close_utility_panel", {{'o', 506}}, {}},
      {"Pselect", "open_close_utility_panel", {{'c', 506}}, {}},
      {"Pselect", "open_first_officer_panel", {{'o', 501}, {'c', 500}}, {}},
      {"Pselect", "open_close_kneeboard_panel", {}, {{0x10154, 0}}},
      {"Pselect", "open_close_gps_panel", {{'t', 507}}, {}},
      {"Caradar", "open_close_atc_window", {}, {{0x1001C, 0}}},
      {"Caradar", "open_close_flightmap_window", {}, {{0x10380, 0}}},
  };
  for (const Row& row : rows) {
    host.windows.clear();
    rig::Gauge(row.gauge).click(row.button);
    EXPECT_EQ(host.windows, row.windows) << row.gauge << ' ' << row.button;
    EXPECT_EQ(host.sent(), row.events) << row.gauge << ' ' << row.button;
  }
  EXPECT_EQ(rig::sounds_requested(), 0) << "window buttons are silent";
}

TEST_F(Windows, TheSelectorShinesWithPanelsOrInstruments) {
  rig::Gauge strip("Pselect"), radar("Caradar");
  for (const auto& [panels, instruments, lit] : {std::tuple{0u, 0u, 0}, {1u, 0u, 1}, {0u, 2u, 1}}) {
    aircraft.panel_lights_on = panels;
    aircraft.instrument_light_level = instruments;
    strip.expect({{"selector_lighting", lit}});
    radar.expect({{"screen_lighting", panels}});
  }
}

class StartPage : public Windows {
 protected:
  rig::Gauge page{"Intro"};
  rig::Events sent_by(const char* button) {
    page.click(button);
    return host.sent();
  }
};

TEST_F(StartPage, EveryStateOpensThePanelOfItsColumn) {
  for (const char* state : {"cold_and_dark", "ready_to_start", "running"}) {
    page.click(std::string("captain_") + state);
    page.click(std::string("first_officer_") + state);
  }
  EXPECT_EQ(host.windows,
            (rig::WindowCalls{{'o', 500}, {'o', 501}, {'o', 500}, {'o', 501}, {'o', 500}, {'o', 501}}));
}

TEST_F(StartPage, ColdAndDarkTogglesWhateverThereIsAndLeavesTheSwitches) {
  aircraft.gen1_switch = 2;
  EXPECT_EQ(sent_by("captain_cold_and_dark"),
            (rig::Events{{0x10346, 0}, {0x102F5, 0}, {0x103BE, 0}, {0x103BF, 0}}));
  EXPECT_EQ(aircraft.gen1_switch, 2u);
  EXPECT_EQ(aircraft.cabin_sign_left_on, 0u);
}

TEST_F(StartPage, ReadyToStartPowersAColdAircraftAndClosesItsFuelLevers) {
  EXPECT_EQ(sent_by("captain_ready_to_start"),
            (rig::Events{{0x102BF, 0}, {0x100D8, 0}, {0x102C1, 0}, {0x10346, 0}, {0x102F5, 0}}));
  EXPECT_EQ(aircraft.dc_power_on, 1u);
  EXPECT_EQ(aircraft.avionics_master_on, 1u);
  host.tokens = {{364, 1}, {740, 1}, {895, 1}, {896, 1}};
  aircraft.dc_power_on = 0;
  EXPECT_EQ(sent_by("first_officer_ready_to_start"),
            (rig::Events{{0x102BF, 0}, {0x100D8, 0}, {0x103BE, 0}, {0x103BF, 0}}));
  EXPECT_EQ(aircraft.dc_power_on, 0u) << "only written with the events";
}

TEST_F(StartPage, RunningStartsTheEnginesOnlyWhereNeitherTurns) {
  host.tokens = {{364, 1}, {740, 1}, {895, 1}};
  const rig::Events lights{{0x102C0, 0}, {0x102BF, 0}, {0x10018, 0}, {0x100D8, 0}};
  rig::Events expected = lights;
  expected.insert(expected.end(), {{0x103BF, 0}, {0x102B0, 0}});
  EXPECT_EQ(sent_by("captain_running"), expected);
  host.tokens[896] = 1;
  for (const auto& [core_1, core_2] : {std::pair{25.0, 5.0}, {5.0, 20.0}}) {
    host.tokens[625] = core_1;
    host.tokens[644] = core_2;
    EXPECT_EQ(sent_by("captain_running"), lights) << core_1 << ' ' << core_2;
  }
}

/// As a crew finds them: ready to start and running, where that is another position.
TEST_F(StartPage, TheSwitchesOfOtherPanelsStandAsTheStateNeedsThem) {
  struct Row {
    const char *gauge, *part;
    f64 ready, running;
  };
  const Row rows[] = {
      {"Apu", "master_switch", 1, 1},
      {"Apu", "generator_switch", 1, 0},
      {"Ctr", "generator_1_switch", 1, 1},
      {"Engstart", "start_master_switch", 1, 0},
      {"Engstart", "engine_1_start_switch", 0, 2},
      {"Antiice", "right_engine_anti_ice_knob", 0, 3},
      {"Pitot", "left_pitot_heat_switch", 0, 1},
      {"Windshield", "windshield_heat_knob", 1, 0},
      {"Windshield", "left_windshield_switch", 1, 0},
      {"Hydp", "system_2_standby_pump_switch", 1, 1},
      {"Emerlight", "emergency_lights_switch", 1, 1},
      {"Cutoff", "pump_2_switch", 1, 1},
      {"Flightrec", "event_button", 1, 1},
      {"Stabind", "bank_button", 0, 1},
      {"Transponder", "transponder_selector", 1, 1},
  };
  for (const bool running : {false, true}) {
    page.click(running ? "captain_running" : "captain_ready_to_start");
    for (const Row& row : rows) {
      rig::Gauge(row.gauge).expect({{row.part, running ? row.running : row.ready}});
    }
  }
}

class Announcements : public Windows {
 protected:
  Announcements() {
    aircraft.cabin_announcements_on = 1;
    rig::Gauge("Hvsnd").frame();  // nothing holds, and what restarts a counter does
    for (u32& request : aircraft.sound_requests) request = 0;
  }
  /// The frame after which the announcement is first asked for; 0 when not within `most`.
  int frames_to(SoundRequest sound, int most = 1000) {
    rig::Gauge gauge("Hvsnd");
    for (int frame = 1; frame <= most; ++frame) {
      gauge.frame();
      if (rig::heard(sound)) return frame;
    }
    return 0;
  }
};

TEST_F(Announcements, EachIsMadeAfterItsFramesAndOnceACount) {
  struct Row {
    SoundRequest sound;
    u32 door, sign;
    std::unordered_map<u32, f64> tokens;
    int frames;
  };
  const Row rows[] = {
      {ccwelcome_sound_request, 1, 1, {{60, 1}}, 401},
      {ccsafety_sound_request, 0, 0, {{60, 1}, {328, 4100}}, 201},
      {ccsafety_sound_request, 0, 0, {{60, 1}, {328, 4200}}, 0},
      {ccclimb_sound_request, 0, 0, {{74, 5301}, {65, 301}}, 301},
      {ccclimb_sound_request, 0, 0, {{74, 5300}, {65, 301}}, 0},
      {ccdescent_sound_request, 0, 1, {{74, 7500}, {65, -301}}, 251},
      {ccdescent_sound_request, 0, 0, {{74, 7500}, {65, -301}}, 0},
      {ccfinal_sound_request, 0, 0, {{65, -201}, {332, 16383}}, 101},
      {ccrollout_sound_request, 0, 0, {{60, 1}, {328, 13001}}, 601},
  };
  for (const Row& row : rows) {
    for (const u32 door : {1u - row.door, row.door}) {  // the other way first restarts the counters
      host.tokens = {};
      aircraft.apcon_switch_c_on = door;
      rig::Gauge("Hvsnd").frame();
    }
    host.tokens = row.tokens;
    aircraft.cabin_sign_right_on = row.sign;
    EXPECT_EQ(frames_to(row.sound), row.frames) << row.sound;
    if (row.frames == 0) continue;
    EXPECT_EQ(frames_to(row.sound, 50), 0) << row.sound << " goes on counting";
  }
}

TEST_F(Announcements, OffTheyWaitAndOnTheyGoOnFromThere) {
  host.tokens = {{74, 6000}, {65, 400}};
  rig::Gauge("Hvsnd").frame(250);
  aircraft.cabin_announcements_on = 0;
  EXPECT_EQ(frames_to(ccclimb_sound_request, 400), 0);
  aircraft.cabin_announcements_on = 1;
  EXPECT_EQ(frames_to(ccclimb_sound_request), 51);
}

TEST_F(Announcements, ACounterThatStopsAtItsTargetAsksEveryFrame) {
  host.tokens = {{74, 6000}, {65, 400}};
  rig::Gauge gauge("Hvsnd");
  gauge.frame(300);
  host.tokens[65] = 100;  // neither climbing enough nor level
  for (int frame = 0; frame < 3; ++frame) {
    gauge.frame();
    EXPECT_TRUE(rig::heard(ccclimb_sound_request)) << frame;
  }
}

}  // namespace
