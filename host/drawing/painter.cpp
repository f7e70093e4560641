#include "host/drawing/painter.h"

#include <algorithm>

#include "host/drawing/dirty_area.h"
#include "host/drawing/element_painter.h"
#include "host/loader/element_chain.h"

namespace host {
namespace {

constexpr std::uint32_t black = 0xFF000000u;

Scale scale_to(const Rect& place, PanelSize size) {
  if (size.width <= 0 || size.height <= 0) return {};
  return {1.0 * place.width / size.width, 1.0 * place.height / size.height};
}

void fill(Surface target, const Rect& part, std::uint32_t colour) {
  for (int y = part.y; y < part.y + part.height; ++y)
    std::fill_n(target.at(part.x, y), part.width, colour);
}

}  // namespace

// The gauge in two layers: the base, kept composed, holds the background and the still elements up
// to the first one that moves; the rest is drawn over it straight onto the canvas.
struct GaugePainter::Layers {
  struct Item {
    const Element* element;
    std::unique_ptr<ElementPainter> painter;  // null: it never shows anything
    Look look;
    Rect bounds;
  };

  Layers(const GaugeHeader& gauge, const BitmapStore& bitmaps, Rect where);
  void compare(std::span<const ElementState> before, std::span<const ElementState> now, double blend);
  void take_look(std::size_t index, const Look& look);
  std::size_t first_moving(std::span<const ElementState> now) const;
  void compose(Surface target, const Rect& clip, std::size_t first, std::size_t last) const;
  void update_base();
  void update_canvas(Canvas& canvas);
  Surface base_surface() { return {base.data(), place.width, 0, 0}; }

  Rect place;
  Rect whole;  // the place, as seen from its own corner
  Pictures pictures;
  std::vector<Item> items;
  std::vector<std::uint32_t> base;
  std::size_t base_end = 0;  // the items below this one are in the base
  bool canvas_valid = false;
  Light light = Light::day;
  DirtyArea base_dirty;
  DirtyArea canvas_dirty;
};

GaugePainter::Layers::Layers(const GaugeHeader& gauge, const BitmapStore& bitmaps, Rect where)
    : place(where),
      whole{0, 0, where.width, where.height},
      pictures(bitmaps, scale_to(where, gauge_size(gauge, bitmaps))) {
  if (is_empty(place)) return;
  for (const ChainLink& link : element_chain(gauge))
    items.push_back({link.element, make_element_painter(*link.element, pictures), {}, {}});
  base.assign(std::size_t(place.width) * place.height, black);
}

// Everything below the first element that may move, whether or not it shows anything just now.
std::size_t GaugePainter::Layers::first_moving(std::span<const ElementState> now) const {
  std::size_t index = 0;
  const std::size_t end = std::min(items.size(), now.size());
  while (index < end &&
         !(now[index].evaluated && items[index].painter && items[index].painter->moves()))
    ++index;
  return index;
}

void GaugePainter::Layers::take_look(std::size_t index, const Look& look) {
  Item& item = items[index];
  if (look == item.look) return;
  const Rect bounds = look.shown ? item.painter->bounds(look) : Rect{};
  for (const Rect& rect : {item.bounds, bounds}) {
    canvas_dirty.add(rect);
    if (index < base_end) base_dirty.add(rect);
  }
  item.look = look;
  item.bounds = bounds;
}

void GaugePainter::Layers::compare(std::span<const ElementState> before,
                                   std::span<const ElementState> now, double blend) {
  const std::size_t end = first_moving(now);
  if (end != base_end) base_dirty.add(whole);
  base_end = end;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bool drawn = i < now.size() && now[i].drawn && now[i].element == items[i].element;
    if (!drawn || items[i].painter == nullptr) {
      take_look(i, {});
      continue;
    }
    const bool moved = i < before.size() && before[i].drawn && before[i].element == items[i].element;
    take_look(i, items[i].painter->look({moved ? before[i] : now[i], now[i], blend, light}));
  }
}

void GaugePainter::Layers::compose(Surface target, const Rect& clip, std::size_t first,
                                   std::size_t last) const {
  for (std::size_t i = first; i < last; ++i) {
    const Item& item = items[i];
    if (item.look.shown && !is_empty(intersection(item.bounds, clip)))
      item.painter->paint(target, clip, item.look);
  }
}

void GaugePainter::Layers::update_base() {
  const bool background = !items.empty() && items.front().look.shown;
  for (const Rect& part : base_dirty.parts()) {
    if (!background) fill(base_surface(), part, black);
    compose(base_surface(), part, 0, base_end);
  }
}

void GaugePainter::Layers::update_canvas(Canvas& canvas) {
  const Surface target{canvas.pixels.data(), canvas.width, place.x, place.y};
  const Rect seen = intersection(whole, {-place.x, -place.y, canvas.width, canvas.height});
  const PixelView source{base.data(), place.width, place.height, place.width};
  for (const Rect& part : canvas_dirty.parts()) {
    const Rect clip = intersection(part, seen);
    copy_pixels(target, clip, source, 0, 0);
    compose(target, clip, base_end, items.size());
  }
}

GaugePainter::GaugePainter(const GaugeHeader& gauge, const BitmapStore& bitmaps, Rect place)
    : layers_(std::make_unique<Layers>(gauge, bitmaps, place)) {}

GaugePainter::~GaugePainter() = default;
GaugePainter::GaugePainter(GaugePainter&&) noexcept = default;
GaugePainter& GaugePainter::operator=(GaugePainter&&) noexcept = default;

Rect GaugePainter::place() const { return layers_->place; }

bool GaugePainter::draw(Canvas& canvas, std::span<const ElementState> before,
                        std::span<const ElementState> now, double blend) {
  if (is_empty(layers_->place)) return false;
  layers_->base_dirty.reset(layers_->whole);
  layers_->canvas_dirty.reset(layers_->whole);
  layers_->compare(before, now, blend >= 0 && blend < 1 ? blend : 1.0);
  if (!layers_->canvas_valid) layers_->canvas_dirty.add(layers_->whole);
  layers_->canvas_valid = true;
  layers_->update_base();
  layers_->update_canvas(canvas);
  return !layers_->canvas_dirty.parts().empty();
}

void GaugePainter::set_night(bool night) { layers_->light = night ? Light::night : Light::day; }

void GaugePainter::invalidate() { layers_->canvas_valid = false; }

PanelSize gauge_size(const GaugeHeader& gauge, const BitmapStore& bitmaps) {
  const Element* root = gauge.element_list[0];
  if (root == nullptr || root->resource_id < 0) return {0, 0};
  const Bitmap* background =
      bitmaps.find(static_cast<std::uint32_t>(root->resource_id), BitmapUse::background);
  if (background == nullptr) return {0, 0};
  return {background->width, background->height};
}

}  // namespace host
