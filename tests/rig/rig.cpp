#include "tests/rig/rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "module/host.h"

extern "C" const LinkageRecord Linkage;

namespace rig {
namespace {

Host* current = nullptr;

void no_root(const Element*) {}
void no_root_argument(const Element*, uintptr_t) {}
void look_up(TokenVariable* variable) {
  const auto found = current->tokens.find(variable->token);
  variable->value = found == current->tokens.end() ? 0.0 : found->second;
}
void take_event(u32 event, u32 value) {
  current->events.emplace_back(event, value);
  if (const auto found = current->on_event.find(event); found != current->on_event.end()) {
    found->second();
  }
}
void toggle(u32 ident) { current->windows.emplace_back('t', ident); }
void close(u32 ident) { current->windows.emplace_back('c', ident); }
void open(u32 ident) { current->windows.emplace_back('o', ident); }

constexpr PanelServices services{no_root,          no_root_argument, no_root, no_root,
                                 no_root_argument, no_root,          no_root, toggle,
                                 take_event,       look_up,          close,   open};

f64 source_value(TokenVariable& source) {
  if (source.token != 0) look_up(&source);
  return source.value;
}

f64 call(ValueRoutine routine, TokenVariable& source, Element* element) {
  const f64 plain = source_value(source);
  return routine != nullptr ? routine(element) : plain;
}

/// Takes an element's values in the host's order and gives the first one that stands for it.
f64 evaluate(Element* e) {
  switch (e->kind) {
    case ELEMENT_ICON: return call(e->icon.value, e->icon.source, e);
    case ELEMENT_NEEDLE: return call(e->needle.value, e->needle.source, e);
    case ELEMENT_STRING:
      source_value(e->string.source[1]);
      return call(e->string.value, e->string.source[0], e);
    case ELEMENT_SLIDER: {
      const f64 x = call(e->slider.x_value, e->slider.x_source, e);
      const f64 y = call(e->slider.y_value, e->slider.y_source, e);
      return e->slider.x_scale != 0 ? x : y;
    }
    case ELEMENT_MOVING_IMAGE: {
      const f64 x = call(e->moving_image.x.value, e->moving_image.x.source, e);
      const f64 y = call(e->moving_image.y.value, e->moving_image.y.source, e);
      return e->moving_image.x.maximum > e->moving_image.x.minimum ? x : y;
    }
    case ELEMENT_SPRITE: {
      call(e->sprite.x.value, e->sprite.x.source, e);
      call(e->sprite.y.value, e->sprite.y.source, e);
      return call(e->sprite.rotation.value, e->sprite.rotation.source, e);
    }
    default: return 0;
  }
}

bool hides_chain(const Element* e) { return (e->image_flags & IMAGE_HIDE_CHAIN) != 0; }

}  // namespace

Host::Host() {
  current = this;
  tarnvale::aircraft = tarnvale::Aircraft{};
  ImportTable.entries[0].pointer = &services;
  tokens[tarnvale::token::clock_seconds] = 100;
}

Host::~Host() { current = nullptr; }

void Host::flips(u32 event, u32 token) {
  on_event[event] = [this, token] { tokens[token] = tokens[token] == 0 ? 1 : 0; };
}

const GaugeHeader* find(std::string_view name) {
  for (const GaugeHeader* const* gauge = Linkage.gauges; *gauge != nullptr; ++gauge) {
    if (name == (*gauge)->name) return *gauge;
  }
  return nullptr;
}

Gauge::Gauge(std::string_view name) : header_(find(name)) {
  if (header_ == nullptr) throw std::runtime_error("no gauge " + std::string(name));
  for (Element* e = header_->element_list[0]; e != nullptr; e = e->next ? e->next[0] : nullptr) {
    chain_.push_back(e);
  }
  values_.resize(chain_.size());
}

void Gauge::service(u32 id, uintptr_t extra_data) {
  if (header_->service != nullptr) header_->service(header_, id, extra_data);
}

void Gauge::frame(int count) {
  const std::size_t half = (chain_.size() - 1) / 2;
  for (int i = 0; i < count; ++i) {
    service(SERVICE_TICK);
    // Where the lit copy shows, it covers the first set: each routine runs once.
    const bool lit = chain_.size() % 2 == 1 && half > 0 && !hides_chain(chain_[1 + half]);
    for (std::size_t e = lit ? 1 + half : 1; e < chain_.size() && !hides_chain(chain_[e]); ++e) {
      values_[e] = evaluate(chain_[e]);
      if (lit) values_[e - half] = values_[e];
    }
    service(SERVICE_AFTER_VALUES);
    service(SERVICE_BEFORE_DRAW);
  }
}

void Gauge::click(i32 x, i32 y, u32 flags) {
  PanelPoint at{x, y};
  std::vector<PanelPoint> groups{{0, 0}};
  for (const MouseArea* area = header_->mouse_areas; area->kind != MOUSE_END; ++area) {
    const PanelPoint origin = groups.back();
    const PanelPoint corner{origin.x + area->x, origin.y + area->y};
    if (area->kind == MOUSE_GROUP) groups.push_back(corner);
    if (area->kind == MOUSE_GROUP_END) groups.pop_back();
    if (area->kind != MOUSE_CLICK_AREA || (area->mouse_flags & flags) == 0) continue;
    const PanelPoint inside{at.x - corner.x, at.y - corner.y};
    if (inside.x < 0 || inside.y < 0 || inside.x >= area->width || inside.y >= area->height) continue;
    EXPECT_EQ(area->routine(inside, flags), 0) << header_->name;
    return;
  }
  ADD_FAILURE() << header_->name << ": nothing answers a click at " << x << "," << y;
}

std::size_t Gauge::index_of(i32 resource, int nth) const {
  for (std::size_t i = 1; i < chain_.size(); ++i) {
    if (chain_[i]->resource_id == resource && nth-- == 0) return i;
  }
  ADD_FAILURE() << header_->name << ": no element " << resource;
  return 0;
}

f64 Gauge::value(i32 resource, int nth) const { return values_[index_of(resource, nth)]; }

f64 Gauge::value_at(PanelPoint position) const {
  for (std::size_t i = 1; i < chain_.size(); ++i) {
    const PanelPoint p = chain_[i]->position;
    if (p.x == position.x && p.y == position.y) return values_[i];
  }
  ADD_FAILURE() << header_->name << ": no element at " << position.x << "," << position.y;
  return 0;
}

std::string Gauge::text(int nth) const {
  const std::size_t i = index_of(-1, nth);
  return chain_[i]->string.text;
}

int sounds_requested() {
  return static_cast<int>(std::count_if(std::begin(tarnvale::aircraft.sound_requests),
                                        std::end(tarnvale::aircraft.sound_requests),
                                        [](u32 request) { return request != 0; }));
}

bool heard(tarnvale::SoundRequest sound) {
  return std::exchange(tarnvale::aircraft.sound_requests[sound], 0u) != 0;
}

}  // namespace rig
