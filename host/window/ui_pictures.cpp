#include "host/window/ui_pictures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/panel/text.h"
#include "host/sketch/palette.h"

namespace host {
namespace {

using namespace palette;

int pixels(double length) { return std::max(1, static_cast<int>(std::lround(length))); }

double button_width(double scale) { return 24 * scale; }

// Words that fit a width, line by line.
std::vector<std::string> wrapped(const std::string& text, double size, double width) {
  std::vector<std::string> lines;
  for (std::string_view paragraph : split(text, '\n')) {
    lines.emplace_back();
    for (std::string_view word : split(paragraph, ' ')) {
      std::string& line = lines.back();
      const std::string longer = line + (line.empty() ? "" : " ") + std::string(word);
      if (!line.empty() && Sketch::text_width(longer, size, false) > width)
        lines.emplace_back(word);
      else
        line = longer;
    }
  }
  return lines;
}

struct Line {
  std::string text;
  double size;
  Color color;
  bool bold = false;
};

constexpr double line_spacing = 1.15;

Overlay draw_card(const std::vector<Line>& lines, double padding, double scale) {
  double widest = 0, tall = 0;
  for (const Line& line : lines) {
    widest = std::max(widest, Sketch::text_width(line.text, line.size, line.bold));
    tall += line.size * line_spacing;
  }
  const int width = pixels(widest + 2 * padding), height = pixels(tall + 2 * padding * 0.7);
  Sketch sketch(width, height);
  sketch.rounded_box(0, 0, width, height, 5 * scale, paper);
  sketch.box_outline(0, 0, width, height, 5 * scale, scale, edge);
  double y = padding * 0.7;
  for (const Line& line : lines) {
    sketch.text(line.text, padding, y, line.size, line.bold, line.color);
    y += line.size * line_spacing;
  }
  return sketch.finish();
}

// A window with an arrow out of it, and a cross, at the right end of a caption.
void draw_caption_buttons(Sketch& sketch, int width, int height, double scale, const Color& face) {
  const double middle = height / 2.0, arm = 4 * scale, line = 1.5 * scale;
  const double close = width - button_width(scale) / 2, tear = close - button_width(scale);
  sketch.rounded_box(width - 2 * button_width(scale), scale, 2 * button_width(scale) - scale,
                     height - 3 * scale, 0.5, face);  // over the end of a long title
  sketch.line(close - arm, middle - arm, close + arm, middle + arm, line, soft_ink);
  sketch.line(close - arm, middle + arm, close + arm, middle - arm, line, soft_ink);
  sketch.box_outline(tear - arm - scale, middle - scale, arm * 1.6, arm * 1.4, 0.5, line, soft_ink);
  const double tip_x = tear + arm + scale, tip_y = middle - arm - scale;
  sketch.line(tear, middle, tip_x, tip_y, line, soft_ink);
  sketch.line(tear + scale, tip_y, tip_x, tip_y, line, soft_ink);
  sketch.line(tip_x, tip_y, tip_x, middle - scale, line, soft_ink);
}

}  // namespace

int caption_height(double scale) { return pixels(22 * scale); }

double caption_width(const std::string& title, const std::string& key, double scale) {
  const double letter = 0.75 * caption_height(scale);
  return (key.empty() ? 16 : 26) * scale + Sketch::text_width(title, letter, true) +
         Sketch::text_width(key, letter, false) + 2 * button_width(scale);
}

Overlay draw_caption(const std::string& title, const std::string& key, int width, double scale,
                     bool in_work) {
  const int height = caption_height(scale);
  const Color face = in_work ? key_face : strip;
  Sketch sketch(std::max(width, 1), height);
  sketch.rounded_box(0.5 * scale, 0, width - scale, height * 1.5, 4 * scale, face);
  if (in_work) sketch.line(scale, height - scale, width - scale, height - scale, 2 * scale, accent);
  sketch.text(title, 8 * scale, 0, 0.75 * height, true, in_work ? ink : soft_ink);
  if (!key.empty())
    sketch.text(key, 14 * scale + Sketch::text_width(title, 0.75 * height, true), 0, 0.75 * height,
                false, soft_ink);
  draw_caption_buttons(sketch, width, height, scale, face);
  return sketch.finish();
}

CaptionPart caption_part(int x, int width, double scale) {
  if (x >= width - button_width(scale)) return CaptionPart::close;
  if (x >= width - 2 * button_width(scale)) return CaptionPart::tear;
  return CaptionPart::none;
}

Overlay draw_tooltip(const Hint& hint, double scale) {
  const double heading = 16 * scale, small = 14 * scale;
  const std::size_t colon = hint.words.find(": ");
  std::vector<Line> lines;
  if (hint.refused) {
    lines.push_back({hint.words, heading, accent});
  } else if (colon == std::string::npos) {
    lines.push_back({hint.words, heading, ink});
  } else {
    lines.push_back({hint.words.substr(0, colon), heading, ink, true});
    lines.push_back({hint.words.substr(colon + 2), heading, ink});
  }
  if (!hint.how.empty()) lines.push_back({hint.how, small, soft_ink});
  return draw_card(lines, 8 * scale, scale);
}

Overlay draw_note(const std::string& text, int width, double scale) {
  const double size = 17 * scale, padding = 12 * scale;
  std::vector<Line> lines;
  for (const std::string& line : wrapped(text, size, width - 2 * padding))
    lines.push_back({line, size, ink});
  return draw_card(lines, padding, scale);
}

Overlay draw_badge(const std::string& text, double scale) {
  return draw_card({{text, 20 * scale, accent, true}}, 14 * scale, scale);
}

Overlay draw_mark(const Rect& place, double scale) {
  const int around = pixels(6 * scale);
  const int width = place.width + 2 * around, height = place.height + 2 * around;
  Sketch sketch(width, height);
  sketch.box_outline(0, 0, width, height, 7 * scale, 6 * scale, {0, 0, 0, 0.55});
  sketch.box_outline(1.5 * scale, 1.5 * scale, width - 3 * scale, height - 3 * scale, 6 * scale,
                     3 * scale, accent);
  Overlay overlay = sketch.finish();
  overlay.x = place.x - around;
  overlay.y = place.y - around;
  return overlay;
}

Overlay draw_turn_cursor(bool increase, double scale) {
  const int size = pixels(24 * scale);
  const double middle = size / 2.0, radius = 9 * scale, arm = 4.5 * scale;
  Sketch sketch(size, size);
  const double corner = middle - radius, side = 2 * radius;
  sketch.rounded_box(corner, corner, side, side, radius, {0, 0, 0, 0.65});
  sketch.box_outline(corner, corner, side, side, radius - scale, 1.5 * scale, ink);
  sketch.line(middle - arm, middle, middle + arm, middle, 2 * scale, ink);
  if (increase) sketch.line(middle, middle - arm, middle, middle + arm, 2 * scale, ink);
  return sketch.finish();
}

Overlay draw_icon(int size) {
  const double s = size, middle = s / 2;
  Sketch sketch(size, size);
  sketch.rounded_box(0, 0, s, s, s * 0.18, {0.20, 0.22, 0.24});
  sketch.rounded_box(s * 0.1, s * 0.1, s * 0.8, s * 0.8, s * 0.4, {0.04, 0.04, 0.05});
  for (int mark = 0; mark <= 8; ++mark) {
    const double angle = (-225 + mark * 33.75) * std::numbers::pi / 180;
    const double x = std::cos(angle), y = std::sin(angle);
    sketch.line(middle + x * s * 0.27, middle + y * s * 0.27, middle + x * s * 0.34,
                middle + y * s * 0.34, s * 0.035, ink);
  }
  sketch.line(middle, middle, s * 0.67, s * 0.33, s * 0.06, accent);
  return sketch.finish();
}

}  // namespace host
