#include "host/panel/gauge_run.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/loader/element_chain.h"

namespace host {
namespace {

constexpr std::size_t longest_text = 1024;
constexpr double full_turn = 360;  // the full scale of a needle without a table, degrees

// The action of the first entry whose system has failed; 0 while all work.
std::uint32_t failure_action(const FailureEntry* table, const TokenSource& tokens) {
  for (; table != nullptr && table->key != 0; ++table)
    if (tokens.failed(table->key)) return table->action;
  return 0;
}

void read_text(const StringPart& string, std::string& text) {
  text.clear();
  const std::size_t longest = std::min<std::size_t>(string.max_characters, longest_text);
  for (std::size_t i = 0; i < longest && string.text[i] != 0; ++i) {
    const char c = string.text[i];
    text += c >= ' ' && c <= '~' ? c : '?';
  }
}

double full_scale(const NeedlePart& needle) {
  if (needle.table == nullptr || needle.table_length == 0) return full_turn;
  return std::abs(needle.table[needle.table_length - 1].value - needle.table[0].value);
}

// How far a needle at `from` may come towards `to` in one frame.
double limited(const NeedlePart& needle, double from, double to, double seconds) {
  const double step = needle.rate_limit * full_scale(needle) * seconds;
  double way = to - from;
  if (needle.table == nullptr) way = std::remainder(way, full_turn);
  return std::abs(way) <= step ? to : from + std::copysign(step, way);
}

}  // namespace

GaugeRun::GaugeRun(const GaugeHeader& gauge) : gauge_(&gauge) {
  for (const ChainLink& link : element_chain(gauge)) {
    slots_.push_back(slot_of(*link.element));
    slots_.back().chain_end = link.end;
  }
  link_copies();
  hidden_.resize(slots_.size());
  now_.resize(slots_.size());
  for (std::size_t i = 0; i < slots_.size(); ++i) now_[i].element = slots_[i].element;
  shown_ = before_ = now_;
}

GaugeRun::Slot GaugeRun::slot_of(Element& element) {
  Slot slot{.element = &element, .chain_end = 0, .later_copy = 0, .group = 0};
  const auto add_source = [&](TokenVariable& source) { slot.sources[slot.source_count++] = &source; };
  const auto add = [&](TokenVariable& source, ValueRoutine routine) {
    add_source(source);
    slot.routines[slot.value_count++] = routine;
  };
  switch (element.kind) {
    case ELEMENT_NEEDLE: add(element.needle.source, element.needle.value); break;
    case ELEMENT_ICON: add(element.icon.source, element.icon.value); break;
    case ELEMENT_STRING:
      add(element.string.source[0], element.string.value);
      add_source(element.string.source[1]);
      break;
    case ELEMENT_SLIDER:
      add(element.slider.x_source, element.slider.x_value);
      add(element.slider.y_source, element.slider.y_value);
      break;
    case ELEMENT_MOVING_IMAGE:
      for (MovingAxis* axis : {&element.moving_image.x, &element.moving_image.y})
        add(axis->source, axis->value);
      break;
    case ELEMENT_SPRITE:
      for (SpriteAxis* axis : {&element.sprite.x, &element.sprite.y, &element.sprite.rotation})
        add(axis->source, axis->value);
      break;
  }
  return slot;
}

// A source stands in for a routine that is not there.
bool GaugeRun::exact_copies(const Slot& a, const Slot& b) {
  const Element& one = *a.element;
  const Element& other = *b.element;
  if (one.kind != other.kind || one.resource_id != other.resource_id) return false;
  if (one.position.x != other.position.x || one.position.y != other.position.y) return false;
  for (std::size_t i = 0; i < a.value_count; ++i) {
    if (a.routines[i] != b.routines[i]) return false;
    if (a.routines[i] == nullptr && a.sources[i]->token != b.sources[i]->token) return false;
  }
  return true;
}

void GaugeRun::link_copies() {
  for (std::size_t i = slots_.size(); i-- > 0;) {
    Slot& slot = slots_[i];
    slot.later_copy = slots_.size();
    slot.group = i;
    for (std::size_t later = i + 1; later < slots_.size(); ++later) {
      if (!exact_copies(slot, slots_[later])) continue;
      slot.later_copy = later;
      slot.group = slots_[later].group;
      break;
    }
  }
}

void GaugeRun::start(std::uintptr_t module_handle) {
  if (gauge_->service == nullptr) return;
  gauge_->service(gauge_, SERVICE_START, module_handle);
  gauge_->service(gauge_, SERVICE_SET_UP, 0);
}

void GaugeRun::end() {
  if (gauge_->service != nullptr) gauge_->service(gauge_, SERVICE_END, 0);
}

void GaugeRun::frame(const TokenSource& tokens) {
  const auto serve = [this](std::uint32_t id) {
    if (gauge_->service != nullptr) gauge_->service(gauge_, id, 0);
  };
  std::swap(now_, before_);
  serve(SERVICE_TICK);
  std::ranges::fill(hidden_, false);
  for (std::size_t i = 0; i < slots_.size(); ++i) hide_chain(i);
  for (std::size_t i = 0; i < slots_.size(); ++i) take(i, tokens);
  serve(SERVICE_AFTER_VALUES);
  serve(SERVICE_BEFORE_DRAW);
  settle();
}

void GaugeRun::hide_chain(std::size_t index) {
  if (hidden_[index] || !(slots_[index].element->image_flags & IMAGE_HIDE_CHAIN)) return;
  std::fill(hidden_.begin() + index, hidden_.begin() + slots_[index].chain_end, true);
}

void GaugeRun::take(std::size_t index, const TokenSource& tokens) {
  const Slot& slot = slots_[index];
  ElementState& state = now_[index];
  hide_chain(index);  // a routine further up may have hidden it just now
  const bool covered = slot.later_copy < slots_.size() && !hidden_[slot.later_copy];
  state.evaluated = state.drawn = !hidden_[index] && !covered;
  if (!state.evaluated) return;
  evaluate(slot, tokens, state);
  fail(slot, failure_action(slot.element->failures, tokens), state);
  if (slot.element->kind == ELEMENT_NEEDLE) limit_speed(slot, state);
  shown_[slot.group] = state;
}

void GaugeRun::evaluate(const Slot& slot, const TokenSource& tokens, ElementState& state) const {
  for (std::size_t i = 0; i < slot.source_count; ++i) {
    TokenVariable& source = *slot.sources[i];
    if (source.token != 0) source.value = tokens.token(source.token);
  }
  for (std::size_t i = 0; i < slot.value_count; ++i)
    state.values[i] = slot.routines[i] ? slot.routines[i](slot.element) : slot.sources[i]->value;
  if (slot.element->kind == ELEMENT_STRING) read_text(slot.element->string, state.text);
}

void GaugeRun::fail(const Slot& slot, std::uint32_t action, ElementState& state) const {
  const ElementState& last = shown_[slot.group];
  if (action == FAILURE_FREEZE && last.evaluated) {
    state.values = last.values;
    state.text = last.text;
  } else if (action == FAILURE_ZERO) {
    state.values = {};
    if (slot.element->kind == ELEMENT_STRING) state.text.assign(1, '0');
  } else if (action == FAILURE_HIDE) {
    state.drawn = false;
  }
}

void GaugeRun::limit_speed(const Slot& slot, ElementState& state) const {
  const NeedlePart& needle = slot.element->needle;
  if (!(needle.rate_limit > 0)) return;
  const ElementState& last = shown_[slot.group];
  const double to = state.values[0];
  const double from = last.evaluated ? last.reached.value_or(to) : to;
  const bool followable = std::isfinite(from) && std::isfinite(to);
  state.reached = followable ? limited(needle, from, to, frame_seconds_) : to;
}

// Routines hide pictures, their own as a rule, while the frame runs.
void GaugeRun::settle() {
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const Slot& slot = slots_[i];
    hide_chain(i);
    if (hidden_[i] || slot.element->image_flags & IMAGE_HIDE_PICTURE) now_[i].drawn = false;
  }
}

}  // namespace host
