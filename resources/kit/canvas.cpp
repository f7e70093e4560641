#include "resources/kit/canvas.h"

#include <cmath>

namespace artwork {

Canvas::Canvas(Size size, int density, std::uint32_t seed)
    : size_(size),
      density_(density),
      seed_(seed),
      surface_(
          cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width * density, size.height * density)),
      context_(cairo_create(surface_.get())) {
  cairo_scale(cr(), density, density);
}

double Canvas::snapped(double at) const { return std::round(at * density_) / density_; }

Pixels Canvas::pixels() const {
  cairo_surface_flush(surface_.get());
  return {reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface_.get())),
          cairo_image_surface_get_width(surface_.get()), cairo_image_surface_get_height(surface_.get()),
          cairo_image_surface_get_stride(surface_.get()) / 4};
}

void Canvas::touched() const { cairo_surface_mark_dirty(surface_.get()); }

}  // namespace artwork
