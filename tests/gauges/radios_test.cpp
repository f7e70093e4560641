/// The pedestal's radio heads: they show what the host tunes, and send it what the crew turns.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

// ---- Frequency heads

struct Head {
  const char* gauge;
  u32 active, standby, exchange, first_knob_event;
};
constexpr Head heads[] = {{"Vhf1nav", 24, 872, 66448, 65640},
                          {"Vhf2nav", 27, 873, 66452, 65644},
                          {"Nav1rad", 24, 872, 66448, 65640},
                          {"Comm", 23, 617, 66372, 65636}};

void PrintTo(const Head& head, std::ostream* out) { *out << head.gauge; }

class FrequencyHeads : public testing::TestWithParam<Head> {
 protected:
  rig::Host host;
  rig::Gauge head{GetParam().gauge};
  f64& clock = host.tokens[token::clock_seconds];

  std::string drums(const std::string& display) const {
    std::string figures;
    for (const char* place :
         {"_tens_of_megahertz", "_megahertz", "_tenths_of_megahertz", "_hundredths_of_megahertz"}) {
      figures += std::to_string(static_cast<int>(head.value(display + place))) + ' ';
    }
    return figures;
  }
  f64 light_at(f64 seconds) {
    clock = seconds;
    head.frame();
    return head.value("transfer_button");
  }
};

TEST_P(FrequencyHeads, ShowFourFiguresOfTheirOwnTokens) {
  host.tokens[GetParam().active] = 0x1345;
  host.tokens[GetParam().standby] = 0x70000A097;  // only the low 32 bits count, and of them 16
  head.frame();
  EXPECT_EQ(drums("active"), "1 3 4 5 ");
  EXPECT_EQ(drums("standby"), "10 0 9 7 ");
}

TEST_P(FrequencyHeads, AreDarkWithoutAvionicsAndStillObeyed) {
  for (const u32 on : {1u, 0u}) {
    aircraft.avionics_master_on = on;
    host.tokens[token::battery] = on;
    head.frame();
    for (const std::string display : {"active", "standby"}) {
      EXPECT_EQ(head.value(display + "_leading_figure"), on);
      EXPECT_EQ(head.value(display + "_display_cover"), 1 - on);
      EXPECT_EQ(head.value(display + "_display_power"), on);
    }
  }
  rig::Events sent;
  for (u32 knob = 0; knob < 4; ++knob) sent.push_back({GetParam().first_knob_event + knob, 0});
  for (const char* half :
       {"megahertz_knob_down", "megahertz_knob_up", "kilohertz_knob_down", "kilohertz_knob_up"}) {
    head.click(half);
  }
  EXPECT_EQ(host.events, sent);
}

TEST_P(FrequencyHeads, ATransferShinesWhileTheClockIsTwoSecondsOn) {
  clock = 100.9;
  head.click("transfer_button");
  EXPECT_EQ(host.events, (rig::Events{{GetParam().exchange, 0}}));
  EXPECT_EQ(light_at(102.9), 1);
  head.click("transfer_button");
  EXPECT_EQ(light_at(104.9), 1) << "a second press prolongs it";
  EXPECT_EQ(light_at(105), 0);
  head.click("transfer_button");
  EXPECT_EQ(light_at(104), 1) << "the clock may run back by a second";
  EXPECT_EQ(light_at(103.9), 0);
  clock = 0.9;
  head.click("transfer_button");
  EXPECT_EQ(light_at(0.9), 0) << "within the first second of the clock nothing is held";
}

INSTANTIATE_TEST_SUITE_P(Radios, FrequencyHeads, testing::ValuesIn(heads),
                         [](const auto& each) { return std::string(each.param.gauge); });

// ---- Navigation heads

class NavigationHeads : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge nav1{"Vhf1nav"}, nav2{"Vhf2nav"}, small{"Nav1rad"};

  /// What all three show of a part that they share.
  std::set<f64> shown(const char* part) {
    std::set<f64> values;
    for (rig::Gauge* head : {&nav1, &nav2, &small}) {
      head->frame();
      values.insert(head->value(part));
    }
    return values;
  }
};

TEST_F(NavigationHeads, WorkOnePairOfSwitches) {
  nav2.click("vor_check_button");
  EXPECT_EQ(aircraft.nav_aux_switch, 1u);
  EXPECT_EQ(shown("vor_check_button"), std::set<f64>{1});
  const std::tuple<rig::Gauge*, const char*, f64> moves[] = {
      {&nav1, "deviation_check_switch_up", 1},    {&small, "deviation_check_switch_down", 0},
      {&small, "deviation_check_switch_down", 2}, {&nav2, "deviation_check_switch_up", 0},
      {&nav2, "deviation_check_switch_up", 1},    {&nav1, "deviation_check_switch_up", 0}};
  for (const auto& [head, half, position] : moves) {
    head->click(half);
    EXPECT_EQ(shown("deviation_check_switch"), std::set<f64>{position}) << half;
    EXPECT_EQ(aircraft.nav_test_switch, position);
  }
}

TEST_F(NavigationHeads, ADistanceTestIsTheirReceiversOwnAndProlongsItsTransferLight) {
  f64& clock = host.tokens[token::clock_seconds];
  clock = 50;
  nav1.click("transfer_button");
  host.events.clear();
  clock = 52;
  nav1.click("dme_test_button");
  EXPECT_EQ(aircraft.nav1_test_active, 1u);
  EXPECT_EQ(aircraft.nav2_test_active, 0u);
  EXPECT_EQ(aircraft.nav1_timer_deadline, 54u);
  EXPECT_TRUE(host.events.empty());
  clock = 54;
  EXPECT_EQ(shown("transfer_button"), (std::set<f64>{0, 1})) << "receiver 1's own light alone";
  EXPECT_EQ(nav1.value("transfer_button"), 1);
  clock = 55;
  EXPECT_EQ(shown("transfer_button"), std::set<f64>{0});
  EXPECT_EQ(aircraft.nav1_test_active, 1u) << "the bearing indicator ends it";
  nav2.click("dme_test_button");
  EXPECT_EQ(aircraft.nav2_test_active, 1u);
  EXPECT_EQ(aircraft.nav2_timer_deadline, 57u);
}

// ---- Direction finder and transponder

TEST(DirectionFinder, ShowsAndTurnsEachFigure) {
  rig::Host host;
  rig::Gauge adf("Adf");
  host.tokens = {{16, 0x0368}, {18, 0x0105}, {token::battery, 1}};
  aircraft.avionics_master_on = 2;
  adf.frame();
  const std::tuple<const char*, f64> shown[] = {{"thousands", 1},    {"hundreds", 3}, {"tens", 6},
                                                {"units", 8},        {"tenths", 5},   {"display", 1},
                                                {"display_power", 1}};
  for (const auto& [part, value] : shown) EXPECT_EQ(adf.value(part), value) << part;
  aircraft.avionics_master_on = 0;
  adf.frame();
  EXPECT_EQ(adf.value("display"), 0);
  for (const char* knob :
       {"set_adf_freq_0_1hz", "set_adf_freq_1hz", "set_adf_freq_10hz", "set_adf_freq_100hz"}) {
    adf.click(knob);
  }
  EXPECT_EQ(host.events, (rig::Events{{66454, 0}, {65650, 0}, {65649, 0}, {65648, 0}}));
}

class Transponder : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Transponder"};

  std::string code() {
    panel.frame();
    std::string figures;
    for (const char* place : {"first", "second", "third", "fourth"}) {
      figures += std::to_string(static_cast<int>(panel.value(std::string(place) + "_figure")));
    }
    return figures;
  }
};

TEST_F(Transponder, ItsModeSwitchesTheDisplayAndStopsAtItsEnds) {
  host.tokens[token::transponder_code] = 0x2071;
  aircraft.avionics_master_on = 1;
  panel.click("transponder_selector_down");
  EXPECT_EQ(code(), "0000");
  EXPECT_EQ(panel.value("display"), 0);
  for (const f64 mode : {1, 2, 3, 3}) {
    panel.click("transponder_selector_up");
    EXPECT_EQ(code(), "2071");
    EXPECT_EQ(panel.value("transponder_selector"), mode);
    EXPECT_EQ(panel.value("display"), 1);
  }
  aircraft.avionics_master_on = 0;
  panel.frame();
  EXPECT_EQ(panel.value("display"), 0);
  EXPECT_TRUE(host.events.empty());
}

TEST_F(Transponder, IdentNeedsAModeAndIsForgottenWithoutOne) {
  const auto press = [&](u32 mode) {
    aircraft.transponder_mode = mode;
    panel.click("ident_button");
    panel.frame();
    return panel.value("ident_light");
  };
  EXPECT_EQ(press(0), 0);
  EXPECT_EQ(press(1), 1);
  EXPECT_EQ(press(0), 0);
  aircraft.transponder_mode = 2;
  panel.frame();
  EXPECT_EQ(panel.value("ident_button"), 0) << "the press without a mode has cleared it";
}

TEST_F(Transponder, ItsKnobsCountOnAndGoRound) {
  panel.frame();
  const u32 events[] = {65651, 65652, 65653, 65654};
  int knob = 0;
  for (const std::string place : {"first", "second", "third", "fourth"}) {
    const auto start = static_cast<u32>(panel.value(place + "_code_knob"));
    for (u32 count = 1; count <= 10; ++count) {
      panel.click(place + "_code_knob");
      panel.frame();
      EXPECT_EQ(panel.value(place + "_code_knob"), (start + count) % 8);
    }
    ASSERT_EQ(host.events.size(), 10u);
    EXPECT_EQ(host.events.back().first, events[knob++]);
    EXPECT_EQ(host.events.back().second, host.events.front().second + 9);
    host.events.clear();
  }
}

// ---- Call panel and audio selector

TEST(CallPanel, AnAnnouncementIsAskedForWhenItsButtonComesOn) {
  const std::tuple<const char*, SoundRequest> rows[] = {{"taxi", cctaxi_sound_request},
                                                        {"safety", ccsafety_sound_request},
                                                        {"climb", ccclimb_sound_request},
                                                        {"descent", ccdescent_sound_request},
                                                        {"final_approach", ccfinal_sound_request},
                                                        {"roll_out", ccrollout_sound_request}};
  rig::Host host;
  rig::Gauge panel("Selcall");
  for (const auto& [name, sound] : rows) {
    const std::string button = std::string(name) + "_announcement_button";
    for (const f64 on : {1, 0}) {
      panel.click(button);
      panel.frame();
      EXPECT_EQ(panel.value(button), on) << button;
      EXPECT_EQ(rig::heard(sound), on == 1) << button;
      EXPECT_EQ(rig::sounds_requested(), 0) << button << " clicks";
    }
  }
}

TEST(CallPanel, WelcomeAndGroundPowerAnswerBothWays) {
  rig::Host host;
  rig::Gauge panel("Selcall");
  panel.click("welcome_announcement_button");
  EXPECT_EQ(aircraft.sound_requests[ccwelcome_sound_request], 1u);
  panel.click("welcome_announcement_button");
  EXPECT_EQ(aircraft.sound_requests[ccwelcome_sound_request], 0u) << "the second press withdraws it";
  for (const SoundRequest sound : {extpwr_sound_request, extpwrdis_sound_request}) {
    panel.click("ground_power_button");
    EXPECT_EQ(aircraft.ground_power_connected, sound == extpwr_sound_request);
    EXPECT_TRUE(rig::heard(sound));
  }
  panel.click("first_officer_s_calls_button"), panel.click("automatic_announcements_button");
  EXPECT_EQ(aircraft.fo_callouts_enabled + aircraft.cabin_announcements_on, 2u);
}

TEST(AudioSelector, SendsWhereTheMicrophoneGoesAndWhatIsListenedTo) {
  rig::Host host;
  rig::Gauge panel("Micsel");
  const char* buttons[] = {"vhf_1_microphone_button", "vhf_2_microphone_button",
                           "both_microphones_button"};
  const std::tuple<int, const char*> presses[] = {{0, "100"}, {2, "111"}, {0, "011"}, {1, "001"},
                                                  {1, "010"}, {2, "111"}, {2, "110"}, {1, "100"},
                                                  {1, "010"}, {1, "000"}};
  rig::Events sent;
  for (const auto& [button, lights] : presses) {
    panel.click(buttons[button]);
    panel.frame();
    std::string lit;
    for (const char* each : buttons) lit += panel.value(each) == 1 ? '1' : '0';
    EXPECT_EQ(lit, lights) << buttons[button];
    sent.push_back({66463u + static_cast<u32>(button), 0});
  }
  for (const char* button : {"nav_1_audio_button", "nav_2_audio_button", "adf_audio_button"}) {
    panel.click(button), panel.click(button);
  }
  for (const u32 event : {65837, 65832, 65838, 65833, 65841, 65836}) sent.push_back({event, 0});
  EXPECT_EQ(host.events, sent);
}

}  // namespace
