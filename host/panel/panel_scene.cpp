#include "host/panel/panel_scene.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "host/drawing/pixels.h"
#include "host/outside/outside_view.h"
#include "host/panel/panel_picture.h"

namespace host {
namespace {

Canvas draw_window(const Cockpit& cockpit, std::size_t window, double zoom) {
  PanelPicture picture(cockpit, window, zoom);
  std::vector<Rect> changed;
  picture.draw(1.0, changed);
  return picture.canvas();
}

Canvas draw_gauge(const Cockpit& cockpit, const std::string& name, double zoom) {
  CockpitGauge* gauge = cockpit.find(name);
  if (!gauge) throw std::runtime_error("no window has a gauge '" + name + "'");
  const auto side = [&](int size) { return std::max(1, static_cast<int>(std::lround(size * zoom))); };
  Canvas canvas(side(gauge->size.width), side(gauge->size.height));
  GaugePainter painter(gauge->header(), cockpit.module().bitmaps(),
                       {0, 0, canvas.width, canvas.height});
  painter.set_night(cockpit.panel_lights_on());
  painter.draw(canvas, gauge->run.before(), gauge->run.now(), 1.0);
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
  Canvas canvas(layout.width, layout.height);
  std::ranges::fill(canvas.pixels, surround_color);
  for (std::size_t i = 0; i < windows.size(); ++i)
    copy_picture(canvas, draw_window(cockpit, windows[i], zoom), layout.places[i].x,
                 layout.places[i].y);
  return canvas;
}

}  // namespace

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
  const auto side = [&](int size) { return std::max(1, static_cast<int>(std::lround(size * zoom))); };
  Canvas canvas(side(view_size.width), side(view_size.height));
  outside::OutsideView().draw(canvas, whole_of(canvas), outside::captains_sight(aircraft));
  return canvas;
}

Canvas picture_of(const Cockpit& cockpit, const std::string& what, double zoom) {
  if (what.empty()) return draw_open_windows(cockpit, zoom);
  if (what == view_name) return picture_of_view(cockpit.aircraft(), zoom);
  std::uint32_t ident = 0;
  const auto [end, error] = std::from_chars(what.data(), what.data() + what.size(), ident);
  if (error != std::errc{} || end != what.data() + what.size()) return draw_gauge(cockpit, what, zoom);
  const auto window = cockpit.panels().find(ident);
  if (!window) throw std::runtime_error("there is no window " + what);
  return draw_window(cockpit, *window, zoom);
}

}  // namespace host
