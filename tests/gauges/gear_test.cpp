/// Gear, flaps and trims.
#include <gtest/gtest.h>

#include <set>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;
using rig::Events;

/// The calls that a change of one token from frame to frame brings, and no other one.
void expect_calls(const char* gauge, u32 token, f64 from, f64 to, std::set<SoundRequest> sounds) {
  for (const u32 enabled : {0u, 1u}) {
    rig::Host host;
    rig::Gauge panel(gauge);
    host.tokens[token] = from;
    panel.service(SERVICE_BEGIN);
    aircraft.fo_callouts_enabled = enabled;
    host.tokens[token] = to;
    panel.frame();
    for (const SoundRequest sound : sounds) {
      EXPECT_EQ(rig::heard(sound), enabled == 1) << gauge << ' ' << from << " to " << to;
    }
    EXPECT_EQ(rig::sounds_requested(), 0) << gauge << ' ' << from << " to " << to;
    aircraft.fo_callouts_enabled = 1;
    panel.frame();
    EXPECT_EQ(rig::sounds_requested(), 0) << "a call is neither repeated nor made up for";
  }
}

TEST(Calls, FollowTheFlapLeverAndTheNoseGear) {
  using Row = std::tuple<f64, f64, std::set<SoundRequest>>;
  for (const auto& [from, to, sounds] :
       {Row{3277, 0, {flaps00_sound_request}}, Row{0, 3277, {flaps06_sound_request}},
        Row{3000, 3100, {flaps06_sound_request}}, Row{3277, 6554, {flaps11_sound_request}},
        Row{0, 9831, {flaps18_sound_request}}, Row{0, 13108, {flaps25_sound_request}},
        Row{0, 16384, {flaps42_sound_request}}, Row{0, 13651, {flaps42_sound_request}},
        Row{3277, 1, {}}, Row{0, 2730, {}}, Row{0, 5460, {}}, Row{0, 8190, {}}, Row{0, 10920, {}},
        Row{0, 13650, {}}, Row{3277.2, 3277.9, {}}, Row{3277, -5, {}}}) {
    expect_calls("Flapind", token::flap_position, from, to, sounds);
  }
  for (const auto& [from, to, sounds] :
       {Row{9000, 0, {gearu_sound_request}}, Row{9000, 16383, {geard_sound_request}},
        Row{9000, 0.9, {gearu_sound_request}}, Row{0, 16382.9, {}}, Row{0, 16384, {}}}) {
    expect_calls("Gear", token::nose_gear_position, from, to, sounds);
  }
}

TEST(Gear, TheLeverSendsWhatItHasNotSentYetAndShowsTheAircraftsOwn) {
  rig::Host host;
  rig::Gauge panel("Gear");
  panel.click("set_gear_down");  // wherever another test left it
  host.events.clear();
  struct Row {
    const char* click;
    Events sent;
    f64 lever, image;
  };
  for (const Row& row :
       {Row{"set_gear_down", {}, 16383, 0}, Row{"set_gear_up", {{event::gear_up, 0}}, 0, 2},
        Row{"set_gear_up", {}, 16000, 2}, Row{"set_gear_neutral", {}, 0, 1},
        Row{"set_gear_down", {{event::gear_down, 0}}, 16001, 0}, Row{"set_gear_neutral", {}, 16383, 1},
        Row{"set_gear_up", {{event::gear_up, 0}}, 16383, 0}}) {
    panel.click(row.click);
    EXPECT_EQ(host.sent(), row.sent) << row.click;
    host.tokens[token::gear_lever] = row.lever;
    panel.frame();
    EXPECT_EQ(panel.value("gear_handle"), row.image) << row.click;
  }
}

TEST(Gear, EachLegHasItsOwnLights) {
  rig::Host host;
  rig::Gauge panel("Gearind");
  for (const auto& [moved, token] : {std::pair{"left", token::left_gear_position},
                                     {"nose", token::nose_gear_position},
                                     {"right", token::right_gear_position}}) {
    for (const f64 reading : {0.0, 99.9, 100.0, 16000.0, 16000.5, 16383.0}) {
      host.tokens = {{token, reading}};
      panel.frame();
      for (const rig::NamedPart& part : panel.parts()) {
        if (!part.name.ends_with("light")) continue;
        const bool down = part.name.find("down") != std::string::npos;
        const bool lit = down ? reading > 16000 : reading >= 100 && reading <= 16000;
        EXPECT_EQ(panel.value(part), part.name.starts_with(moved) && lit)
            << part.name << " with the " << moved << " leg at " << reading;
      }
    }
  }
}

TEST(Trim, OneButtonShinesAtATimeTheLeftOneFirst) {
  rig::Host host;
  rig::Gauge panel("Trim");
  f64& clock = host.tokens[token::clock_seconds] = 1000;
  panel.click("rudder_trim_left");
  clock = 1001;
  panel.click("rudder_trim_right");
  for (const auto& [seconds, image] : {std::pair{1002.9, 1}, {1003.0, 2}, {1004.0, 0}}) {
    clock = seconds;
    panel.expect({{"rudder_trim_buttons", image}});
  }
}

TEST(Stabiliser, EachReadOutRestsWhileItIsSwitchedOff) {
  rig::Host host;
  rig::Gauge panel("Stabind");
  host.tokens = {{token::bank_pointer, 20}, {token::stabiliser, 0.4}, {token::aileron_trim, -0.2}};
  for (const auto& [button, part, shown] : {std::tuple{"bank_button", "bank_wings", 340.0},
                                            {"stabiliser_button", "stabiliser_pointer", 0.4},
                                            {"aileron_trim_button", "aileron_trim_pointer", -0.2}}) {
    panel.expect({{button, 0}, {part, 0}});
    panel.click(button);
    panel.expect({{button, 1}, {part, shown}});
  }
}

}  // namespace
