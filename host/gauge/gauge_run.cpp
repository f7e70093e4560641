#include "host/gauge/gauge_run.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/gauge/needle_speed.h"
#include "host/loader/element_chain.h"

namespace host {
namespace {

// The action of the first entry whose system has failed; 0 while all work.
std::uint32_t failure_action(const FailureEntry* table, const TokenSource& tokens) {
  for (; table != nullptr && table->key != 0; ++table)
    if (tokens.failed(table->key)) return table->action;
  return 0;
}

bool exact_copies(const ElementInputs& a, const ElementInputs& b) {
  const PanelPoint one = a.element().position, other = b.element().position;
  return one.x == other.x && one.y == other.y && a.same_as(b);
}

}  // namespace

GaugeRun::GaugeRun(const GaugeHeader& gauge) : gauge_(&gauge) {
  for (const ChainLink& link : element_chain(gauge))
    slots_.push_back({ElementInputs(*link.element), link.end});
  link_copies();
  hidden_.resize(slots_.size());
  now_.resize(slots_.size());
  for (std::size_t i = 0; i < slots_.size(); ++i) now_[i].element = &slots_[i].inputs.element();
  shown_ = before_ = now_;
}

void GaugeRun::link_copies() {
  for (std::size_t i = slots_.size(); i-- > 0;) {
    Slot& slot = slots_[i];
    slot.later_copy = slots_.size();
    slot.group = i;
    for (std::size_t later = i + 1; later < slots_.size(); ++later) {
      if (!exact_copies(slot.inputs, slots_[later].inputs)) continue;
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
  if (hidden_[index] || !(slots_[index].inputs.element().image_flags & IMAGE_HIDE_CHAIN)) return;
  std::fill(hidden_.begin() + index, hidden_.begin() + slots_[index].chain_end, true);
}

void GaugeRun::take(std::size_t index, const TokenSource& tokens) {
  const Slot& slot = slots_[index];
  ElementState& state = now_[index];
  hide_chain(index);  // a routine further up may have hidden it just now
  const bool covered = slot.later_copy < slots_.size() && !hidden_[slot.later_copy];
  state.evaluated = state.drawn = !hidden_[index] && !covered;
  if (!state.evaluated) return;
  slot.inputs.evaluate(tokens, state);
  fail(slot, failure_action(slot.inputs.element().failures, tokens), state);
  if (slot.inputs.element().kind == ELEMENT_NEEDLE) limit_speed(slot, state);
  shown_[slot.group] = state;
}

void GaugeRun::fail(const Slot& slot, std::uint32_t action, ElementState& state) const {
  const ElementState& last = shown_[slot.group];
  if (action == FAILURE_FREEZE && last.evaluated) {
    state.values = last.values;
    state.text = last.text;
  } else if (action == FAILURE_ZERO) {
    state.values = {};
    if (slot.inputs.element().kind == ELEMENT_STRING) state.text.assign(1, '0');
  } else if (action == FAILURE_HIDE) {
    state.drawn = false;
  }
}

void GaugeRun::limit_speed(const Slot& slot, ElementState& state) const {
  const NeedlePart& needle = slot.inputs.element().needle;
  if (!(needle.rate_limit > 0)) return;
  const ElementState& last = shown_[slot.group];
  const double to = state.values[0];
  const double from = last.evaluated ? last.reached.value_or(to) : to;
  const bool followable = std::isfinite(from) && std::isfinite(to);
  state.reached = followable ? needle_value_after(needle, from, to, frame_seconds_) : to;
}

// Routines hide pictures, their own as a rule, while the frame runs.
void GaugeRun::settle() {
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const Slot& slot = slots_[i];
    hide_chain(i);
    if (hidden_[i] || slot.inputs.element().image_flags & IMAGE_HIDE_PICTURE) now_[i].drawn = false;
  }
}

}  // namespace host
