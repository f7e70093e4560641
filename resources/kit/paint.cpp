#include "resources/kit/paint.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace artwork {
namespace {

void set_pattern(const Canvas& canvas, cairo_pattern_t* pattern, Stops stops) {
  for (const Stop& stop : stops) {
    const Colour& c = stop.colour;
    cairo_pattern_add_color_stop_rgba(pattern, stop.at, c.red, c.green, c.blue, c.alpha);
  }
  cairo_set_source(canvas.cr(), pattern);
  cairo_pattern_destroy(pattern);
}

/// One pass of a box blur along a row of `count` bytes `step` apart.
void blur_row(std::uint8_t* row, int count, int step, int radius, std::vector<std::uint8_t>& copy) {
  copy.resize(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) copy[static_cast<std::size_t>(i)] = row[i * step];
  const auto value = [&](int i) -> int {
    return i < 0 || i >= count ? 0 : copy[static_cast<std::size_t>(i)];
  };
  int sum = 0;
  for (int i = -radius; i <= radius; ++i) sum += value(i);
  const int width = 2 * radius + 1;
  for (int i = 0; i < count; ++i) {
    row[i * step] = static_cast<std::uint8_t>((sum + width / 2) / width);
    sum += value(i + radius + 1) - value(i - radius);
  }
}

/// Three box blurs are as good as a bell curve. `channels` bytes make a pixel.
void blur_surface(cairo_surface_t* surface, int channels, int radius) {
  cairo_surface_flush(surface);
  std::uint8_t* data = cairo_image_surface_get_data(surface);
  const int width = cairo_image_surface_get_width(surface);
  const int height = cairo_image_surface_get_height(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  std::vector<std::uint8_t> copy;
  for (int pass = 0; pass < 3; ++pass) {
    for (int c = 0; c < channels; ++c) {
      for (int y = 0; y < height; ++y) {
        blur_row(data + y * stride + c, width, channels, radius, copy);
      }
      for (int x = 0; x < width; ++x) {
        blur_row(data + x * channels + c, height, stride, radius, copy);
      }
    }
  }
  cairo_surface_mark_dirty(surface);
}

int device_blur(const Canvas& canvas, double blur) {
  return std::max(1, static_cast<int>(std::lround(blur * canvas.density() * 0.6)));
}

/// The device pixels that the shape and its blur touch, as x, y, width and height.
struct DeviceBox {
  int x, y, width, height;
};

DeviceBox reach(const Canvas& canvas, const Path& path, int margin) {
  cairo_t* cr = canvas.cr();
  cairo_new_path(cr);
  path(cr);
  double x1, y1, x2, y2;
  cairo_fill_extents(cr, &x1, &y1, &x2, &y2);
  cairo_user_to_device(cr, &x1, &y1);
  cairo_user_to_device(cr, &x2, &y2);
  cairo_new_path(cr);
  const int left = static_cast<int>(std::floor(std::min(x1, x2))) - margin;
  const int top = static_cast<int>(std::floor(std::min(y1, y2))) - margin;
  return {left, top, static_cast<int>(std::ceil(std::max(x1, x2))) + margin - left,
          static_cast<int>(std::ceil(std::max(y1, y2))) + margin - top};
}

std::uint32_t scrambled(std::uint32_t h) {
  h ^= h >> 16;
  h *= 0x7FEB352Du;
  h ^= h >> 15;
  h *= 0x846CA68Bu;
  return h ^ (h >> 16);
}

}  // namespace

Point polar(Point centre, double radius, double degrees) {
  return {centre.x + radius * std::cos(radians(degrees)),
          centre.y + radius * std::sin(radians(degrees))};
}

void set_colour(const Canvas& canvas, Colour colour) {
  cairo_set_source_rgba(canvas.cr(), colour.red, colour.green, colour.blue, colour.alpha);
}

void set_linear(const Canvas& canvas, Point from, Point to, Stops stops) {
  set_pattern(canvas, cairo_pattern_create_linear(from.x, from.y, to.x, to.y), stops);
}

void set_slope(const Canvas& canvas, Box box, Stops stops) {
  const double share = box.width * box.height / (box.width * box.width + box.height * box.height);
  const Point by{box.height * share, box.width * share}, middle = box.centre();
  set_linear(canvas, middle - by, middle + by, stops);
}

void set_radial(const Canvas& canvas, Point focus, Point centre, double radius, Stops stops) {
  set_pattern(canvas, cairo_pattern_create_radial(focus.x, focus.y, 0, centre.x, centre.y, radius),
              stops);
}

Path rounded(Box box, double radius) {
  return [box, radius](cairo_t* cr) {
    const double r = std::min({radius, box.width / 2, box.height / 2});
    cairo_new_sub_path(cr);
    cairo_arc(cr, box.right() - r, box.y + r, r, -pi / 2, 0);
    cairo_arc(cr, box.right() - r, box.bottom() - r, r, 0, pi / 2);
    cairo_arc(cr, box.x + r, box.bottom() - r, r, pi / 2, pi);
    cairo_arc(cr, box.x + r, box.y + r, r, pi, 3 * pi / 2);
    cairo_close_path(cr);
  };
}

Path circle(Point centre, double radius) {
  return [centre, radius](cairo_t* cr) {
    cairo_new_sub_path(cr);
    cairo_arc(cr, centre.x, centre.y, radius, 0, 2 * pi);
    cairo_close_path(cr);
  };
}

Path polygon(std::span<const Point> corners) {
  return [points = std::vector<Point>(corners.begin(), corners.end())](cairo_t* cr) {
    cairo_new_sub_path(cr);
    for (const Point& p : points) cairo_line_to(cr, p.x, p.y);
    cairo_close_path(cr);
  };
}

Path capsule(Point from, Point to, double from_radius, double to_radius) {
  return [=](cairo_t* cr) {
    const double along = std::atan2(to.y - from.y, to.x - from.x);
    cairo_new_sub_path(cr);
    cairo_arc(cr, from.x, from.y, from_radius, along + pi / 2, along + 3 * pi / 2);
    cairo_arc(cr, to.x, to.y, to_radius, along - pi / 2, along + pi / 2);
    cairo_close_path(cr);
  };
}

void fill(const Canvas& canvas, const Path& path) {
  cairo_new_path(canvas.cr());
  path(canvas.cr());
  cairo_fill(canvas.cr());
}

void fill(const Canvas& canvas, const Path& path, Colour colour) {
  set_colour(canvas, colour);
  fill(canvas, path);
}

void stroke(const Canvas& canvas, const Path& path, double width) {
  cairo_set_line_width(canvas.cr(), width);
  cairo_new_path(canvas.cr());
  path(canvas.cr());
  cairo_stroke(canvas.cr());
}

void stroke(const Canvas& canvas, const Path& path, double width, Colour colour) {
  set_colour(canvas, colour);
  stroke(canvas, path, width);
}

void line(const Canvas& canvas, Point from, Point to, double width, Colour colour) {
  stroke(
      canvas,
      [=](cairo_t* cr) {
        cairo_move_to(cr, from.x, from.y);
        cairo_line_to(cr, to.x, to.y);
      },
      width, colour);
}

void level_mark(const Canvas& canvas, double from, double to, double y, double width, Colour colour) {
  const double height = std::max(canvas.hairline(), canvas.snapped(width));
  const double left = canvas.snapped(from);
  fill(canvas, rounded({left, canvas.snapped(y - height / 2), canvas.snapped(to) - left, height}, 0),
       colour);
}

void soft(const Canvas& canvas, const Path& path, Colour colour, double blur) {
  const int radius = device_blur(canvas, blur);
  const DeviceBox box = reach(canvas, path, 3 * radius + 1);
  cairo_surface_t* mask = cairo_image_surface_create(CAIRO_FORMAT_A8, box.width, box.height);
  cairo_t* cr = cairo_create(mask);
  cairo_matrix_t matrix;
  cairo_get_matrix(canvas.cr(), &matrix);
  cairo_translate(cr, -box.x, -box.y);
  cairo_transform(cr, &matrix);
  path(cr);
  cairo_fill(cr);
  cairo_destroy(cr);
  blur_surface(mask, 1, radius);
  const Saved saved(canvas);
  cairo_identity_matrix(canvas.cr());
  set_colour(canvas, colour);
  cairo_mask_surface(canvas.cr(), mask, box.x, box.y);
  cairo_surface_destroy(mask);
}

void cast_shadow(const Canvas& canvas, const Path& path, double height, double strength) {
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), height * 0.7, height);
  soft(canvas, path, faded(palette::black, strength), height * 0.8);
}

void haze(const Canvas& canvas, double blur, double strength, const std::function<void()>& draw) {
  const Saved saved(canvas);
  cairo_t* cr = canvas.cr();
  cairo_push_group(cr);
  draw();
  cairo_pattern_t* group = cairo_pop_group(cr);
  cairo_surface_t* surface = nullptr;
  cairo_pattern_get_surface(group, &surface);
  blur_surface(surface, 4, device_blur(canvas, blur));
  cairo_set_source(cr, group);
  cairo_paint_with_alpha(cr, strength);
  cairo_pattern_destroy(group);
}

double noise(std::uint32_t x, std::uint32_t y, std::uint32_t seed) {
  return scrambled(x * 0x9E3779B1u ^ scrambled(y * 0x85EBCA77u ^ scrambled(seed))) / 4294967296.0;
}

double clouds(double x, double y, double span, std::uint32_t seed) {
  const double u = x / span, v = y / span;
  const auto i = static_cast<std::uint32_t>(u), j = static_cast<std::uint32_t>(v);
  const double s = u - std::floor(u), t = v - std::floor(v);
  const double a = s * s * (3 - 2 * s), b = t * t * (3 - 2 * t);
  const double top = noise(i, j, seed) * (1 - a) + noise(i + 1, j, seed) * a;
  const double low = noise(i, j + 1, seed) * (1 - a) + noise(i + 1, j + 1, seed) * a;
  return top * (1 - b) + low * b;
}

}  // namespace artwork
