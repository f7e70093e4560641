#include "host/window/views.h"

#include <algorithm>
#include <cmath>

#include "host/panel/panel_scene.h"

namespace host {
namespace {

constexpr double screen_share = 0.96;  // leaves room for the desktop's own frames

PanelSize first_size(const Cockpit& cockpit, double scale, std::optional<double> zoom, bool with_view) {
  const PanelSize screen = Desktop::usable_size();
  const std::vector<PanelSize> sizes = window_sizes(cockpit, open_windows(cockpit));
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

Views::Views(Cockpit& cockpit, double scale, std::optional<double> zoom, bool outside)
    : cockpit_(cockpit),
      scale_(scale),
      main_(std::make_unique<View>(
          cockpit, View::Kind::main, "Tarnvale",
          first_size(cockpit, scale, zoom, outside && cockpit.panels().find(captains_panel)), scale)),
      changes_(cockpit.panels().changes()) {
  main_->set_zoom(zoom);
  main_->want_outside(outside);
  arrange_panels();
}

bool Views::follow_cockpit() {
  if (changes_ == cockpit_.panels().changes()) return false;
  changes_ = cockpit_.panels().changes();
  arrange_panels();
  return true;
}

void Views::arrange_panels() {
  const std::vector<std::size_t> open = open_windows(cockpit_);
  std::vector<std::size_t> standing;
  for (std::size_t window : open)
    if (!torn_off_.contains(window)) standing.push_back(window);
  main_->show(standing);
  const auto gone = std::erase_if(torn_, [&](const auto& entry) {
    return !torn_off_.contains(entry.first) || std::ranges::find(open, entry.first) == open.end();
  });
  if (gone > 0) main_->screen().raise();  // else the keyboard may belong to nobody
  for (std::size_t window : open) {
    if (!torn_off_.contains(window) || torn_.contains(window)) continue;
    const WindowConfig& config = cockpit_.config().windows[window];
    const double zoom = main_->zoom() / main_->screen().density();
    const PanelSize size{static_cast<int>(config.width * zoom), static_cast<int>(config.height * zoom)};
    torn_[window] = std::make_unique<View>(cockpit_, View::Kind::torn, config.title, size, scale_);
    torn_[window]->show({window});
  }
}

void Views::toggle_torn(std::size_t window) {
  if (!torn_off_.erase(window)) torn_off_.insert(window);
  arrange_panels();
}

bool Views::moving() const {
  return main_->moving() || main_->shows_outside() ||
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
