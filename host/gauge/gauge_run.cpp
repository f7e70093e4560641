#include "host/gauge/gauge_run.h"

#include <algorithm>
#include <array>
#include <bit>
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

// What a hidden element last was does not matter; a value that is not a number is the same as itself.
bool shows_the_same(const ElementState& one, const ElementState& other) {
  if (one.evaluated != other.evaluated || one.drawn != other.drawn) return false;
  if (!one.evaluated) return true;
  using Bits = std::array<std::uint64_t, 3>;
  return std::bit_cast<Bits>(one.values) == std::bit_cast<Bits>(other.values) &&
         one.reached == other.reached && one.text == other.text;
}

}  // namespace

GaugeRun::GaugeRun(const GaugeHeader& gauge) : gauge_(&gauge) {
  const std::vector<ChainLink> chain = element_chain(gauge);
  for (const ChainLink& link : chain) inputs_.emplace_back(*link.element);
  const std::vector<Covers> covers = find_covers(inputs_);
  for (std::size_t i = 0; i < chain.size(); ++i) slots_.push_back({chain[i].end, covers[i], i});
  find_groups();
  hidden_.resize(slots_.size());
  now_.resize(slots_.size());
  for (std::size_t i = 0; i < slots_.size(); ++i) now_[i].element = chain[i].element;
  shown_ = before_ = now_;
}

void GaugeRun::find_groups() {
  for (std::size_t i = slots_.size(); i-- > 0;) {
    const auto& [lit, same_place] = slots_[i].covers;
    const std::size_t later = lit < slots_.size() ? lit : same_place;
    if (later < slots_.size()) slots_[i].group = slots_[later].group;
  }
}

const ElementState* GaugeRun::showing(std::size_t index) const {
  for (std::size_t i = index; i < slots_.size(); ++i)
    if (slots_[i].group == slots_[index].group && now_[i].evaluated) return &now_[i];
  return nullptr;
}

bool GaugeRun::changed() const { return !std::ranges::equal(before_, now_, shows_the_same); }

void GaugeRun::start(std::uintptr_t module_handle) {
  if (gauge_->service == nullptr) return;
  gauge_->service(gauge_, SERVICE_BEGIN, module_handle);
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
  failing_ = tokens.any_failed();
  std::ranges::fill(hidden_, false);
  for (std::size_t i = 0; i < slots_.size(); ++i) hide_chain(i);
  for (std::size_t i = 0; i < slots_.size(); ++i) take(i, tokens);
  serve(SERVICE_AFTER_VALUES);
  serve(SERVICE_BEFORE_DRAW);
  settle();
}

void GaugeRun::hide_chain(std::size_t index) {
  if (hidden_[index] || !(inputs_[index].element().image_flags & IMAGE_HIDE_CHAIN)) return;
  std::fill(hidden_.begin() + index, hidden_.begin() + slots_[index].chain_end, true);
}

bool GaugeRun::covered(const Slot& slot) const {
  const auto shown = [this](std::size_t index) { return index < hidden_.size() && !hidden_[index]; };
  return shown(slot.covers.lit) || shown(slot.covers.same_place);
}

void GaugeRun::take(std::size_t index, const TokenSource& tokens) {
  hide_chain(index);  // a routine further up may have hidden it just now
  ElementState& state = now_[index];
  state.evaluated = state.drawn = !hidden_[index] && !covered(slots_[index]);
  if (!state.evaluated) return;
  inputs_[index].evaluate(tokens, state);
  if (failing_) fail(index, failure_action(state.element->failures, tokens), state);
  if (state.element->kind == ELEMENT_NEEDLE) limit_speed(index, state);
  shown_[slots_[index].group] = state;
}

void GaugeRun::fail(std::size_t index, std::uint32_t action, ElementState& state) const {
  const ElementState& last = shown_[slots_[index].group];
  if (action == FAILURE_FREEZE && last.evaluated) {
    state.values = last.values;
    state.text = last.text;
  } else if (action == FAILURE_ZERO) {
    state.values = {};
    if (state.element->kind == ELEMENT_STRING) state.text.assign(1, '0');
  } else if (action == FAILURE_HIDE) {
    state.drawn = false;
  }
}

void GaugeRun::limit_speed(std::size_t index, ElementState& state) const {
  const NeedlePart& needle = state.element->needle;
  if (!(needle.rate_limit > 0)) return;
  const ElementState& last = shown_[slots_[index].group];
  const double to = state.values[0];
  const double from = last.evaluated ? last.reached.value_or(to) : to;
  const bool followable = std::isfinite(from) && std::isfinite(to);
  state.reached = followable ? needle_value_after(needle, from, to, frame_seconds_) : to;
}

// Routines hide pictures, their own as a rule, while the frame runs.
void GaugeRun::settle() {
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    hide_chain(i);
    if (hidden_[i] || now_[i].element->image_flags & IMAGE_HIDE_PICTURE) now_[i].drawn = false;
  }
}

}  // namespace host
