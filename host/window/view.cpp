#include "host/window/view.h"

#include <algorithm>
#include <cmath>

#include "host/panel/panel_scene.h"
#include "host/window/compose.h"

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

void View::relayout() {
  layout_old_ = false;
  const PanelSize size = screen_.size();
  const int caption = kind_ == Kind::main ? caption_height(scale()) : 0;
  const int gap = kind_ == Kind::main ? static_cast<int>(std::lround(6 * scale())) : 0;
  layout_ =
      arrange(window_sizes(cockpit_, windows_), {size.width, size.height, gap, caption}, zoom_, 8.0);
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
  scroll_.x = std::clamp(scroll_.x, std::min(0, size.width - layout_.width), 0);
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
  if (const auto part = shared(rect, {0, 0, size.width, size.height})) changed_.push_back(*part);
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

bool View::refresh(double blend) {
  if (layout_old_) relayout();
  draw_panels(blend);
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
  for (const auto& layer : layers_)
    if (layer) blend_within(canvas, *layer, layer->x, layer->y, rect);
}

std::optional<ViewHit> View::hit(int x, int y) const {
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
