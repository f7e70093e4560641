#include "host/panel/read_outs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/gauge/needle_geometry.h"
#include "host/loader/element_chain.h"
#include "host/panel/text.h"

namespace host {
namespace {

constexpr double slider_travel = 40;       // pixels on either side in which a pointer is looked for
constexpr std::uint32_t half_clear = 128;  // of 255: glass is looked through

// A point in fractions of a pixel.
struct Spot {
  double x, y;
};

class Under {
 public:
  Under(const CockpitGauge& gauge, const BitmapStore& bitmaps, PanelPoint point)
      : gauge_(gauge), bitmaps_(bitmaps), point_(point), chain_(element_chain(gauge.header())) {}

  std::optional<std::size_t> part() const {
    std::optional<std::size_t> nearest;
    double smallest = INFINITY;
    for (const Named& named : gauge_.names.parts) {
      if (gauge_.words.part(named.index).empty() || named.index >= chain_.size()) continue;
      const ElementState* state = gauge_.run.showing(named.index);
      const bool painted = state && state->drawn && is_painted(*state);
      const double size =
          painted ? behind_all(*state, named.index) : size_around(*chain_[named.index].element);
      if (size > smallest) continue;
      smallest = size;
      nearest = named.index;
    }
    return nearest;
  }

 private:
  // Less than the size of anything, and the less the higher it lies; sprites lie behind the face.
  static double behind_all(const ElementState& state, std::size_t index) {
    const double height = static_cast<double>(index);
    return state.element->kind == ELEMENT_SPRITE ? -height / longest_chain : -1 - height;
  }

  Spot from(const Element& element) const {
    return {1.0 * point_.x - element.position.x, 1.0 * point_.y - element.position.y};
  }

  std::shared_ptr<const Bitmap> bitmap(double id) const {
    if (!(id >= 0 && id < 4e9)) return nullptr;
    return bitmaps_.find(static_cast<std::uint32_t>(id), BitmapUse::image);
  }

  // Whether the image has paint at a spot, or right beside it: a needle is a thin thing to point at.
  static bool has_paint(const std::shared_ptr<const Bitmap>& image, Spot at) {
    if (!image) return false;
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx) {
        const double x = std::round(at.x) + dx, y = std::round(at.y) + dy;
        if (!(x >= 0 && x < image->width && y >= 0 && y < image->height)) continue;
        const auto pixel = static_cast<std::size_t>(y) * image->width + static_cast<std::size_t>(x);
        if (image->pixels[pixel] >> 24 > half_clear) return true;
      }
    return false;
  }

  bool is_painted(const ElementState& state) const {
    const Element& e = *state.element;
    const Spot at = from(e);
    const double value = state.values[0];
    switch (e.kind) {
      case ELEMENT_STATIC_IMAGE: return has_paint(bitmap(e.resource_id), at);
      case ELEMENT_ICON: return has_paint(bitmap(shown_image(e, value)), at);
      case ELEMENT_NEEDLE:
        return has_paint(bitmap(e.resource_id), turned_back(e, state.reached.value_or(value), at));
      case ELEMENT_SLIDER:
        return has_paint(bitmap(e.resource_id),
                         {at.x - value * e.slider.x_scale, at.y - state.values[1] * e.slider.y_scale});
      case ELEMENT_SPRITE:
        return opening() < INFINITY && has_paint(bitmap(e.resource_id), on_sprite(state));
      case ELEMENT_MOVING_IMAGE: return size_around(e) < INFINITY;
      case ELEMENT_STRING: return !trimmed(state.text).empty() && size_around(e) < INFINITY;
      default: return false;
    }
  }

  static double shown_image(const Element& icon, double value) {
    const double image = std::trunc(value);
    return image >= 0 && image < icon.icon.image_count ? icon.resource_id + image : -1;
  }

  // A spot as it lies on the needle's own picture.
  static Spot turned_back(const Element& needle, double value, Spot at) {
    const double angle = -needle_angle(needle_scale(needle), value) * std::numbers::pi / 180;
    const double x = at.x * std::cos(angle) - at.y * std::sin(angle);
    const double y = at.x * std::sin(angle) + at.y * std::cos(angle);
    return {x + needle.needle.center.x, y + needle.needle.center.y};
  }

  // A spot as it lies on a sprite's own picture, which is shifted and then turned about its centre.
  Spot on_sprite(const ElementState& state) const {
    const SpritePart& sprite = state.element->sprite;
    const PanelPoint centre = sprite.texture_center;
    const double angle = state.values[2] * sprite.rotation.scale * std::numbers::pi / 180;
    const double dx = point_.x - centre.x, dy = point_.y - centre.y;
    const double x = dx * std::cos(angle) - dy * std::sin(angle);
    const double y = dx * std::sin(angle) + dy * std::cos(angle);
    return {x - state.values[0] * sprite.x.scale + centre.x,
            y - state.values[1] * sprite.y.scale + centre.y};
  }

  // The area of what the element stands in, infinite where the point is beside it.
  double size_around(const Element& e) const {
    switch (e.kind) {
      case ELEMENT_NEEDLE: return dial(e);
      case ELEMENT_SPRITE: return opening();
      case ELEMENT_STRING: return box(from(e), e.string.size.width, e.string.size.height);
      case ELEMENT_MOVING_IMAGE: return window(e);
      case ELEMENT_SLIDER: return travel(e);
      default: return image_box(e);
    }
  }

  static double box(Spot at, double width, double height) {
    const bool inside = at.x >= 0 && at.x < width && at.y >= 0 && at.y < height;
    return inside ? width * height : INFINITY;
  }

  double image_box(const Element& e) const {
    const auto image = bitmap(e.resource_id);
    return image ? box(from(e), image->width, image->height) : INFINITY;
  }

  double window(const Element& e) const {
    if (const auto mask = bitmap(e.moving_image.mask_resource_id))
      return box(from(e), mask->width, mask->height);
    const auto strip = bitmap(e.resource_id);
    return strip ? box(from(e), strip->width, strip->height / 10.0) : INFINITY;
  }

  double travel(const Element& e) const {
    const auto image = bitmap(e.resource_id);
    if (!image) return INFINITY;
    const double x = e.slider.x_scale != 0 ? slider_travel : 0;
    const double y = e.slider.y_scale != 0 ? slider_travel : 0;
    const Spot at = from(e);
    return box({at.x + x, at.y + y}, image->width + 2 * x, image->height + 2 * y);
  }

  // The circle of a needle's marks. Without marks a needle turns over a card of its own.
  double dial(const Element& e) const {
    double radius = 0;
    for (u32 i = 0; e.needle.table && i < e.needle.table_length; ++i) {
      const PanelPoint mark = e.needle.table[i].point;
      radius = std::max(radius, std::hypot(1.0 * mark.x - e.position.x, 1.0 * mark.y - e.position.y));
    }
    const Spot at = from(e);
    return std::hypot(at.x, at.y) <= radius ? std::numbers::pi * radius * radius : INFINITY;
  }

  double opening() const {
    const Element& face = *chain_.front().element;
    const auto image = bitmap(face.resource_id);
    const Spot at = from(face);
    if (!image || box(at, image->width, image->height) == INFINITY) return INFINITY;
    const auto pixel = static_cast<std::size_t>(at.y) * image->width + static_cast<std::size_t>(at.x);
    return image->pixels[pixel] >> 24 != 255 ? 1.0 * image->width * image->height : INFINITY;
  }

  const CockpitGauge& gauge_;
  const BitmapStore& bitmaps_;
  PanelPoint point_;
  std::vector<ChainLink> chain_;
};

}  // namespace

std::optional<std::size_t> part_under(const CockpitGauge& gauge, const BitmapStore& bitmaps,
                                      PanelPoint point) {
  return Under(gauge, bitmaps, point).part();
}

}  // namespace host
