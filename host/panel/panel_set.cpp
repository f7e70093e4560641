#include "host/panel/panel_set.h"

#include <algorithm>

namespace host {

PanelSet::PanelSet(const PanelConfig& config) {
  for (std::size_t i = 0; i < config.windows.size(); ++i) {
    const WindowConfig& window = config.windows[i];
    states_.push_back({window.visible, Face::day});
    if (window.start_page) start_page_ = i;
    if (window.ident) entries_.push_back({window.ident, i, std::nullopt});
    if (window.day_ident) entries_.push_back({window.day_ident, i, Face::day});
    if (window.night_ident) entries_.push_back({window.night_ident, i, Face::night});
  }
}

bool PanelSet::begin_with_start_page() {
  if (!start_page_) return false;
  for (const Entry& each : entries_) set(each.window, {each.window == start_page_, Face::day});
  return true;
}

void PanelSet::open(std::uint32_t ident) {
  const Entry* found = entry(ident);
  if (!found) return;
  set(found->window, {true, found->face.value_or(states_[found->window].face)});
  if (start_page_ && found->window != start_page_) set(*start_page_, {});
}

void PanelSet::close(std::uint32_t ident) {
  const Entry* found = entry(ident);
  if (found && shows(*found)) set(found->window, {false, states_[found->window].face});
}

void PanelSet::toggle(std::uint32_t ident) { shows(ident) ? close(ident) : open(ident); }

bool PanelSet::shows(std::uint32_t ident) const {
  const Entry* found = entry(ident);
  return found && shows(*found);
}

std::optional<std::size_t> PanelSet::find(std::uint32_t ident) const {
  const Entry* found = entry(ident);
  return found ? std::optional(found->window) : std::nullopt;
}

const PanelSet::Entry* PanelSet::entry(std::uint32_t ident) const {
  const auto found = std::ranges::find(entries_, ident, &Entry::ident);
  return found == entries_.end() ? nullptr : &*found;
}

bool PanelSet::shows(const Entry& entry) const {
  const State& state = states_[entry.window];
  return state.open && (!entry.face || *entry.face == state.face);
}

void PanelSet::set(std::size_t window, State state) {
  if (states_[window] == state) return;
  states_[window] = state;
  ++changes_;
}

}  // namespace host
