#include "host/panel/plate.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include "host/drawing/pictures.h"
#include "host/files/read_file.h"
#include "host/panel/config_values.h"
#include "host/sketch/sketch.h"

namespace host {
namespace {

using CairoSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;
using Pattern = std::unique_ptr<cairo_pattern_t, decltype(&cairo_pattern_destroy)>;

constexpr std::uintmax_t largest_picture = 64 * mebibyte;
constexpr const char* no_picture = "is no PNG picture of at most 8192 x 8192 pixels, or damaged";

Color unpacked(std::uint32_t color) {
  return {(color >> 16 & 255) / 255.0, (color >> 8 & 255) / 255.0, (color & 255) / 255.0};
}

void add_stop(cairo_pattern_t* pattern, double offset, Color color, double brightness) {
  const auto lit = [&](double part) { return std::min(1.0, part * brightness); };
  cairo_pattern_add_color_stop_rgb(pattern, offset, lit(color.red), lit(color.green), lit(color.blue));
}

// One light from above left, as on every gauge; at night what little falls in from above the
// glareshield.
void paint_metal(cairo_t* cairo, Color color, Face face, double width, double height) {
  const Pattern light(face == Face::day ? cairo_pattern_create_linear(0, 0, width * 0.4, height)
                                        : cairo_pattern_create_linear(0, 0, 0, height),
                      cairo_pattern_destroy);
  if (face == Face::night) color = {color.red * 0.46, color.green * 0.47, color.blue * 0.49};
  add_stop(light.get(), 0.0, color, face == Face::day ? 1.14 : 1.12);
  add_stop(light.get(), 0.5, color, face == Face::day ? 1.00 : 0.84);
  add_stop(light.get(), 1.0, color, face == Face::day ? 0.84 : 0.66);
  cairo_set_source(cairo, light.get());
  cairo_paint(cairo);
}

// A fine grain, the same every time: each pixel a little lighter or darker.
void add_grain(Canvas& canvas) {
  std::uint32_t state = 2463534242u;
  for (std::uint32_t& pixel : canvas.pixels) {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    const int change = static_cast<int>(state >> 29) - 3;
    const auto part = [&](int shift) {
      const int value = static_cast<int>(pixel >> shift & 255) + change / 2;
      return static_cast<std::uint32_t>(std::clamp(value, 0, 255)) << shift;
    };
    pixel = 0xFF000000u | part(16) | part(8) | part(0);
  }
}

void outline(cairo_t* cairo, const Rect& rect, double outset, double line, double alpha, double shade) {
  cairo_set_source_rgba(cairo, shade, shade, shade, alpha);
  cairo_set_line_width(cairo, line);
  const double grow = outset + line / 2;
  cairo_rectangle(cairo, rect.x - grow, rect.y - grow, rect.width + 2 * grow, rect.height + 2 * grow);
  cairo_stroke(cairo);
}

// The gap between a gauge and the plate: a dark seam with a lit lower edge and a soft shadow.
void draw_seam(cairo_t* cairo, const Rect& gauge, double zoom) {
  const double unit = std::max(1.0, zoom);
  Rect lit = gauge;
  lit.x += static_cast<int>(unit);
  lit.y += static_cast<int>(unit);
  outline(cairo, lit, unit * 1.5, unit, 0.16, 1.0);
  for (int ring = 3; ring >= 1; --ring) outline(cairo, gauge, unit * ring, unit * 1.5, 0.12, 0.0);
  outline(cairo, gauge, 0, unit * 1.5, 0.85, 0.02);
}

// A field that lies a little lower than the plate: in the shade of its upper and left edge, with the
// light on the lower and right one.
void draw_bay(cairo_t* cairo, const Rect& bay, double zoom) {
  const double unit = std::max(1.0, zoom);
  const double right = bay.x + bay.width, bottom = bay.y + bay.height;
  const auto box = [&](double x, double y, double width, double height, double shade, double alpha) {
    cairo_set_source_rgba(cairo, shade, shade, shade, alpha);
    cairo_rectangle(cairo, x, y, width, height);
    cairo_fill(cairo);
  };
  box(bay.x, bay.y, bay.width, bay.height, 0, 0.36);
  for (int ring = 1; ring <= 3; ++ring) {
    box(bay.x, bay.y, bay.width, ring * unit, 0, 0.2);
    box(bay.x, bay.y, ring * unit, bay.height, 0, 0.12);
  }
  box(bay.x, bottom, bay.width + unit, unit, 1, 0.2);
  box(right, bay.y, unit, bay.height, 1, 0.14);
}

// A black plate with its words. By night they shine like the legends about them.
Overlay drawn_placard(const Placard& placard, int width, int height, Face face, double zoom) {
  const bool night = face == Face::night;
  const Color ink = night ? Color{0.91, 0.85, 0.70} : Color{0.91, 0.90, 0.85};
  const Color ground = night ? Color{0.03, 0.035, 0.04} : Color{0.075, 0.085, 0.09};
  const double unit = std::max(1.0, std::round(zoom)), corner = 2 * zoom;
  Sketch sketch(width, height);
  sketch.rounded_box(0, 0, width, height, corner, ground);
  sketch.box_outline(0, 0, width, height, corner, unit, {1, 1, 1, night ? 0.1 : 0.24});
  const bool headed = placard.lines.size() > 1;
  const double head = headed ? std::round(14 * zoom) : 0;
  const std::size_t first = headed ? 1 : 0;
  const double room = (height - head) / static_cast<double>(placard.lines.size() - first);
  const auto set_line = [&](const std::string& line, double middle) {
    const double size = 9.8 * zoom, left = (width - Sketch::text_width(line, size, true)) / 2;
    sketch.text(line, std::round(left), middle - size / 2, size, true, ink);
  };
  if (headed) {
    set_line(placard.lines[0], head / 2);
    sketch.rounded_box(4 * zoom, head, width - 8 * zoom, unit, 0, ink);
  }
  const double pitch = std::min(room, 12.5 * zoom);
  double y = (head + height) / 2 - pitch * static_cast<double>(placard.lines.size() - first - 1) / 2;
  for (std::size_t i = first; i < placard.lines.size(); ++i, y += pitch) set_line(placard.lines[i], y);
  return sketch.finish();
}

void draw_placard(cairo_t* cairo, const Placard& placard, Face face, double zoom) {
  const Rect place =
      scaled_place({placard.x, placard.y}, {placard.width, placard.height}, {zoom, zoom});
  if (place.width < 1 || place.height < 1) return;
  Overlay drawn = drawn_placard(placard, place.width, place.height, face, zoom);
  const CairoSurface surface(cairo_image_surface_create_for_data(
                                 reinterpret_cast<unsigned char*>(drawn.pixels.data()),
                                 CAIRO_FORMAT_ARGB32, drawn.width, drawn.height, drawn.width * 4),
                             cairo_surface_destroy);
  cairo_set_source_surface(cairo, surface.get(), place.x, place.y);
  cairo_paint(cairo);
}

void draw_edges(cairo_t* cairo, double width, double height, double zoom) {
  const double unit = std::max(1.0, zoom);
  cairo_set_source_rgba(cairo, 1, 1, 1, 0.18);
  cairo_rectangle(cairo, 0, 0, width, unit);
  cairo_rectangle(cairo, 0, 0, unit, height);
  cairo_fill(cairo);
  cairo_set_source_rgba(cairo, 0, 0, 0, 0.45);
  cairo_rectangle(cairo, 0, height - unit, width, unit);
  cairo_rectangle(cairo, width - unit, 0, unit, height);
  cairo_fill(cairo);
}

cairo_status_t take(void* rest, unsigned char* bytes, unsigned count) {
  auto& left = *static_cast<std::string_view*>(rest);
  if (left.size() < count) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(bytes, left.data(), count);
  left.remove_prefix(count);
  return CAIRO_STATUS_SUCCESS;
}

// The size stands at the front, before anything is unpacked.
bool sensible_png(std::string_view bytes) {
  constexpr std::string_view front("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
  if (!bytes.starts_with(front) || bytes.size() < 24) return false;
  const auto side = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = at; i < at + 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
  };
  return side(16) >= 1 && side(16) <= greatest_size && side(20) >= 1 && side(20) <= greatest_size;
}

// Null for what is no whole picture.
CairoSurface picture_in(std::string_view bytes) {
  if (!sensible_png(bytes)) return {nullptr, cairo_surface_destroy};
  CairoSurface picture(cairo_image_surface_create_from_png_stream(take, &bytes), cairo_surface_destroy);
  if (cairo_surface_status(picture.get()) != CAIRO_STATUS_SUCCESS) picture.reset();
  return picture;
}

void draw_picture(cairo_t* cairo, const std::filesystem::path& file, double width, double height) {
  const CairoSurface picture = picture_in(read_file(file, largest_picture));
  if (!picture) throw ConfigError(file.string() + ": " + no_picture);
  cairo_scale(cairo, width / cairo_image_surface_get_width(picture.get()),
              height / cairo_image_surface_get_height(picture.get()));
  cairo_set_source_surface(cairo, picture.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_BEST);
  cairo_paint(cairo);
}

CairoSurface surface_on(Canvas& canvas) {
  return {cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(canvas.pixels.data()),
                                              CAIRO_FORMAT_RGB24, canvas.width, canvas.height,
                                              canvas.width * 4),
          cairo_surface_destroy};
}

}  // namespace

std::string fault_of_picture(const std::filesystem::path& file) {
  if (std::string fault = fault_of_file(file, largest_picture); !fault.empty()) return fault;
  return picture_in(read_file(file, largest_picture)) ? "" : no_picture;
}

void draw_plate(Canvas& canvas, const WindowConfig& window, const std::filesystem::path& folder,
                std::span<const Rect> gauges, Face face, double zoom) {
  const bool own_night = face == Face::night && !window.night_background.empty();
  const std::string& picture = own_night ? window.night_background : window.background;
  const CairoSurface surface = surface_on(canvas);
  const Context cairo(cairo_create(surface.get()), cairo_destroy);
  if (!picture.empty()) {
    draw_picture(cairo.get(), folder / picture, canvas.width, canvas.height);
    return;
  }
  paint_metal(cairo.get(), unpacked(window.color), face, canvas.width, canvas.height);
  cairo_surface_flush(surface.get());
  add_grain(canvas);
  cairo_surface_mark_dirty(surface.get());
  draw_edges(cairo.get(), canvas.width, canvas.height, zoom);
  for (const Bay& bay : window.bays)
    draw_bay(cairo.get(), scaled_place({bay.x, bay.y}, {bay.width, bay.height}, {zoom, zoom}), zoom);
  for (const Placard& placard : window.placards) draw_placard(cairo.get(), placard, face, zoom);
  for (const Rect& gauge : gauges) draw_seam(cairo.get(), gauge, zoom);
}

}  // namespace host
