#include "tests/module/walk.h"

#include <algorithm>
#include <cstring>
#include <random>

#include "module/tokens.h"
#include "tests/rig/token_list.h"

namespace walk {
namespace {

using namespace tarnvale;

/// All but the clock.
using Token = rig::Listed;
constexpr auto& tokens = rig::all_tokens;

bool is_on_off(const Token& token) {
  return token.unit.starts_with("0/1") || token.unit.starts_with("0 closed") ||
         token.unit.starts_with("0 released") || token.unit == "0..1";
}
bool is_lever(const Token& token) { return token.unit.starts_with("0..16384"); }

class Walk {
  static constexpr int rounds = 75, steps_a_stimulus = 6;
  static constexpr int patience = 8;  // visits to a gauge that teach nothing new until it is known
  static constexpr int longest_search = 60'000;

 public:
  Walk() {
    host_->follows = true;
    result_.gauges = rig::built_gauges();
    list_stimuli();
    for (const rig::Gauge& gauge : result_.gauges) {
      everything_.push_back(everything_.size());
      shown_.emplace_back(gauge.parts().size());
    }
    dull_visits_.resize(result_.gauges.size());
    for (const Token& token : tokens) randomize(token);
    for (int round = 0; round < rounds; ++round) {
      for (std::size_t g = 0; g < result_.gauges.size(); ++g) visit(g);
    }
    press_the_rest();
    result_.tokens = {host_->looked_up.begin(), host_->looked_up.end()};
  }

  const Result& result() const { return result_; }

  bool comes_to_change(const Stimulus& of, const Place& place) {
    Stimulus& stimulus = result_.stimuli[static_cast<std::size_t>(&of - result_.stimuli.data())];
    const Indices watched{stimulus.gauge, gauge_named(place.first)};
    return search([&] { return stimulus.changed.contains(place); }, watched,
                  [&]() -> Stimulus& { return stimulus; });
  }

  const Moves& moves(const Stimulus& of, const Moves& wanted) {
    Stimulus& stimulus = result_.stimuli[static_cast<std::size_t>(&of - result_.stimuli.data())];
    search([&] { return std::ranges::includes(stimulus.moves, wanted); }, {stimulus.gauge},
           [&]() -> Stimulus& { return stimulus; });
    return stimulus.moves;
  }

  const std::set<f64>& shown(std::size_t gauge, std::size_t part, std::size_t images) {
    const std::set<f64>& seen = shown_[gauge][part];
    search([&] { return seen.size() >= images; }, {gauge}, [&]() -> Stimulus& { return any(); });
    return seen;
  }

 private:
  using Indices = std::vector<std::size_t>;

  /// What the walk has not met is looked for with the eyes on it alone, in whatever state the cockpit gets to.
  template <typename Met, typename Pick>
  bool search(Met met, const Indices& watched, Pick pick) {
    if (!met()) resume();
    for (int step = 0; !met() && step < longest_search; ++step) {
      for (int other = 0; other < 4; ++other) work(any());
      stimulate(pick(), watched);
    }
    return met();
  }

  /// Other tests have had hosts of their own since.
  void resume() {
    const auto readings = host_->tokens;
    host_.emplace();
    host_->tokens = readings;
    host_->follows = true;
  }

  Stimulus& any() { return result_.stimuli[random(result_.stimuli.size())]; }

  std::size_t gauge_named(std::string_view name) const {
    const auto found = std::ranges::find(result_.gauges, name,
                                         [](const rig::Gauge& gauge) { return gauge.header().name; });
    return static_cast<std::size_t>(found - result_.gauges.begin());
  }

  /// In a dead cockpit with the cabin crew on duty: the start page, the windows, the announcements.
  void press_the_rest() {
    for (auto& [token, value] : host_->tokens) value = 0;
    aircraft.cabin_announcements_on = 1;
    host_->events.clear();
    for (rig::Gauge& gauge : result_.gauges) {
      gauge.frame();
      for (const rig::NamedArea& area : gauge.areas()) {
        if (!is_control(gauge, area)) gauge.click(area.name);
      }
    }
    for (const auto& [event, value] : host_->events) result_.events.insert(event);
  }

  std::size_t random(std::size_t below) { return static_cast<std::size_t>(bits_() % below); }

  std::vector<Stimulus*> stimuli_of(std::size_t gauge) {
    std::vector<Stimulus*> own;
    for (Stimulus& stimulus : result_.stimuli) {
      if (stimulus.gauge == gauge) own.push_back(&stimulus);
    }
    return own;
  }

  /// Stays with a gauge long enough for its guards to be opened and its selectors to be turned far. One that
  /// is known is only worked, for what the others make of it.
  void visit(std::size_t gauge) {
    const std::vector<Stimulus*> own = stimuli_of(gauge);
    if (dull_visits_[gauge] == patience) {
      for (std::size_t step = 0; step < own.size(); ++step) work(*own[random(own.size())]);
      return;
    }
    const std::size_t known = news_;
    for (std::size_t step = 0; step < own.size() * steps_a_stimulus; ++step) {
      const bool whole_cockpit = random(40) == 0;
      stimulate(*own[random(own.size())], whole_cockpit ? everything_ : Indices{gauge});
    }
    dull_visits_[gauge] = news_ == known ? dull_visits_[gauge] + 1 : 0;
  }

  void work(Stimulus& stimulus) {
    change_surroundings();
    act(stimulus);
    result_.gauges[stimulus.gauge].frame();
  }

  void randomize(const Token& token) {
    constexpr f64 values[] = {0, 1, 5, 9, 12, 30, 60, 75, 84, 110, 3000, 9000, 22000, 40000};
    constexpr f64 travel[] = {0,     50,    1500,  3000,  5000,  7000, 9000,
                              11000, 13000, 14500, 15500, 16300, 22000};
    if (token.number == token::clock_seconds) return;
    const auto pick = [&](auto& of) { return of[random(is_on_off(token) ? 2 : std::size(of))]; };
    host_->tokens[token.number] = is_lever(token) ? pick(travel) : pick(values);
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
        result_.stimuli.push_back(
            {.gauge = g, .area = area, .part = part_of(gauge, area.name), .name = area.name});
      }
      host_->looked_up.clear();
      gauge.frame();
      for (const Token& token : tokens) {
        if (!host_->looked_up.contains(token.number) || token.number == token::clock_seconds) continue;
        result_.stimuli.push_back({.gauge = g, .token = token.number, .name = std::string(token.name)});
      }
    }
  }

  /// Time passes, so that what was held is over, and now and then something else has happened.
  void change_surroundings() {
    host_->tokens[token::clock_seconds] += 10;
    aircraft.start_air_available = 0;  // a start would move its switches by itself
    if (random(4) == 0) randomize(tokens[random(std::size(tokens))]);
    if (random(2) == 0) host_->tokens[token::battery] = 1;
    if (random(16) == 0) aircraft.ground_power_connected = static_cast<u32>(random(2));
    if (random(16) == 0) aircraft.pedestal_selector_switch = static_cast<u32>(random(3));
    if (random(16) == 0) aircraft.duct_pressure_light = static_cast<u32>(random(3));
  }

  /// Works it, and notes what the watched gauges make of it.
  void stimulate(Stimulus& stimulus, const Indices& watched) {
    constexpr int settling = 2;  // frames until what one gauge has changed is seen on all others
    change_surroundings();
    std::vector<Picture> idle, before;
    run(watched, settling);
    for (const std::size_t gauge : watched) idle.push_back(picture(result_.gauges[gauge]));
    run(watched, settling);
    for (const std::size_t gauge : watched) before.push_back(picture(result_.gauges[gauge]));
    const bool seen = std::ranges::count(watched, stimulus.gauge) > 0;
    const rig::NamedPart* own = seen ? stimulus.part : nullptr;
    const f64 own_before = own ? result_.gauges[stimulus.gauge].value(*own) : 0;
    act(stimulus);
    run(watched, 1);
    if (own) learn(stimulus.moves, {own_before, result_.gauges[stimulus.gauge].value(*own)});
    run(watched, settling);
    for (std::size_t i = 0; i < watched.size(); ++i) compare(stimulus, watched[i], idle[i], before[i]);
  }

  void run(const Indices& gauges, int frames) {
    for (; frames > 0; --frames) {
      for (const std::size_t gauge : gauges) result_.gauges[gauge].frame();
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
    learn(stimulus.sounds, sounds_of_click());
    stimulus.heeded |= !host_->events.empty();
    stimulus.sent.insert(host_->events.begin(), host_->events.end());
    note_events();
    Aircraft now = aircraft;
    std::ranges::copy(was.sound_requests, now.sound_requests);
    stimulus.heeded |= std::memcmp(&was, &now, sizeof was) != 0;
  }

  void note_events() {
    for (const auto& [event, value] : host_->events) result_.events.insert(event);
    host_->events.clear();
  }

  /// Notes what the stimulus changed; what moves by itself says nothing.
  void compare(Stimulus& stimulus, std::size_t at, const Picture& idle, const Picture& before) {
    const rig::Gauge& gauge = result_.gauges[at];
    const Picture after = picture(gauge);
    for (std::size_t i = 0; i < after.size(); ++i) {
      const rig::NamedPart& part = gauge.parts()[i];
      if (part.element->kind == ELEMENT_ICON) learn(shown_[at][i], after[i]);
      if (idle[i] == before[i] && before[i] != after[i])
        learn(stimulus.changed, {gauge.header().name, part.name});
    }
  }

  template <typename Known>
  void learn(Known& known, const typename Known::value_type& fact) {
    if (known.insert(fact).second) ++news_;
  }

  std::optional<rig::Host> host_{std::in_place};
  std::mt19937_64 bits_{1};
  Indices everything_;
  std::vector<std::vector<std::set<f64>>> shown_;  ///< by each gauge's parts
  std::vector<int> dull_visits_;                   ///< of each gauge, one after the other
  std::size_t news_ = 0;
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

static Walk& walk() {
  static Walk all;
  return all;
}

const Result& result() { return walk().result(); }

bool comes_to_change(const Stimulus& stimulus, const Place& place) {
  return walk().comes_to_change(stimulus, place);
}

const Moves& moves(const Stimulus& stimulus, const Moves& wanted) {
  return walk().moves(stimulus, wanted);
}

const std::set<f64>& shown(std::size_t gauge, std::size_t part, std::size_t images) {
  return walk().shown(gauge, part, images);
}

}  // namespace walk
