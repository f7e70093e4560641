#include <algorithm>
#include <cmath>

#include "resources/kit/paint.h"
#include "resources/kit/records.h"
#include "resources/rows/board.h"
#include "resources/tool/library.h"

namespace artwork {
namespace {

/// The picture as it comes out of its palette, laid at the context's origin.
void lay(const Canvas& canvas, int id) {
  const Bitmap* bitmap = find_bitmap(id);
  if (bitmap == nullptr) return;
  const Canvas image = shown(*bitmap, canvas.density());
  cairo_surface_t* surface = cairo_get_target(image.cr());
  cairo_surface_flush(surface);
  cairo_scale(canvas.cr(), canvas.hairline(), canvas.hairline());
  cairo_set_source_surface(canvas.cr(), surface, 0, 0);
  cairo_paint(canvas.cr());
}

double full_scale_share(const Element& needle, double fraction) {
  const NeedlePart& part = needle.needle;
  if (part.table_length == 0) return 360 * fraction;
  double low = part.table[0].value, high = low;
  for (u32 i = 0; i < part.table_length; ++i) {
    low = std::min(low, part.table[i].value);
    high = std::max(high, part.table[i].value);
  }
  return low + fraction * (high - low);
}

/// Along the axes on which the part moves, so far to either side of its place.
Point pushed(double x_scale, double y_scale, const Pose& pose) {
  const double by = 36 * (pose.fraction - 0.5);
  return {x_scale == 0 ? 0 : by, y_scale == 0 ? 0 : by};
}

void turn_about(const Canvas& canvas, Point plate, PanelPoint picture, double degrees, Point shift) {
  const Point pivot = middle_of(picture);
  cairo_translate(canvas.cr(), plate.x, plate.y);
  cairo_rotate(canvas.cr(), radians(degrees));
  cairo_translate(canvas.cr(), shift.x - pivot.x, shift.y - pivot.y);
}

/// A card stands at any heading; what also shifts, as a ball does, leans to either side.
void lay_sprite(const Canvas& canvas, const Element& e, const Pose& pose) {
  const SpritePart& sprite = e.sprite;
  const Point shift = pushed(sprite.x.scale, sprite.y.scale, pose);
  const bool card = sprite.x.scale == 0 && sprite.y.scale == 0;
  turn_about(canvas, turning_point(e), sprite.texture_center,
             card ? 360 * pose.fraction : 60 * (pose.fraction - 0.5), shift);
  lay(canvas, e.resource_id);
}

/// The part of a strip that its window shows.
void lay_strip(const Canvas& canvas, const Element& e, const Pose& pose) {
  const Bitmap* strip = find_bitmap(e.resource_id);
  if (strip == nullptr) return;
  const Size window = window_of(e);
  cairo_rectangle(canvas.cr(), 0, 0, window.width, window.height);
  cairo_clip(canvas.cr());
  const auto offset = [&](const MovingAxis& axis, int room) {
    return axis.minimum == axis.maximum ? 0 : std::round(-pose.fraction * room);
  };
  cairo_translate(canvas.cr(), offset(e.moving_image.x, strip->size.width - window.width),
                  offset(e.moving_image.y, strip->size.height - window.height));
  lay(canvas, e.resource_id);
}

void lay_part(const Canvas& canvas, const Element& e, const Pose& pose) {
  const Saved saved(canvas);
  if (e.kind == ELEMENT_SPRITE) return lay_sprite(canvas, e, pose);
  if (e.kind == ELEMENT_NEEDLE) {
    const double angle = needle_angle(e, full_scale_share(e, pose.fraction));
    turn_about(canvas, turning_point(e), e.needle.center, angle, {});
    return lay(canvas, e.resource_id);
  }
  cairo_translate(canvas.cr(), e.position.x, e.position.y);
  if (e.kind == ELEMENT_ICON) {
    const int last = static_cast<int>(e.icon.image_count) - 1;
    lay(canvas, e.resource_id + std::clamp(pose.image, 0, last));
  } else if (e.kind == ELEMENT_MOVING_IMAGE) {
    lay_strip(canvas, e, pose);
  } else if (e.kind == ELEMENT_SLIDER) {
    const Point by = pushed(e.slider.x_scale, e.slider.y_scale, pose);
    cairo_translate(canvas.cr(), by.x, by.y);
    lay(canvas, e.resource_id);
  } else if (e.kind == ELEMENT_STATIC_IMAGE) {
    lay(canvas, e.resource_id);
  }
}

/// The parts by day, or in a lit pose those of the lit copy, which follows in the chain.
std::vector<const Element*> shown_parts(const GaugeHeader& of, bool lit) {
  std::vector<const Element*> shown = parts(of);
  const std::size_t count = shown.size();
  while (lit && !shown.empty() && shown.back()->next != nullptr) {
    shown.push_back(*shown.back()->next);
  }
  if (shown.size() == 2 * count) shown.erase(shown.begin(), shown.begin() + std::ptrdiff_t(count));
  return shown;
}

}  // namespace

Canvas composed(const GaugeHeader& of, const Pose& pose, int density) {
  const int plate = of.element_list[0]->resource_id;
  const Bitmap* background = find_bitmap(plate);
  Canvas canvas(background == nullptr ? Size{1, 1} : background->size, density, 0);
  fill(canvas, rounded(whole(canvas.size()), 0), palette::black);
  const std::vector<const Element*> shown = shown_parts(of, pose.image > 0);
  const auto lay_parts = [&](bool sprites) {
    for (const Element* e : shown) {
      if ((e->kind == ELEMENT_SPRITE) == sprites) lay_part(canvas, *e, pose);
    }
  };
  lay_parts(true);
  {
    const Saved saved(canvas);
    lay(canvas, plate);
  }
  lay_parts(false);
  if (pose.boxes) {
    for (const Box& box : click_boxes(of)) {
      stroke(canvas, rounded(box.grown(-0.25), 0), 0.5, rgb(0xFF30FF));
    }
  }
  return canvas;
}

}  // namespace artwork
