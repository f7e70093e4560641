#include "host/window/compose.h"

#include "host/drawing/pixels.h"

namespace host {

void fill(Canvas& canvas, const Rect& rect, std::uint32_t color) {
  fill_pixels(surface_of(canvas), rect, color);
}

void copy_within(Canvas& canvas, const Canvas& picture, int x, int y, const Rect& rect) {
  copy_pixels(surface_of(canvas), rect, view_of(picture), x, y);
}

void blend_within(Canvas& canvas, const Overlay& overlay, int x, int y, const Rect& rect) {
  blend_pixels(surface_of(canvas), rect,
               {overlay.pixels.data(), overlay.width, overlay.height, overlay.width}, x, y);
}

}  // namespace host
