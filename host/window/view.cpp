#include "host/window/view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/drawing/pixels.h"
#include "host/panel/area_marks.h"
#include "host/panel/panel_scene.h"
#include "host/window/compose.h"
#include "host/window/height_above.h"

namespace host {
namespace {

constexpr double most_zoom = 3.0;  // of a small panel that has the window for itself, at scale 1

Rect overlay_place(const Overlay& overlay) {
  return {overlay.x, overlay.y, overlay.width, overlay.height};
}

}  // namespace

// They stand on the keys in their idents' order.
std::string panel_key(const WindowConfig& window) {
  const std::uint32_t place = window.ident - captains_panel;
  return window.ident >= captains_panel && place < 9 ? std::to_string(place + 1) : std::string();
}

View::View(const Cockpit& cockpit, Kind kind, const std::string& title, const WindowPlace& place,
           double scale)
    : cockpit_(cockpit), kind_(kind), scale_(scale), screen_(title, place) {}

void View::show(std::vector<std::size_t> windows, std::vector<std::size_t> tabs) {
  if (windows == windows_ && tabs == tab_windows_) return;
  windows_ = std::move(windows);
  tab_windows_ = std::move(tabs);
  layout_old_ = true;
}

bool View::has_room_beside(std::vector<std::size_t> windows, std::size_t more) const {
  if (windows.empty()) return true;
  LayoutArea room = area();
  room.height -= outside_.height;
  windows.push_back(more);
  return arrange(window_sizes(cockpit_, windows), room, std::nullopt, most_zoom * scale()).zoom >=
         zoom() * 0.999;
}

void View::set_zoom(std::optional<double> zoom) {
  if (zoom) zoom = std::clamp(*zoom, 0.2, 6.0);
  layout_old_ = layout_old_ || zoom != zoom_;
  zoom_ = zoom;
}

void View::zoom_by(double factor, std::optional<PanelPoint> at) {
  const PanelPoint pixel = at.value_or(PanelPoint{screen_.size().width / 2, screen_.size().height / 2});
  const auto distance = [&](const Panel& panel) {
    const Rect place = on_screen(panel.place);
    return std::hypot(std::max({place.x - pixel.x, 0, pixel.x - place.x - place.width}),
                      std::max({place.y - pixel.y, 0, pixel.y - place.y - place.height}));
  };
  const auto nearest = std::ranges::min_element(panels_, {}, distance);
  if (nearest != panels_.end()) {
    const Rect place = on_screen(nearest->place);
    anchor_ = {nearest->picture.window(), static_cast<double>(pixel.x - place.x) / place.width,
               static_cast<double>(pixel.y - place.y) / place.height, pixel};
  }
  set_zoom(zoom() * factor);
}

bool View::settle() {
  if (std::exchange(strip_old_, false) && !layout_old_) {
    place_tabs();
    change(strip());
  }
  if (!layout_old_) return false;
  const bool resized = screen_.take_size();
  relayout();  // even at the same size: the screen may have lost the picture
  return resized;
}

void View::mark_areas(bool marked) {
  areas_marked_ = marked;
  for (Panel& panel : panels_) panel.picture.mark_areas(marked);
}

void View::point_at(const std::optional<Target>& target) {
  const bool same = target.has_value() == target_.has_value() &&
                    (!target || (target->gauge == target_->gauge && target->box == target_->box));
  if (same) return;
  target_ = target;
  marked_ = {};
  if (!target_) set_layer(Layer::mark, std::nullopt);
}

void View::set_scale(double scale) {
  layout_old_ = layout_old_ || scale != scale_;
  scale_ = scale;
}

void View::set_strip_end(std::optional<Overlay> picture) {
  strip_end_ = std::move(picture);
  strip_old_ = true;
}

std::optional<PanelPoint> View::on_strip_end(int x, int y) const {
  if (!strip_end_ || !overlap(overlay_place(*strip_end_), {x, y, 1, 1})) return std::nullopt;
  return PanelPoint{x - strip_end_->x, y - strip_end_->y};
}

Rect View::strip() const {
  return {0, outside_.height, screen_.size().width, kind_ == Kind::main ? caption_height(scale()) : 0};
}

void View::keep_free(int width) {
  layout_old_ = layout_old_ || width != kept_free_;
  kept_free_ = width;
}

std::optional<Rect> View::place_of(const Target& target) const {
  for (const Panel& panel : panels_) {
    Rect gauge = panel.picture.place_of(*target.gauge);
    if (is_empty(gauge)) continue;
    gauge.x += panel.place.x;
    gauge.y += panel.place.y;
    return on_screen(host::mark_place(target.box, target.gauge->size, gauge));
  }
  return std::nullopt;
}

// Where the control stands now; once, as far into sight as it goes.
void View::place_mark() {
  if (!target_) return;
  auto place = place_of(*target_);
  if (place && is_empty(marked_)) {
    const PanelSize size{screen_.size().width - kept_free_, screen_.size().height};
    scroll(std::clamp(0, -place->x, std::max(-place->x, size.width - place->x - place->width)),
           std::clamp(0, -place->y, std::max(-place->y, size.height - place->y - place->height)));
    place = place_of(*target_);
  }
  const Rect now = place.value_or(Rect{});
  if (now == marked_) return;
  marked_ = now;
  set_layer(Layer::mark, place ? std::optional(draw_mark(now, scale())) : std::nullopt);
}

void View::want_outside(bool wanted) {
  layout_old_ = layout_old_ || wanted != outside_wanted_;
  outside_wanted_ = wanted;
}

// Takes the view's height off the area of the panels.
void View::make_room_outside(const std::vector<PanelSize>& sizes, LayoutArea& area) {
  const bool captain = std::ranges::any_of(windows_, [&](std::size_t window) {
    return cockpit_.config().windows[window].ident == captains_panel;
  });
  const int height = outside_wanted_ && captain ? height_above(sizes, area, zoom_, scale()) : 0;
  area.height -= height;
  outside_ = {0, 0, area.width, height};
}

LayoutArea View::area() const {
  const PanelSize size = screen_.size();
  if (kind_ == Kind::torn) return {size.width, size.height, 0, 0};
  return {size.width - kept_free_, size.height - caption_height(scale()),
          static_cast<int>(std::lround(6 * scale())), 0};
}

void View::relayout() {
  layout_old_ = false;
  LayoutArea room = area();
  const int strip = screen_.size().height - room.height;
  const std::vector<PanelSize> sizes = window_sizes(cockpit_, windows_);
  make_room_outside(sizes, room);
  layout_ = arrange(sizes, room, zoom_, most_zoom * scale());
  panels_.clear();
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    Rect place = layout_.places[i];
    place.y += outside_.height + strip;
    panels_.push_back({PanelPicture(cockpit_, windows_[i], layout_.zoom), place});
    panels_.back().picture.mark_areas(areas_marked_);
  }
  layout_.height += outside_.height + strip;
  place_tabs();
  keep_anchor();
  limit_scroll();
  all_changed_ = true;
}

// The tabs stand below the view out of the window, each as wide as it likes, or narrower where there
// are many.
void View::place_tabs() {
  tabs_.clear();
  double wanted = 0;
  const auto width_of = [&](const WindowConfig& window) {
    return caption_width(window.title, panel_key(window), scale());
  };
  for (std::size_t window : tab_windows_) wanted += width_of(cockpit_.config().windows[window]);
  const int end = strip_end_ ? strip_end_->width + caption_height(scale()) / 2 : 0;
  if (strip_end_) strip_end_->x = strip_width() - strip_end_->width, strip_end_->y = outside_.height;
  const double share = std::clamp((strip_width() - end) / std::max(wanted, 1.0), 0.0, 1.0);
  int x = 0;
  for (std::size_t i : tab_windows_) {
    const WindowConfig& window = cockpit_.config().windows[i];
    const bool in_work = std::ranges::find(windows_, i) != windows_.end();
    Tab& tab = tabs_.emplace_back(
        Tab{i, draw_caption(window.title, panel_key(window), static_cast<int>(width_of(window) * share),
                            scale(), in_work)});
    tab.picture.x = x;
    tab.picture.y = outside_.height;
    x += tab.picture.width;
  }
}

void View::keep_anchor() {
  for (const Panel& panel : panels_)
    if (anchor_ && anchor_->window == panel.picture.window())
      scroll_ = {static_cast<int>(anchor_->at.x - panel.place.x - anchor_->right * panel.place.width),
                 static_cast<int>(anchor_->at.y - panel.place.y - anchor_->down * panel.place.height)};
  anchor_.reset();
}

void View::limit_scroll() {
  const PanelSize size = screen_.size();
  scroll_.x = std::clamp(scroll_.x, std::min(0, size.width - kept_free_ - layout_.width), 0);
  scroll_.y = std::clamp(scroll_.y, std::min(0, size.height - layout_.height), 0);
}

void View::scroll(int dx, int dy) {
  const PanelPoint before = scroll_;
  scroll_ = {scroll_.x + dx, scroll_.y + dy};
  limit_scroll();
  if (scroll_.x != before.x || scroll_.y != before.y) all_changed_ = true;
}

Rect View::on_screen(const Rect& rect) const {
  return {rect.x + scroll_.x, rect.y + scroll_.y, rect.width, rect.height};
}

void View::set_layer(Layer layer, std::optional<Overlay> overlay) {
  auto& slot = layers_[static_cast<std::size_t>(layer)];
  if (slot) change(overlay_place(*slot));
  slot = std::move(overlay);
  if (slot) change(overlay_place(*slot));
}

bool View::moving() const {
  return std::ranges::any_of(panels_, [](const Panel& panel) { return panel.picture.moving(); });
}

void View::change(const Rect& rect) {
  const PanelSize size = screen_.size();
  const Rect part = intersection(rect, {0, 0, size.width, size.height});
  if (!is_empty(part)) changed_.push_back(part);
}

void View::draw_panels(double blend) {
  std::vector<Rect> drawn;
  for (Panel& panel : panels_) {
    drawn.clear();
    panel.picture.draw(blend, drawn);
    for (const Rect& rect : drawn)
      change(on_screen({rect.x + panel.place.x, rect.y + panel.place.y, rect.width, rect.height}));
  }
}

void View::draw_outside(const std::optional<outside::Sight>& sight) {
  const bool resized =
      outside_picture_.width != outside_.width || outside_picture_.height != outside_.height;
  if (sight) outside_moves_ = shows_outside() && !outside::look_alike(*sight, sight_);
  if (!shows_outside() || (!outside_moves_ && !resized)) return;
  if (sight) sight_ = *sight;
  if (resized) outside_picture_ = Canvas(outside_.width, outside_.height);
  outside_view_.draw(outside_picture_, whole_of(outside_picture_), sight_);
  change(outside_);
}

bool View::refresh(double blend, const std::optional<outside::Sight>& sight) {
  place_mark();
  draw_panels(blend);
  draw_outside(sight);
  if (all_changed_) changed_ = {whole_of(screen_.canvas())};
  all_changed_ = false;
  if (changed_.empty()) return false;
  for (const Rect& rect : changed_) {
    compose(screen_.canvas(), rect);
    for (const auto& layer : layers_)
      if (layer) blend_within(screen_.canvas(), *layer, layer->x, layer->y, rect);
  }
  screen_.present(changed_);
  changed_.clear();
  return true;
}

void View::compose(Canvas& canvas, const Rect& rect) const {
  fill(canvas, rect, surround_color);
  for (const Panel& panel : panels_) {
    const Rect place = on_screen(panel.place);
    copy_within(canvas, panel.picture.canvas(), place.x, place.y, rect);
  }
  if (shows_outside()) copy_within(canvas, outside_picture_, outside_.x, outside_.y, rect);
  const Rect bar = intersection(strip(), rect);
  if (is_empty(bar)) return;
  fill(canvas, bar, surround_color);
  for (const Tab& tab : tabs_) blend_within(canvas, tab.picture, tab.picture.x, tab.picture.y, rect);
  if (strip_end_) blend_within(canvas, *strip_end_, strip_end_->x, strip_end_->y, rect);
}

Canvas View::picture() const {
  Canvas canvas(screen_.size().width, screen_.size().height);
  compose(canvas, whole_of(canvas));
  return canvas;
}

bool View::is_covered(int x, int y) const {
  for (const Layer layer : {Layer::badge, Layer::note, Layer::controls, Layer::help, Layer::menu})
    if (const auto& over = layers_[static_cast<std::size_t>(layer)])
      if (overlap(overlay_place(*over), {x, y, 1, 1})) return true;
  return false;
}

std::optional<ViewHit> View::hit(int x, int y) const {
  const Rect pixel{x, y, 1, 1};
  if (x >= screen_.size().width - kept_free_) return std::nullopt;
  if (is_covered(x, y) || overlap(outside_, pixel)) return std::nullopt;
  if (on_strip_end(x, y)) return std::nullopt;
  for (const auto& [window, tab] : tabs_)
    if (overlap(overlay_place(tab), pixel))
      return ViewHit{window, caption_part(x - tab.x, tab.width, scale()), true, {}};
  if (overlap(strip(), pixel)) return {};
  for (const Panel& panel : panels_) {
    const Rect place = on_screen(panel.place);
    if (overlap(place, pixel))
      return ViewHit{panel.picture.window(), CaptionPart::none, false,
                     panel.picture.hit(x - place.x, y - place.y)};
  }
  return std::nullopt;
}

PanelPoint View::point_on(std::size_t window, const CockpitGauge& gauge, int x, int y) const {
  for (const Panel& panel : panels_)
    if (panel.picture.window() == window)
      return panel.picture.point_on(gauge, x - scroll_.x - panel.place.x,
                                    y - scroll_.y - panel.place.y);
  return {};
}

}  // namespace host
