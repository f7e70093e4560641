#include "host/window/view.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/pixels.h"
#include "host/panel/area_marks.h"
#include "host/panel/panel_scene.h"
#include "host/window/compose.h"
#include "host/window/height_above.h"

namespace host {
namespace {

std::string key_hint(const WindowConfig& window) {
  if (window.ident >= 500 && window.ident <= 508) return std::to_string(window.ident - 499);
  return {};
}

}  // namespace

View::View(const Cockpit& cockpit, Kind kind, const std::string& title, PanelSize size, double scale)
    : cockpit_(cockpit), kind_(kind), scale_(scale), screen_(title, size.width, size.height) {}

void View::show(std::vector<std::size_t> windows) {
  if (windows == windows_) return;
  windows_ = std::move(windows);
  layout_old_ = true;
}

void View::set_zoom(std::optional<double> zoom) {
  if (zoom) zoom = std::clamp(*zoom, 0.2, 6.0);
  layout_old_ = layout_old_ || zoom != zoom_;
  zoom_ = zoom;
}

void View::take_size() {
  screen_.take_size();
  layout_old_ = true;  // the screen may have lost the picture in any case
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

void View::relayout() {
  layout_old_ = false;
  const PanelSize size = screen_.size();
  const int caption = kind_ == Kind::main ? caption_height(scale()) : 0;
  const int gap = kind_ == Kind::main ? static_cast<int>(std::lround(6 * scale())) : 0;
  LayoutArea area{size.width - kept_free_, size.height, gap, caption};
  const std::vector<PanelSize> sizes = window_sizes(cockpit_, windows_);
  make_room_outside(sizes, area);
  layout_ = arrange(sizes, area, zoom_, 8.0);
  layout_.height += outside_.height;
  for (Rect& place : layout_.places) place.y += outside_.height;
  panels_.clear();
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    const WindowConfig& window = cockpit_.config().windows[windows_[i]];
    Panel& panel = panels_.emplace_back(
        Panel{PanelPicture(cockpit_, windows_[i], layout_.zoom), layout_.places[i], {}});
    panel.picture.mark_areas(areas_marked_);
    if (!caption) continue;
    panel.caption = draw_caption(window.title, key_hint(window), panel.place.width, scale());
    panel.caption.x = panel.place.x;
    panel.caption.y = panel.place.y - caption;
  }
  limit_scroll();
  all_changed_ = true;
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
  if (slot) change({slot->x, slot->y, slot->width, slot->height});
  slot = std::move(overlay);
  if (slot) change({slot->x, slot->y, slot->width, slot->height});
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
  if (sight) sight_ = *sight;
  const bool resized =
      outside_picture_.width != outside_.width || outside_picture_.height != outside_.height;
  if (!shows_outside() || (!sight && !resized)) return;
  if (resized) outside_picture_ = Canvas(outside_.width, outside_.height);
  outside_view_.draw(outside_picture_, whole_of(outside_picture_), sight_);
  change(outside_);
}

bool View::refresh(double blend, const std::optional<outside::Sight>& sight) {
  if (layout_old_) relayout();
  place_mark();
  draw_panels(blend);
  draw_outside(sight);
  if (all_changed_) changed_ = {{0, 0, screen_.size().width, screen_.size().height}};
  all_changed_ = false;
  if (changed_.empty()) return false;
  for (const Rect& rect : changed_) compose(rect);
  screen_.present(changed_);
  changed_.clear();
  return true;
}

void View::compose(const Rect& rect) {
  Canvas& canvas = screen_.canvas();
  fill(canvas, rect, surround_color);
  for (const Panel& panel : panels_) {
    const Rect place = on_screen(panel.place);
    copy_within(canvas, panel.picture.canvas(), place.x, place.y, rect);
    blend_within(canvas, panel.caption, panel.caption.x + scroll_.x, panel.caption.y + scroll_.y, rect);
  }
  if (shows_outside()) copy_within(canvas, outside_picture_, outside_.x, outside_.y, rect);
  for (const auto& layer : layers_)
    if (layer) blend_within(canvas, *layer, layer->x, layer->y, rect);
}

std::optional<ViewHit> View::hit(int x, int y) const {
  if (overlap(outside_, {x, y, 1, 1}) || x >= screen_.size().width - kept_free_) return std::nullopt;
  const Rect pixel{x - scroll_.x, y - scroll_.y, 1, 1};
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const Panel& panel = panels_[i];
    const Overlay& caption = panel.caption;
    if (overlap({caption.x, caption.y, caption.width, caption.height}, pixel))
      return ViewHit{windows_[i], caption_part(pixel.x - caption.x, caption.width, scale()), true, {}};
    if (overlap(panel.place, pixel))
      return ViewHit{windows_[i], CaptionPart::none, false,
                     panel.picture.hit(pixel.x - panel.place.x, pixel.y - panel.place.y)};
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
