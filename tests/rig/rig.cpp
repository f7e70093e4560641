#include "tests/rig/rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

#include "module/host.h"
#include "tests/rig/token_list.h"

extern "C" const LinkageRecord Linkage;

namespace rig {
namespace {

Host* current = nullptr;

void no_root(const Element*) {}
void no_root_argument(const Element*, uintptr_t) {}

void look_up(TokenVariable* variable) {
  current->looked_up.insert(variable->token);
  const auto found = current->tokens.find(variable->token);
  variable->value = found == current->tokens.end() ? 0.0 : found->second;
}

/// What an event does to the token that it is named after: flips it, or sets it to 1 or 0.
enum class Verb { toggle, on, off };
using Effect = std::pair<u32, Verb>;

const std::map<u32, Effect>& followed() {
  static const std::map<u32, Effect> all = [] {
    constexpr std::pair<std::string_view, Verb> verbs[] = {
        {"_toggle", Verb::toggle}, {"_on", Verb::on}, {"_off", Verb::off}};
    std::map<std::string, Effect> named;
    for (const Listed& token : all_tokens) {
      for (const auto& [ending, verb] : verbs)
        named[std::string(token.name).append(ending)] = {token.number, verb};
    }
    std::map<u32, Effect> found;
    for (const Listed& event : all_events) {
      const auto effect = named.find(std::string(event.name));
      if (effect != named.end()) found[event.number] = effect->second;
    }
    return found;
  }();
  return all;
}

void take_event(u32 event, u32 value) {
  current->events.emplace_back(event, value);
  const auto found = followed().find(event);
  if (!current->follows || found == followed().end()) return;
  const auto& [token, verb] = found->second;
  f64& state = current->tokens[token];
  state = verb == Verb::on || (verb == Verb::toggle && state == 0) ? 1 : 0;
}

void toggle(u32 ident) { current->windows.emplace_back('t', ident); }
void close(u32 ident) { current->windows.emplace_back('c', ident); }
void open(u32 ident) { current->windows.emplace_back('o', ident); }

constexpr PanelServices services{no_root,          no_root_argument, no_root, no_root,
                                 no_root_argument, no_root,          no_root, toggle,
                                 take_event,       look_up,          close,   open};

/// In the host's order. A string has a second source and one routine.
std::vector<Reading> readings(Element& e) {
  switch (e.kind) {
    case ELEMENT_ICON: return {{&e.icon.source, e.icon.value}};
    case ELEMENT_NEEDLE: return {{&e.needle.source, e.needle.value}};
    case ELEMENT_STRING:
      return {{&e.string.source[0], e.string.value}, {&e.string.source[1], nullptr, false}};
    case ELEMENT_SLIDER:
      return {{&e.slider.x_source, e.slider.x_value}, {&e.slider.y_source, e.slider.y_value}};
    case ELEMENT_MOVING_IMAGE:
      return {{&e.moving_image.x.source, e.moving_image.x.value},
              {&e.moving_image.y.source, e.moving_image.y.value}};
    case ELEMENT_SPRITE:
      return {{&e.sprite.x.source, e.sprite.x.value},
              {&e.sprite.y.source, e.sprite.y.value},
              {&e.sprite.rotation.source, e.sprite.rotation.value}};
    default: return {};
  }
}

/// Takes an element's values and gives their sum: all but one stand still in most parts.
f64 evaluate(Element* e, const std::vector<Reading>& all) {
  for (const Reading& r : all) {
    if (r.source->token != 0) look_up(r.source);
  }
  f64 sum = 0;
  for (const Reading& r : all) {
    if (r.evaluated) sum += r.routine != nullptr ? r.routine(e) : r.source->value;
  }
  return sum;
}

bool is_copy(Element& later, Element& earlier) {
  constexpr int near = 8;
  if (later.kind != earlier.kind || later.resource_id != earlier.resource_id) return false;
  if (std::abs(later.position.x - earlier.position.x) > near) return false;
  if (std::abs(later.position.y - earlier.position.y) > near) return false;
  return std::ranges::equal(readings(later), readings(earlier), [](const Reading& a, const Reading& b) {
    return a.routine == b.routine && (a.routine != nullptr || a.source->token == b.source->token);
  });
}

bool hides_chain(const Element* e) { return (e->image_flags & IMAGE_HIDE_CHAIN) != 0; }

const GaugeHeader& header_of(std::string_view name) {
  const GaugeHeader* header = tarnvale::names::find_gauge(name);
  if (header == nullptr) throw std::runtime_error("no gauge " + std::string(name));
  return *header;
}

template <typename Named>
const Named& find(const std::vector<Named>& all, std::string_view name, const GaugeHeader& gauge) {
  const auto found = std::ranges::find(all, name, &Named::name);
  if (found != all.end()) return *found;
  throw std::runtime_error(std::string(gauge.name) + " has no " + std::string(name));
}

}  // namespace

Host::Host() {
  current = this;
  tarnvale::aircraft = tarnvale::Aircraft{};
  ImportTable.entries[0].pointer = &services;
  tokens[tarnvale::token::clock_seconds] = 100;
}

Host::~Host() { current = nullptr; }

Gauge::Gauge(std::string_view name) : Gauge(header_of(name)) {}

Gauge::Gauge(const GaugeHeader& header)
    : header_(&header),
      parts_(tarnvale::names::parts(header)),
      areas_(tarnvale::names::areas(header)),
      chain_(chain_of(header)),
      covered_by_(chain_.size()),
      values_(chain_.size()) {
  for (std::size_t i = 0; i < chain_.size(); ++i) {
    readings_.push_back(readings(*chain_[i]));
    for (std::size_t later = i + 1; later < chain_.size(); ++later) {
      if (is_copy(*chain_[later], *chain_[i])) covered_by_[i] = later;
    }
  }
}

void Gauge::service(u32 id, uintptr_t extra_data) {
  if (header_->service != nullptr) header_->service(header_, id, extra_data);
}

void Gauge::frame(int count) {
  for (; count > 0; --count) {
    service(SERVICE_TICK);
    const std::size_t shown = std::ranges::find_if(chain_, hides_chain) - chain_.begin();
    const auto covered = [&](std::size_t i) { return covered_by_[i] != 0 && covered_by_[i] < shown; };
    for (std::size_t i = 1; i < shown; ++i) {
      if (!covered(i)) values_[i] = evaluate(chain_[i], readings_[i]);
    }
    for (std::size_t i = 1; i < shown; ++i) {
      if (covered(i)) values_[i] = values_[covered_by_[i]];
    }
    service(SERVICE_AFTER_VALUES);
    service(SERVICE_BEFORE_DRAW);
  }
}

void Gauge::click(std::string_view control, u32 flags) {
  const NamedArea& named = find(areas_, control, *header_);
  const PanelPoint at{named.corner.x + named.area->width / 2, named.corner.y + named.area->height / 2};
  for (const NamedArea& area : areas_) {
    const PanelPoint inside{at.x - area.corner.x, at.y - area.corner.y};
    if ((area.area->mouse_flags & flags) == 0) continue;
    if (inside.x < 0 || inside.x >= area.area->width) continue;
    if (inside.y < 0 || inside.y >= area.area->height) continue;
    EXPECT_EQ(area.name, control) << header_->name << ": another control lies over it";
    EXPECT_EQ(area.area->routine(inside, flags), 0) << header_->name << " " << control;
    return;
  }
  ADD_FAILURE() << header_->name << ": " << control << " does not answer that button";
}

f64 Gauge::value(std::string_view part) const { return values_[find(parts_, part, *header_).index]; }

void Gauge::expect(std::initializer_list<std::pair<std::string_view, f64>> parts,
                   std::source_location at) {
  frame();
  for (const auto& [part, expected] : parts) {
    if (std::abs(value(part) - expected) <= 1e-9) continue;
    ADD_FAILURE_AT(at.file_name(), static_cast<int>(at.line()))
        << header_->name << ' ' << part << " shows " << value(part) << ", not " << expected;
  }
}

std::string Gauge::text(std::string_view part) const {
  return find(parts_, part, *header_).element->string.text;
}

std::vector<Gauge> built_gauges() {
  std::vector<Gauge> built;
  for (const GaugeHeader* const* header = Linkage.gauges; *header != nullptr; ++header) {
    Gauge gauge(**header);
    if (!gauge.parts().empty() || !gauge.areas().empty()) built.push_back(std::move(gauge));
  }
  return built;
}

std::vector<Element*> chain_of(const GaugeHeader& gauge) {
  std::vector<Element*> chain;
  for (Element* e = gauge.element_list[0]; e != nullptr; e = e->next ? e->next[0] : nullptr) {
    chain.push_back(e);
  }
  return chain;
}

int sounds_requested() {
  return static_cast<int>(std::ranges::count_if(tarnvale::aircraft.sound_requests,
                                                [](u32 request) { return request != 0; }));
}

bool heard(tarnvale::SoundRequest sound) {
  return std::exchange(tarnvale::aircraft.sound_requests[sound], 0u) != 0;
}

}  // namespace rig
