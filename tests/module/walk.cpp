#include "tests/module/walk.h"

#include <algorithm>
#include <cstring>
#include <random>

#include "module/tokens.h"

namespace walk {
namespace {

using namespace tarnvale;

struct Token {
  u32 number;
  const char *name, *unit;

  bool is(std::string_view kind) const { return std::string_view(unit).starts_with(kind); }
  bool on_off() const {
    return is("0/1") || is("0 closed") || is("0 released") || std::string_view(unit) == "0..1";
  }
  bool lever() const { return is("0..16384"); }
};

/// All but the clock.
constexpr Token tokens[] = {
#define TOKEN(number, name, unit) {number, #name, unit},
#define EVENT(number, name)
#include "module/tokens.inc"
#undef TOKEN
#undef EVENT
};  // namespace

/// What a gauge shows: the values of its parts, and of a text the letters as a number.
using Picture = std::vector<f64>;

Picture picture(const rig::Gauge& gauge) {
  Picture all;
  for (const rig::NamedPart& part : gauge.parts()) {
    const Element& e = *part.element;
    const bool text = e.kind == ELEMENT_STRING;
    all.push_back(text ? static_cast<f64>(std::hash<std::string_view>()(e.string.text) >> 12)
                       : gauge.value(part));
  }
  return all;
}

std::string sounds_of_click() {
  std::string sounds;
  if (rig::heard(toggle_click_sound_request)) sounds += "toggle";
  if (rig::heard(click_sound_request)) sounds += "push";
  for (u32& other : aircraft.sound_requests) {
    if (std::exchange(other, 0u) != 0) sounds += " other";
  }
  return sounds;
}

class Walk {
  static constexpr int rounds = 75, steps_a_stimulus = 6;

 public:
  Result run() {
    host_.follows = true;
    result_.gauges = rig::built_gauges();
    list_stimuli();
    for (const Token& token : tokens) randomize(token);
    for (int round = 0; round < rounds; ++round) {
      for (std::size_t g = 0; g < result_.gauges.size(); ++g) visit(g);
    }
    press_the_rest();
    result_.tokens = host_.looked_up;
    return std::move(result_);
  }

 private:
  /// In a dead cockpit with the cabin crew on duty: the start page, the windows, the announcements.
  void press_the_rest() {
    for (auto& [token, value] : host_.tokens) value = 0;
    aircraft.cabin_announcements_on = 1;
    host_.events.clear();
    for (rig::Gauge& gauge : result_.gauges) {
      gauge.frame();
      for (const rig::NamedArea& area : gauge.areas()) {
        if (!is_control(gauge, area)) gauge.click(area.name);
      }
    }
    for (const auto& [event, value] : host_.events) result_.events.insert(event);
  }

  std::size_t random(std::size_t below) { return static_cast<std::size_t>(bits_() % below); }

  /// Stays with a gauge long enough for its guards to be opened and its selectors to be turned far.
  void visit(std::size_t gauge) {
    std::vector<Stimulus*> own;
    for (Stimulus& stimulus : result_.stimuli) {
      if (stimulus.gauge == gauge) own.push_back(&stimulus);
    }
    for (std::size_t step = 0; step < own.size() * steps_a_stimulus; ++step) {
      whole_cockpit_ = random(14) == 0;
      change_surroundings();
      stimulate(*own[random(own.size())]);
    }
  }

  void randomize(const Token& token) {
    constexpr f64 values[] = {0, 1, 5, 9, 12, 30, 60, 75, 84, 110, 3000, 9000, 22000, 40000};
    constexpr f64 travel[] = {0,     50,    1500,  3000,  5000,  7000, 9000,
                              11000, 13000, 14500, 15500, 16300, 22000};
    if (token.number == token::clock_seconds) return;
    const auto pick = [&](auto& of) { return of[random(token.on_off() ? 2 : std::size(of))]; };
    host_.tokens[token.number] = token.lever() ? pick(travel) : pick(values);
  }

  /// The start page and the buttons for windows are no part of the aircraft.
  static bool is_control(const rig::Gauge& gauge, const rig::NamedArea& area) {
    return !gauge.parts().empty() && !area.name.starts_with("open_");
  }

  void list_stimuli() {
    for (std::size_t g = 0; g < result_.gauges.size(); ++g) {
      rig::Gauge& gauge = result_.gauges[g];
      for (const rig::NamedArea& area : gauge.areas()) {
        if (!is_control(gauge, area)) continue;
        result_.stimuli.push_back({.gauge = g, .area = area, .name = area.name});
      }
      host_.looked_up.clear();
      gauge.frame();
      for (const Token& token : tokens) {
        if (!host_.looked_up.contains(token.number) || token.number == token::clock_seconds) continue;
        result_.stimuli.push_back({.gauge = g, .token = token.number, .name = token.name});
      }
    }
  }

  /// Time passes, so that what was held is over, and now and then something else has happened.
  void change_surroundings() {
    host_.tokens[token::clock_seconds] += 10;
    aircraft.start_air_available = 0;  // a start would move its switches by itself
    if (random(4) == 0) randomize(tokens[random(std::size(tokens))]);
    if (random(2) == 0) host_.tokens[token::battery] = 1;
    if (random(16) == 0) aircraft.ground_power_connected = static_cast<u32>(random(2));
    if (random(16) == 0) aircraft.pedestal_selector_switch = static_cast<u32>(random(3));
    if (random(16) == 0) aircraft.duct_pressure_light = static_cast<u32>(random(3));
  }

  /// The stimulus's own gauge, and now and then all.
  std::vector<rig::Gauge*> watched(std::size_t own) {
    if (!whole_cockpit_) return {&result_.gauges[own]};
    std::vector<rig::Gauge*> all;
    for (rig::Gauge& gauge : result_.gauges) all.push_back(&gauge);
    return all;
  }

  void stimulate(Stimulus& stimulus) {
    constexpr int settling = 2;  // frames until what one gauge has changed is seen on all others
    const std::vector<rig::Gauge*> gauges = watched(stimulus.gauge);
    std::vector<Picture> idle, before;
    run(gauges, settling);
    for (const rig::Gauge* gauge : gauges) idle.push_back(picture(*gauge));
    run(gauges, settling);
    for (const rig::Gauge* gauge : gauges) before.push_back(picture(*gauge));
    act(stimulus);
    run(gauges, 1);
    note_move(stimulus, before[gauges.size() > 1 ? stimulus.gauge : 0]);
    run(gauges, settling);
    for (std::size_t g = 0; g < gauges.size(); ++g) compare(stimulus, *gauges[g], idle[g], before[g]);
  }

  static void run(const std::vector<rig::Gauge*>& gauges, int frames) {
    for (; frames > 0; --frames) {
      for (rig::Gauge* gauge : gauges) gauge->frame();
    }
  }

  void act(Stimulus& stimulus) {
    if (!stimulus.area) {
      randomize(*std::ranges::find(tokens, stimulus.token, &Token::number));
      return;
    }
    const u32 buttons = stimulus.area->area->mouse_flags & (MOUSE_LEFT | MOUSE_RIGHT);
    const bool right = buttons == MOUSE_RIGHT || (buttons != MOUSE_LEFT && random(2) == 0);
    sounds_of_click();  // what the frames asked for
    note_events();      // and sent
    const Aircraft was = aircraft;
    result_.gauges[stimulus.gauge].click(stimulus.name, right ? MOUSE_RIGHT : MOUSE_LEFT);
    stimulus.sounds.insert(sounds_of_click());
    stimulus.heeded |= !host_.events.empty();
    note_events();
    Aircraft now = aircraft;
    std::ranges::copy(was.sound_requests, now.sound_requests);
    stimulus.heeded |= std::memcmp(&was, &now, sizeof was) != 0;
  }

  void note_events() {
    for (const auto& [event, value] : host_.events) result_.events.insert(event);
    host_.events.clear();
  }

  void note_move(Stimulus& stimulus, const Picture& before) {
    const rig::Gauge& gauge = result_.gauges[stimulus.gauge];
    const rig::NamedPart* part = stimulus.area ? part_of(gauge, stimulus.name) : nullptr;
    if (part == nullptr) return;
    stimulus.moves.emplace(before[part->index - 1], gauge.value(*part));
  }

  /// Notes what the stimulus changed; what moves by itself says nothing.
  void compare(Stimulus& stimulus, const rig::Gauge& gauge, const Picture& idle,
               const Picture& before) {
    const Picture after = picture(gauge);
    for (std::size_t i = 0; i < after.size(); ++i) {
      const rig::NamedPart& part = gauge.parts()[i];
      const Place place{gauge.header().name, part.name};
      if (part.element->kind == ELEMENT_ICON) result_.shown[place].insert(after[i]);
      if (idle[i] == before[i] && before[i] != after[i]) stimulus.changed.insert(place);
    }
  }

  rig::Host host_;
  std::mt19937_64 bits_{1};
  bool whole_cockpit_ = true;
  Result result_;
};

}  // namespace

std::string Stimulus::text() const {
  return std::string(result().gauges[gauge].header().name) + ' ' + name;
}

const Stimulus* Result::find(std::string_view gauge, std::string_view name) const {
  const auto found = std::ranges::find_if(stimuli, [&](const Stimulus& s) {
    return gauges[s.gauge].header().name == gauge && s.name == name;
  });
  return found != stimuli.end() ? &*found : nullptr;
}

const Result& result() {
  static const Result all = Walk().run();
  return all;
}

const rig::NamedPart* part_of(const rig::Gauge& gauge, std::string_view control) {
  static const std::map<std::string, std::string> other_names{
      {"landing_lights_levers", "left_landing_light_lever"},
      {"cabin_altitude_knob_down", "selected_cabin_altitude"},
      {"cabin_altitude_knob_up", "selected_cabin_altitude"},
      {"set_gear_down", "gear_handle"},
      {"set_gear_up", "gear_handle"},
      {"set_gear_neutral", "gear_handle"},
      {"rudder_trim_left", "rudder_trim_buttons"},
      {"rudder_trim_right", "rudder_trim_buttons"},
      {"automatic_button", "automatic_light"},
      {"manual_button", "manual_light"},
      {"set_airspeed_bug_1", "speed_bug_1"},
      {"set_airspeed_bug_2", "speed_bug_2"},
      {"set_airspeed_bug_3", "speed_bug_3"},
      {"set_airspeed_bug_4", "speed_bug_4"},
  };
  std::string name(control);
  // Two panels set the decision height; each shows it its own way.
  if (name.starts_with("decision_height_knob")) {
    const bool drums = gauge.header().name == std::string_view("Dhgpws");
    name = drums ? "decision_height_tens" : "decision_height_bug";
  }
  if (const auto other = other_names.find(name); other != other_names.end()) name = other->second;
  while (true) {
    const auto part = std::ranges::find(gauge.parts(), name, &rig::NamedPart::name);
    if (part != gauge.parts().end()) return &*part;
    if (name.find('_') == std::string::npos) return nullptr;
    name.erase(name.rfind('_'));
  }
}

}  // namespace walk
