#include "host/sketch/sketch.h"

#include <pango/pangocairo.h>

#include <cmath>
#include <cstring>
#include <numbers>

namespace host {
namespace {

using Layout = std::unique_ptr<PangoLayout, decltype(&g_object_unref)>;

Layout make_layout(cairo_t* context, const std::string& text, double size, bool bold) {
  Layout layout(pango_cairo_create_layout(context), g_object_unref);
  PangoFontDescription* font = pango_font_description_from_string("B612, DejaVu Sans, Sans");
  pango_font_description_set_weight(font, bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_font_description_set_absolute_size(font, size * 0.75 * PANGO_SCALE);
  pango_layout_set_font_description(layout.get(), font);
  pango_font_description_free(font);
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
  return layout;
}

}  // namespace

Sketch::Sketch(int width, int height)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height), cairo_surface_destroy),
      context_(cairo_create(surface_.get()), cairo_destroy) {}

void Sketch::set(Color color) {
  cairo_set_source_rgba(context(), color.red, color.green, color.blue, color.alpha);
}

void Sketch::path(double x, double y, double width, double height, double radius) {
  constexpr double quarter = std::numbers::pi / 2;
  cairo_new_sub_path(context());
  cairo_arc(context(), x + width - radius, y + radius, radius, -quarter, 0);
  cairo_arc(context(), x + width - radius, y + height - radius, radius, 0, quarter);
  cairo_arc(context(), x + radius, y + height - radius, radius, quarter, 2 * quarter);
  cairo_arc(context(), x + radius, y + radius, radius, 2 * quarter, 3 * quarter);
  cairo_close_path(context());
}

void Sketch::rounded_box(double x, double y, double width, double height, double radius, Color color) {
  path(x, y, width, height, radius);
  set(color);
  cairo_fill(context());
}

void Sketch::box_outline(double x, double y, double width, double height, double radius, double line,
                         Color color) {
  path(x + line / 2, y + line / 2, width - line, height - line, radius);
  set(color);
  cairo_set_line_width(context(), line);
  cairo_stroke(context());
}

void Sketch::line(double x0, double y0, double x1, double y1, double width, Color color) {
  set(color);
  cairo_set_line_width(context(), width);
  cairo_set_line_cap(context(), CAIRO_LINE_CAP_ROUND);
  cairo_move_to(context(), x0, y0);
  cairo_line_to(context(), x1, y1);
  cairo_stroke(context());
}

void Sketch::circle(double x, double y, double radius, double line, Color color) {
  cairo_new_path(context());
  cairo_arc(context(), x, y, radius, 0, 2 * std::numbers::pi);
  set(color);
  cairo_set_line_width(context(), line);
  cairo_stroke(context());
}

void Sketch::path(std::span<const SketchPoint> points) {
  cairo_new_path(context());
  for (const auto& [x, y] : points) cairo_line_to(context(), x, y);
}

void Sketch::polyline(std::span<const SketchPoint> points, double width, Color color) {
  path(points);
  set(color);
  cairo_set_line_width(context(), width);
  cairo_set_line_join(context(), CAIRO_LINE_JOIN_ROUND);
  cairo_stroke(context());
}

void Sketch::polygon(std::span<const SketchPoint> corners, Color color) {
  path(corners);
  cairo_close_path(context());
  set(color);
  cairo_fill(context());
}

void Sketch::begin_clip(double x, double y, double width, double height, double radius) {
  cairo_save(context());
  path(x, y, width, height, radius);
  cairo_clip(context());
}

void Sketch::end_clip() { cairo_restore(context()); }

void Sketch::text(const std::string& text, double x, double y, double size, bool bold, Color color) {
  const Layout layout = make_layout(context(), text, size, bold);
  int height = 0;
  pango_layout_get_pixel_size(layout.get(), nullptr, &height);
  set(color);
  cairo_move_to(context(), x, y + (size - height) / 2);
  pango_cairo_show_layout(context(), layout.get());
}

double Sketch::text_width(const std::string& text, double size, bool bold) {
  Sketch ruler(1, 1);
  const Layout layout = make_layout(ruler.context(), text, size, bold);
  int width = 0;
  pango_layout_get_pixel_size(layout.get(), &width, nullptr);
  return width;
}

Overlay Sketch::finish() {
  cairo_surface_flush(surface_.get());
  Overlay overlay;
  overlay.width = cairo_image_surface_get_width(surface_.get());
  overlay.height = cairo_image_surface_get_height(surface_.get());
  overlay.pixels.resize(std::size_t(overlay.width) * overlay.height);
  const unsigned char* rows = cairo_image_surface_get_data(surface_.get());
  const int stride = cairo_image_surface_get_stride(surface_.get());
  for (int y = 0; y < overlay.height; ++y)
    std::memcpy(&overlay.pixels[std::size_t(y) * overlay.width], rows + std::ptrdiff_t(y) * stride,
                std::size_t(overlay.width) * 4);
  return overlay;
}

}  // namespace host
