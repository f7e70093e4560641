#include "host/panel/panel_scene.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <stdexcept>

#include "host/drawing/pixels.h"
#include "host/files/shortened.h"
#include "host/outside/outside_view.h"
#include "host/panel/panel_picture.h"

namespace host {
namespace {

constexpr double greatest_side = 16384, most_pixels = 64e6;

// The side of a picture in whole pixels.
int side(int size, double zoom) { return std::max(1, static_cast<int>(std::lround(size * zoom))); }

Canvas draw_window(const Cockpit& cockpit, std::size_t window, double zoom) {
  const WindowConfig& config = cockpit.config().windows[window];
  check_picture_size(config.width * zoom, config.height * zoom);
  PanelPicture picture(cockpit, window, zoom);
  std::vector<Rect> changed;
  picture.draw(1.0, changed);
  return picture.canvas();
}

Canvas draw_gauge(const Cockpit& cockpit, const CockpitGauge& gauge, double zoom) {
  check_picture_size(gauge.size.width * zoom, gauge.size.height * zoom);
  Canvas canvas(side(gauge.size.width, zoom), side(gauge.size.height, zoom));
  GaugePainter painter(gauge.header(), cockpit.module().bitmaps(), {0, 0, canvas.width, canvas.height});
  painter.set_night(cockpit.panel_lights_on());
  painter.draw(canvas, gauge.run.before(), gauge.run.now(), 1.0);
  return canvas;
}

// A screen has the shape that it has; a picture ends where its windows end.
void crop(Layout& layout, int gap) {
  if (layout.places.empty()) return;
  int left = layout.width, top = layout.height, right = 0, bottom = 0;
  for (const Rect& place : layout.places) {
    left = std::min(left, place.x);
    top = std::min(top, place.y);
    right = std::max(right, place.x + place.width);
    bottom = std::max(bottom, place.y + place.height);
  }
  for (Rect& place : layout.places) {
    place.x -= left - gap;
    place.y -= top - gap;
  }
  layout.width = right - left + 2 * gap;
  layout.height = bottom - top + 2 * gap;
}

Canvas draw_open_windows(const Cockpit& cockpit, double zoom) {
  const std::vector<std::size_t> windows = open_windows(cockpit);
  const std::vector<PanelSize> sizes = window_sizes(cockpit, windows);
  const int gap = static_cast<int>(std::lround(8 * zoom));
  Layout layout = arrange(sizes, {1920, 1080, gap, 0}, zoom);
  crop(layout, gap);
  check_picture_size(layout.width, layout.height);
  Canvas canvas(layout.width, layout.height);
  std::ranges::fill(canvas.pixels, surround_color);
  for (std::size_t i = 0; i < windows.size(); ++i)
    copy_picture(canvas, draw_window(cockpit, windows[i], zoom), layout.places[i].x,
                 layout.places[i].y);
  return canvas;
}

// What a picture is of: neither is everything that is open.
struct Subject {
  std::optional<std::size_t> window;
  const CockpitGauge* gauge = nullptr;
};

Subject subject_of(const Cockpit& cockpit, const std::string& what) {
  if (what.empty() || what == view_name) return {};
  std::uint32_t ident = 0;
  const auto [end, error] = std::from_chars(what.data(), what.data() + what.size(), ident);
  if (error != std::errc{} || end != what.data() + what.size()) {
    if (const CockpitGauge* gauge = cockpit.find(what)) return {std::nullopt, gauge};
    throw std::runtime_error("no window has a gauge " + in_quotes(what));
  }
  const auto window = cockpit.panels().find(ident);
  if (!window || !cockpit.config().windows[*window].drawn)
    throw std::runtime_error("there is no window " + what);
  return {window, nullptr};
}

}  // namespace

void check_picture_size(double width, double height) {
  if (width <= greatest_side && height <= greatest_side && width * height <= most_pixels) return;
  char text[120];
  std::snprintf(text, sizeof text, "a picture of %.0f x %.0f pixels is too large: at most %.0f million",
                width, height, most_pixels / 1e6);
  throw std::runtime_error(text);
}

void copy_picture(Canvas& to, const Canvas& from, int x, int y) {
  copy_pixels(surface_of(to), whole_of(to), view_of(from), x, y);
}

std::vector<std::size_t> open_windows(const Cockpit& cockpit) {
  std::vector<std::size_t> windows;
  for (std::size_t i = 0; i < cockpit.windows().size(); ++i)
    if (cockpit.panels().is_open(i) && cockpit.config().windows[i].drawn) windows.push_back(i);
  std::ranges::stable_sort(windows, {},
                           [&](std::size_t i) { return cockpit.config().windows[i].position; });
  return windows;
}

std::vector<PanelSize> window_sizes(const Cockpit& cockpit, const std::vector<std::size_t>& windows) {
  std::vector<PanelSize> sizes;
  for (std::size_t i : windows)
    sizes.push_back({cockpit.config().windows[i].width, cockpit.config().windows[i].height});
  return sizes;
}

Canvas picture_of_view(const AircraftModel& aircraft, double zoom) {
  check_picture_size(view_size.width * zoom, view_size.height * zoom);
  Canvas canvas(side(view_size.width, zoom), side(view_size.height, zoom));
  outside::OutsideView().draw(canvas, whole_of(canvas), outside::captains_sight(aircraft));
  return canvas;
}

Canvas picture_of(const Cockpit& cockpit, const std::string& what, double zoom) {
  const Subject subject = subject_of(cockpit, what);
  if (subject.gauge) return draw_gauge(cockpit, *subject.gauge, zoom);
  if (subject.window) return draw_window(cockpit, *subject.window, zoom);
  return what.empty() ? draw_open_windows(cockpit, zoom) : picture_of_view(cockpit.aircraft(), zoom);
}

void check_picture(const Cockpit& cockpit, const std::string& what) { subject_of(cockpit, what); }

}  // namespace host
