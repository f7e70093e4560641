#include "host/window/views.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/panel/panel_scene.h"

namespace host {
namespace {

constexpr double screen_share = 0.96;  // leaves room for the desktop's own frames

bool has(const std::vector<std::size_t>& windows, std::size_t window) {
  return std::ranges::find(windows, window) != windows.end();
}

PanelSize first_size(const Cockpit& cockpit, const std::vector<std::size_t>& windows, double scale,
                     std::optional<double> zoom, bool with_view) {
  const PanelSize screen = Desktop::usable_size();
  const std::vector<PanelSize> sizes = window_sizes(cockpit, windows);
  const int gap = static_cast<int>(std::lround(6 * scale));
  const LayoutArea area{static_cast<int>(screen.width * screen_share),
                        static_cast<int>(screen.height * screen_share), gap, caption_height(scale)};
  const Layout layout = arrange(sizes, area, zoom);
  if (sizes.empty()) return {1024, 640};
  if (with_view) return {area.width, area.height};
  int left = layout.width, right = 0, top = layout.height, bottom = 0;
  for (const Rect& place : layout.places) {
    left = std::min(left, place.x);
    right = std::max(right, place.x + place.width);
    top = std::min(top, place.y - area.caption);
    bottom = std::max(bottom, place.y + place.height);
  }
  return {std::clamp(right - left + 2 * gap, 480, area.width),
          std::clamp(bottom - top + 2 * gap, 320, area.height)};
}

}  // namespace

Views::Views(Cockpit& cockpit, double scale, std::optional<double> zoom, const Desk& desk)
    : cockpit_(cockpit), scale_(scale), desk_(desk), changes_(cockpit.panels().changes()) {
  for (std::size_t i = 0; i < cockpit.windows().size(); ++i)
    if (const PanelSettings* panel = settings_of(i); panel && panel->torn) torn_off_.insert(i);
  for (std::size_t window : open_windows(cockpit)) {
    if (torn_off_.contains(window)) continue;
    standing_.push_back(window);
    if (const PanelSettings* panel = settings_of(window); panel && panel->in_work)
      in_work_.push_back(window);
  }
  if (in_work_.empty()) in_work_ = standing_;  // what opens at once stands side by side
  recent_ = in_work_;
  const bool above = desk.outside && cockpit.panels().find(captains_panel);
  const PanelSize size = first_size(cockpit, in_work_, scale, zoom, above);
  main_ = std::make_unique<View>(cockpit, View::Kind::main, "Tarnvale",
                                 desk.main.place.value_or(WindowPlace{{}, {}, size.width, size.height}),
                                 scale);
  main_->set_zoom(zoom ? zoom : desk.main.zoom);
  main_->want_outside(desk.outside);
  main_->screen().set_full_screen(desk.main.full_screen);
  arrange_panels();
  each([](View& view) { view.settle(); });
}

// What is known of a panel that another may open; null for a window that nobody can.
PanelSettings* Views::settings_of(std::size_t window) {
  const std::uint32_t ident = cockpit_.config().windows[window].ident;
  return ident == 0 ? nullptr : &desk_.panels[ident];
}

bool Views::waits(std::size_t window) const { return has(standing_, window) && !has(in_work_, window); }

void Views::toggle_torn(std::size_t window) {
  if (!torn_off_.erase(window)) torn_off_.insert(window);
  wanted_ = true;
}

void Views::bring(std::size_t window, bool beside) {
  wishes_.push_back({window, beside});
  wanted_ = true;
}

Views::Settled Views::settle() {
  Settled settled;
  if (wanted_ || changes_ != cockpit_.panels().changes()) {
    wanted_ = false;
    changes_ = cockpit_.panels().changes();
    arrange_panels();
    settled.panels = true;
  }
  settled.main_resized = main_->settle();
  for (auto& [window, view] : torn_) view->settle();
  return settled;
}

void Views::arrange_panels() {
  const std::vector<std::size_t> open = open_windows(cockpit_);
  const std::vector<std::size_t> before = standing_;
  standing_ = open;
  std::erase_if(standing_, [&](std::size_t window) { return torn_off_.contains(window); });
  std::erase_if(in_work_, [&](std::size_t window) { return !has(standing_, window); });
  for (std::size_t window : standing_)
    if (!has(before, window) && !main_->has_room_beside(in_work_, window))
      show_in_main(window, false);
    else if (!has(before, window))
      show_in_main(window, true);
  for (const auto& [window, beside] : std::exchange(wishes_, {}))
    if (has(standing_, window))
      show_in_main(window,
                   beside || (!has(in_work_, window) && main_->has_room_beside(in_work_, window)));
  std::erase_if(recent_, [&](std::size_t window) { return !has(standing_, window); });
  if (in_work_.empty() && !standing_.empty())
    show_in_main(recent_.empty() ? standing_.front() : recent_.back(), false);
  std::ranges::sort(in_work_, {}, [&](std::size_t i) { return std::ranges::find(standing_, i); });
  main_->show(in_work_, standing_);
  close_torn(open);
  for (std::size_t window : open)
    if (torn_off_.contains(window) && !torn_.contains(window)) open_torn(window);
}

void Views::show_in_main(std::size_t window, bool beside) {
  if (!beside) in_work_.clear();
  if (!has(in_work_, window)) in_work_.push_back(window);
  std::erase(recent_, window);
  recent_.push_back(window);
}

void Views::close_torn(const std::vector<std::size_t>& open) {
  const Desk now = desk();
  const auto gone = std::erase_if(torn_, [&](const auto& entry) {
    return !torn_off_.contains(entry.first) || !has(open, entry.first);
  });
  if (gone == 0) return;
  desk_ = now;
  main_->screen().raise();  // else the keyboard may belong to nobody
}

WindowPlace Views::first_place_of(std::size_t window) const {
  const WindowConfig& config = cockpit_.config().windows[window];
  const double zoom = main_->zoom() / main_->screen().density();
  return {{}, {}, static_cast<int>(config.width * zoom), static_cast<int>(config.height * zoom)};
}

void Views::open_torn(std::size_t window) {
  const PanelSettings* known = settings_of(window);
  const WindowSettings settings = known ? *known : PanelSettings{};
  auto& view = torn_[window] =
      std::make_unique<View>(cockpit_, View::Kind::torn, cockpit_.config().windows[window].title,
                             settings.place.value_or(first_place_of(window)), scale_);
  view->show({window});
  view->set_zoom(settings.zoom);
  view->screen().set_full_screen(settings.full_screen);
}

Desk Views::desk() const {
  const auto settings = [](const View& view) {
    return WindowSettings{view.screen().place(), view.chosen_zoom(), view.screen().is_full_screen()};
  };
  Desk desk = desk_;
  desk.main = settings(*main_);
  desk.outside = main_->wants_outside();
  for (std::size_t i = 0; i < cockpit_.windows().size(); ++i) {
    const WindowConfig& config = cockpit_.config().windows[i];
    if (config.ident == 0 || !config.drawn) continue;
    PanelSettings& panel = desk.panels[config.ident];
    panel.open = cockpit_.panels().is_open(i);
    panel.in_work = has(in_work_, i);
    panel.torn = torn_off_.contains(i);
    if (const auto view = torn_.find(i); view != torn_.end())
      static_cast<WindowSettings&>(panel) = settings(*view->second);
  }
  return desk;
}

bool Views::moving() const {
  return main_->moving() || main_->outside_moves() ||
         std::ranges::any_of(torn_, [](const auto& entry) { return entry.second->moving(); });
}

View* Views::find(Uint32 id) {
  View* found = nullptr;
  each([&](View& view) {
    if (view.screen().id() == id) found = &view;
  });
  return found;
}

std::optional<std::size_t> Views::torn_window(Uint32 id) const {
  for (const auto& [window, view] : torn_)
    if (view->screen().id() == id) return window;
  return std::nullopt;
}

}  // namespace host
