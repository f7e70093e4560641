/// Small pictures of the program's own: captions, notes, tooltips, the help page, cursors.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace host {

/// A picture with transparency, premultiplied ARGB, and where it stands in its window.
struct Overlay {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

struct Color {
  double red, green, blue, alpha = 1;
};

struct SketchPoint {
  double x, y;
};

/// A surface to draw on with the few strokes that the program's pictures need. All lengths are
/// pixels.
class Sketch {
 public:
  Sketch(int width, int height);

  void rounded_box(double x, double y, double width, double height, double radius, Color color);
  void box_outline(double x, double y, double width, double height, double radius, double line,
                   Color color);
  void line(double x0, double y0, double x1, double y1, double width, Color color);

  void circle(double x, double y, double radius, double line, Color color);
  void polyline(std::span<const SketchPoint> points, double width, Color color);
  void polygon(std::span<const SketchPoint> corners, Color color);

  /// What is drawn from now on stays within the box; end_clip() lifts that.
  void begin_clip(double x, double y, double width, double height, double radius);
  void end_clip();

  /// Text with its upper left corner at x,y; `size` is the height of its line box.
  void text(const std::string& text, double x, double y, double size, bool bold, Color color);

  /// What the text takes, without drawing it.
  static double text_width(const std::string& text, double size, bool bold);

  Overlay finish();

 private:
  cairo_t* context() const { return context_.get(); }
  void set(Color color);
  void path(double x, double y, double width, double height, double radius);
  void path(std::span<const SketchPoint> points);

  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
  std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context_;
};

}  // namespace host
