#include <algorithm>
#include <cmath>

#include "resources/kit/paint.h"
#include "resources/kit/records.h"
#include "resources/tool/library.h"

namespace artwork {
namespace {

/// The picture as it comes out of its palette, laid at the context's origin.
void lay(const Canvas& canvas, int id) {
  const Bitmap* bitmap = find_bitmap(id);
  if (bitmap == nullptr) return;
  Indexed picture = indexed(*bitmap, canvas.density());
  if (bitmap->background) make_opaque(picture);
  const Canvas image = shown(picture, canvas.density());
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

void lay_part(const Canvas& canvas, const Element& e, const Pose& pose) {
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), e.position.x, e.position.y);
  if (e.kind == ELEMENT_ICON) {
    const int last = static_cast<int>(e.icon.image_count) - 1;
    lay(canvas, e.resource_id + std::clamp(pose.image, 0, last));
  } else if (e.kind == ELEMENT_NEEDLE) {
    cairo_rotate(canvas.cr(), radians(needle_angle(e, full_scale_share(e, pose.fraction))));
    cairo_translate(canvas.cr(), -e.needle.center.x, -e.needle.center.y);
    lay(canvas, e.resource_id);
  } else if (e.kind == ELEMENT_SLIDER || e.kind == ELEMENT_STATIC_IMAGE) {
    lay(canvas, e.resource_id);
  }
}

}  // namespace

Canvas composed(const GaugeHeader& of, const Pose& pose, int density) {
  const int plate = of.element_list[0]->resource_id;
  const Bitmap* background = find_bitmap(plate);
  Canvas canvas(background == nullptr ? Size{1, 1} : background->size, density, 0);
  {
    const Saved saved(canvas);
    lay(canvas, plate);
  }
  for (const Element* e : parts(of)) lay_part(canvas, *e, pose);
  if (pose.boxes) {
    for (const Box& box : click_boxes(of)) {
      stroke(canvas, rounded(box.grown(-0.25), 0), 0.5, rgb(0xFF30FF));
    }
  }
  return canvas;
}

}  // namespace artwork
