#include "host/pages/sheet.h"

#include <algorithm>
#include <cmath>

#include "host/panel/dusk.h"
#include "host/panel/text.h"

namespace host {
namespace {

constexpr SheetColors day{{0.95, 0.94, 0.90}, {0.10, 0.11, 0.13}, {0.38, 0.40, 0.43}, {0, 0, 0, 0.18},
                          {0.72, 0.35, 0.02}, {0.08, 0.45, 0.20}, {0.87, 0.86, 0.81}};
constexpr SheetColors night{{0.055, 0.06, 0.07}, {0.80, 0.76, 0.68}, {0.53, 0.52, 0.50},
                            {1, 1, 1, 0.15},     {0.92, 0.62, 0.20}, {0.38, 0.70, 0.42},
                            {0.14, 0.145, 0.16}};

double fitting_unit(const PageView& view) {
  return std::max(0.3, std::min({view.scale, double(view.size.width) / page_size.width,
                                 double(view.size.height) / page_size.height}));
}

}  // namespace

const SheetColors& sheet_colors(bool at_night) { return at_night ? night : day; }

Sheet::Sheet(PageKind kind, const PageView& view)
    : colors_(sheet_colors(is_dark(view.cockpit))),
      unit_(fitting_unit(view)),
      height_(view.size.height / unit_),
      sketch_(std::max(1, static_cast<int>(std::lround(width * unit_))), view.size.height) {
  const PageRow& row = page_table()[static_cast<std::size_t>(kind)];
  box(0, 0, width, height_, 0, colors_.paper);
  text(std::string(row.title), margin, 14, 30, colors_.ink, true);
  const double arm = 6, x = right() - arm, y = 30;
  line(x - arm, y - arm, x + arm, y + arm, 2, colors_.soft);
  line(x - arm, y + arm, x + arm, y - arm, 2, colors_.soft);
  text_right(std::string(row.key), x - 18, 20, 20, colors_.soft);
  spot(x - 20, 8, 44, 44, page_click::Close{});
  line(margin, 52, right(), 52, 1, colors_.line);
}

void Sheet::text(const std::string& words, double x, double y, double size, Color color, bool bold) {
  sketch_.text(words, x * unit_, y * unit_, size * unit_, bold, color);
}

void Sheet::text_right(const std::string& words, double x, double y, double size, Color color,
                       bool bold) {
  text(words, x - Sketch::text_width(words, size * unit_, bold) / unit_, y, size, color, bold);
}

void Sheet::text_middle(const std::string& words, double x, double y, double size, Color color,
                        bool bold) {
  text(words, x - Sketch::text_width(words, size * unit_, bold) / unit_ / 2, y, size, color, bold);
}

double Sheet::paragraph(const std::string& words, double x, double y, double wide, double size,
                        Color color) {
  std::string row;
  const auto end_row = [&] {
    text(row, x, y, size, color);
    y += size * 1.25;
  };
  for (const std::string_view word : split(words, ' ')) {
    const std::string longer = row + (row.empty() ? "" : " ") + std::string(word);
    if (!row.empty() && Sketch::text_width(longer, size * unit_, false) > wide * unit_) {
      end_row();
      row = word;
    } else {
      row = longer;
    }
  }
  end_row();
  return y;
}

void Sheet::heading(const std::string& words, double y) {
  text(words, margin, y, 18, colors_.accent, true);
  line(margin, y + 22, right(), y + 22, 1, colors_.line);
}

void Sheet::line(double x0, double y0, double x1, double y1, double thick, Color color) {
  sketch_.line(x0 * unit_, y0 * unit_, x1 * unit_, y1 * unit_, thick * unit_, color);
}

void Sheet::box(double x, double y, double wide, double high, double radius, Color color) {
  sketch_.rounded_box(x * unit_, y * unit_, wide * unit_, high * unit_, radius * unit_, color);
}

void Sheet::outline(double x, double y, double wide, double high, double radius, Color color) {
  sketch_.box_outline(x * unit_, y * unit_, wide * unit_, high * unit_, radius * unit_, unit_, color);
}

void Sheet::circle(double x, double y, double radius, double thick, Color color) {
  sketch_.circle(x * unit_, y * unit_, radius * unit_, thick * unit_, color);
}

void Sheet::scale_points(std::vector<SketchPoint>& points) const {
  for (SketchPoint& point : points) point = {point.x * unit_, point.y * unit_};
}

void Sheet::polyline(std::vector<SketchPoint> points, double thick, Color color) {
  scale_points(points);
  sketch_.polyline(points, thick * unit_, color);
}

void Sheet::polygon(std::vector<SketchPoint> corners, Color color) {
  scale_points(corners);
  sketch_.polygon(corners, color);
}

void Sheet::begin_clip(double x, double y, double wide, double high) {
  sketch_.begin_clip(x * unit_, y * unit_, wide * unit_, high * unit_, 4 * unit_);
}

void Sheet::tick_box(double x, double y, double size, bool ticked) {
  outline(x, y, size, size, 3, ticked ? colors_.done : colors_.soft);
  if (!ticked) return;
  polyline({{x + 0.22 * size, y + 0.52 * size},
            {x + 0.42 * size, y + 0.74 * size},
            {x + 0.80 * size, y + 0.24 * size}},
           2.2, colors_.done);
}

void Sheet::button(const std::string& words, double x, double y, double wide, bool chosen,
                   PageClick click) {
  box(x, y, wide, 26, 4, chosen ? colors_.accent : colors_.face);
  text_middle(words, x + wide / 2, y + 4, 17, chosen ? colors_.paper : colors_.ink, chosen);
  spot(x, y, wide, 26, std::move(click));
}

void Sheet::spot(double x, double y, double wide, double high, PageClick click) {
  const auto pixels = [&](double length) { return static_cast<int>(std::lround(length * unit_)); };
  spots_.push_back({{pixels(x), pixels(y), pixels(wide), pixels(high)}, std::move(click)});
}

DrawnPage Sheet::finish() { return {sketch_.finish(), std::move(spots_)}; }

}  // namespace host
