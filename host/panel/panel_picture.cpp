#include "host/panel/panel_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/drawing/pictures.h"
#include "host/drawing/pixels.h"
#include "host/panel/area_marks.h"
#include "host/panel/plate.h"

namespace host {
namespace {

constexpr double greatest_side = 16384;  // canvas pixels

// The rule of the gauges' own parts, so that neighbours touch at any zoom.
Rect scaled(const Rect& rect, double zoom) {
  return scaled_place({rect.x, rect.y}, {rect.width, rect.height}, {zoom, zoom});
}

double limited_zoom(const WindowConfig& window, double zoom) {
  const double side = std::max({window.width, window.height, 1});
  return std::clamp(zoom, 0.05, greatest_side / side);
}

int whole_part(std::int64_t value, std::int64_t divisor) {
  return static_cast<int>(value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor));
}

}  // namespace

PanelPoint gauge_point(const Rect& place, PanelSize size, int x, int y) {
  return {whole_part(std::int64_t(x - place.x) * size.width, std::max(1, place.width)),
          whole_part(std::int64_t(y - place.y) * size.height, std::max(1, place.height))};
}

bool overlap(const Rect& a, const Rect& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

PanelPicture::PanelPicture(const Cockpit& cockpit, std::size_t window, double zoom)
    : cockpit_(cockpit), window_(window), zoom_(limited_zoom(config(), zoom)) {
  const Rect size = scaled({0, 0, config().width, config().height}, zoom_);
  canvas_ = Canvas(size.width, size.height);
  for (const PlacedGauge& placed : cockpit.windows()[window].gauges) {
    const Rect place = scaled(placed.place, zoom_);
    items_.push_back({placed.gauge,
                      place,
                      GaugePainter(placed.gauge->header(), cockpit.module().bitmaps(), place),
                      {},
                      {}});
  }
}

void PanelPicture::draw(double blend, std::vector<Rect>& changed) {
  const std::size_t before = changed.size();
  if (look_ != look()) draw_background(changed);
  for (std::size_t i = 0; i < items_.size(); ++i) draw_item(i, blend, changed);
  follow_the_day(changed);
  if (day_ == full_day) return;
  for (std::size_t i = before; i < changed.size(); ++i) darken_part(changed[i]);
}

void PanelPicture::follow_the_day(std::vector<Rect>& changed) {
  const int day = daylight_on_panels(cockpit_);
  if (std::exchange(day_, day) == day) return;
  if (day == full_day)
    dark_ = {};
  else if (dark_.width != canvas_.width)
    dark_ = Canvas(canvas_.width, canvas_.height);
  changed.push_back(whole_of(canvas_));
}

void PanelPicture::darken_part(const Rect& part) {
  darken(dark_, canvas_, part, day_);
  for (Item& item : items_)
    if (overlap(item.place, part)) light(item, intersection(item.place, part));
}

void PanelPicture::light(Item& item, const Rect& part) {
  if (!item.lit) item.lit.emplace(*item.gauge, cockpit_.module().bitmaps());
  constexpr double beside_a_lamp = 0.0, under_a_flood = 0.35;
  const int face = static_cast<int>(std::lround(full_day * item.lit->face(*item.gauge)));
  if (face > day_) darken_lit(dark_, canvas_, part, day_, face, under_a_flood);
  const Scale scale{1.0 * item.place.width / item.gauge->size.width,
                    1.0 * item.place.height / item.gauge->size.height};
  for (const Rect& box : item.lit->shining(*item.gauge)) {
    Rect place = scaled_place({box.x, box.y}, {box.width, box.height}, scale);
    place.x += item.place.x;
    place.y += item.place.y;
    darken_lit(dark_, canvas_, intersection(place, part), day_, full_day, beside_a_lamp);
  }
}

// With the panel lights on the whole cockpit is seen by night, not only the windows that have a face
// of their own for it.
PanelPicture::Look PanelPicture::look() const {
  const bool lit = cockpit_.panel_lights_on();
  return {lit ? Face::night : cockpit_.panels().face(window_), lit};
}

void PanelPicture::draw_background(std::vector<Rect>& changed) {
  look_ = look();
  for (Item& item : items_) item.painter.set_night(look_->lit);
  std::vector<Rect> places;
  for (const Item& item : items_) places.push_back(item.place);
  invalidate();
  draw_plate(canvas_, config(), cockpit_.config().file.parent_path(), places, look_->face, zoom_);
  changed.push_back({0, 0, canvas_.width, canvas_.height});
}

// A gauge at rest that was drawn at rest is not even looked at.
// A gauge that is drawn again covers what stands on it, so that is drawn again too.
void PanelPicture::draw_item(std::size_t index, double blend, std::vector<Rect>& changed) {
  Item& item = items_[index];
  if (!item.gauge->moving) {
    if (item.changes == item.gauge->changes) return;
    item.changes = item.gauge->changes;
  }
  if (!item.painter.draw(canvas_, item.gauge->run.before(), item.gauge->run.now(), blend)) return;
  if (areas_marked_) draw_area_marks(canvas_, item.gauge->areas, item.gauge->size, item.place);
  changed.push_back(item.place);
  for (std::size_t above = index + 1; above < items_.size(); ++above)
    if (overlap(items_[above].place, item.place)) invalidate(items_[above]);
}

void PanelPicture::invalidate() {
  for (Item& item : items_) invalidate(item);
}

void PanelPicture::invalidate(Item& item) {
  item.painter.invalidate();
  item.changes.reset();
}

void PanelPicture::mark_areas(bool marked) {
  areas_marked_ = marked;
  invalidate();
}

bool PanelPicture::moving() const {
  return std::ranges::any_of(items_, [](const Item& item) { return item.gauge->moving; });
}

std::optional<PanelHit> PanelPicture::hit(int x, int y) const {
  const auto under = std::ranges::find_if(items_.rbegin(), items_.rend(), [&](const Item& item) {
    return overlap(item.place, {x, y, 1, 1});
  });
  if (under == items_.rend()) return std::nullopt;
  return PanelHit{under->gauge, gauge_point(under->place, under->gauge->size, x, y)};
}

PanelPoint PanelPicture::point_on(const CockpitGauge& gauge, int x, int y) const {
  return gauge_point(place_of(gauge), gauge.size, x, y);
}

Rect PanelPicture::place_of(const CockpitGauge& gauge) const {
  const auto item = std::ranges::find(items_, &gauge, &Item::gauge);
  return item == items_.end() ? Rect{} : item->place;
}

}  // namespace host
