#include "host/drawing/painter.h"

#include <algorithm>

#include "host/drawing/dirty_area.h"
#include "host/drawing/element_painter.h"
#include "host/drawing/lights.h"
#include "host/loader/element_chain.h"

namespace host {
namespace {

constexpr std::uint32_t black = 0xFF000000u;

Scale scale_to(const Rect& place, PanelSize size) {
  if (size.width <= 0 || size.height <= 0) return {};
  return {1.0 * place.width / size.width, 1.0 * place.height / size.height};
}

bool is_sprite(const Element& element) { return element.kind == ELEMENT_SPRITE; }

}  // namespace

// A face without sprites is opaque: black is a paint like any other there. Behind a face with sprites
// something moves that has to be seen, so that its pure black and its opacities count as those of an
// image do: where it is clear it has an opening.
bool has_openings(const std::vector<ChainLink>& chain) {
  return std::ranges::any_of(chain, [](const ChainLink& link) { return is_sprite(*link.element); });
}

// The gauge in two layers: the base, kept composed, holds what is drawn up to the first element that
// moves; the rest is drawn over it straight onto the canvas.
struct GaugePainter::Layers {
  struct Item {
    std::size_t index;  // in the chain
    const Element* element;
    std::unique_ptr<ElementPainter> painter;  // null: it never shows anything
    Rect limits;                              // sprites are seen through the openings only
    Look look;
    Rect bounds;
  };

  Layers(const GaugeHeader& gauge, const BitmapStore& bitmaps, Rect where);
  void add_items(const GaugeHeader& gauge);
  void compare(std::span<const ElementState> before, std::span<const ElementState> now, double blend);
  void take_look(std::size_t place_in_order, const Look& look);
  bool covered_by_face(const Rect& part) const;
  std::size_t first_moving(std::span<const ElementState> now) const;
  void compose(Surface target, const Rect& clip, std::size_t first, std::size_t last) const;
  void update_base();
  void update_canvas(Canvas& canvas);
  Surface base_surface() { return {base.data(), place.width, 0, 0}; }

  Rect place;
  Rect whole;  // the place, as seen from its own corner
  Pictures pictures;
  std::vector<Item> items;  // in the order of drawing: sprites and the face, then everything else
  bool open_face = false;
  std::optional<Openings> openings;
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
  add_items(gauge);
  base.assign(std::size_t(place.width) * place.height, black);
}

void GaugePainter::Layers::add_items(const GaugeHeader& gauge) {
  const std::vector<ChainLink> chain = element_chain(gauge);
  open_face = has_openings(chain);
  if (open_face) openings = pictures.openings(*chain.front().element);
  const Rect behind_face = openings ? intersection(around(*openings), whole) : whole;
  const std::vector<Light> at_night = lights_at_night(gauge, chain, pictures);
  for (std::size_t i = 0; i < chain.size(); ++i) {
    const Element& element = *chain[i].element;
    const BitmapUse use = i == 0 && open_face ? BitmapUse::image : BitmapUse::background;
    items.push_back(
        {i,
         &element,
         make_element_painter(element, pictures, use, at_night[i], openings ? &*openings : nullptr),
         is_sprite(element) ? behind_face : whole,
         {},
         {}});
  }
  // Sprites lie behind the face. Where its openings are sharp, they can be drawn after it, cut off at the
  // openings: the same pixels, and the face need not be drawn each time that they move.
  const bool face_first = openings && openings->sharp;
  std::stable_partition(items.begin() + face_first, items.end(),
                        [](const Item& item) { return is_sprite(*item.element); });
}

// Everything below the first element that may move, whether or not it shows anything just now.
std::size_t GaugePainter::Layers::first_moving(std::span<const ElementState> now) const {
  const auto moves = [&](const Item& item) {
    return item.index < now.size() && now[item.index].evaluated && item.painter &&
           item.painter->moves();
  };
  return static_cast<std::size_t>(std::ranges::find_if(items, moves) - items.begin());
}

void GaugePainter::Layers::take_look(std::size_t place_in_order, const Look& look) {
  Item& item = items[place_in_order];
  if (look == item.look) return;
  const Rect bounds = look.shown ? intersection(item.painter->bounds(look), item.limits) : Rect{};
  for (const Rect& rect : {item.bounds, bounds}) {
    canvas_dirty.add(rect);
    if (place_in_order < base_end) base_dirty.add(rect);
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
    const Item& item = items[i];
    const std::size_t index = item.index;
    const auto drawn = [&](std::span<const ElementState> states) {
      return index < states.size() && states[index].drawn && states[index].element == item.element;
    };
    if (item.painter == nullptr || !drawn(now)) {
      take_look(i, {});
      continue;
    }
    const ElementState& from = drawn(before) ? before[index] : now[index];
    take_look(i, item.painter->look({from, now[index], blend, light}));
  }
}

void GaugePainter::Layers::compose(Surface target, const Rect& clip, std::size_t first,
                                   std::size_t last) const {
  for (std::size_t i = first; i < last; ++i) {
    const Item& item = items[i];
    const Rect part = intersection(item.bounds, clip);
    if (item.look.shown && !is_empty(part)) item.painter->paint(target, part, item.look);
  }
}

bool GaugePainter::Layers::covered_by_face(const Rect& part) const {
  if (open_face || items.empty() || !items.front().look.shown) return false;
  return intersection(items.front().bounds, part) == part;
}

void GaugePainter::Layers::update_base() {
  for (const Rect& part : base_dirty.parts()) {
    if (!covered_by_face(part)) fill_pixels(base_surface(), part, black);
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
  return bitmaps.size(static_cast<std::uint32_t>(root->resource_id));
}

}  // namespace host
