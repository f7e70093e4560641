#include "resources/kit/legend.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace artwork {
namespace {

constexpr double capital = 0.7;  // height of the capitals in the font's size

struct Unref {
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
};
using Layout = std::unique_ptr<PangoLayout, Unref>;

/// Hinted to the device's pixels, so that small legends keep their stems.
void set_hinting(PangoLayout* layout) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
  pango_cairo_context_set_font_options(pango_layout_get_context(layout), options);
  cairo_font_options_destroy(options);
}

Layout layout_of(const Canvas& canvas, std::string_view text, const Lettering& lettering) {
  Layout layout(pango_cairo_create_layout(canvas.cr()));
  set_hinting(layout.get());
  PangoFontDescription* font = pango_font_description_new();
  pango_font_description_set_family(font, lettering.family);
  pango_font_description_set_weight(font, lettering.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_font_description_set_absolute_size(font, lettering.size * PANGO_SCALE);
  pango_layout_set_font_description(layout.get(), font);
  pango_font_description_free(font);
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
  return layout;
}

double width_of(PangoLayout* layout) {
  PangoRectangle logical;
  pango_layout_get_extents(layout, nullptr, &logical);
  return static_cast<double>(logical.width) / PANGO_SCALE;
}

/// The room that the line takes; its baseline and left edge are on the device grid.
Box print_line(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
               Anchor anchor) {
  const Layout layout = layout_of(canvas, text, lettering);
  const double width = width_of(layout.get());
  const double left = anchor == Anchor::left     ? at.x
                      : anchor == Anchor::centre ? at.x - width / 2
                                                 : at.x - width;
  const double baseline = canvas.snapped(at.y + lettering.size * capital / 2);
  const double ascent = static_cast<double>(pango_layout_get_baseline(layout.get())) / PANGO_SCALE;
  set_colour(canvas, lettering.colour);
  cairo_move_to(canvas.cr(), canvas.snapped(left), baseline - ascent);
  pango_cairo_show_layout(canvas.cr(), layout.get());
  const double height = lettering.size * capital;
  return {canvas.snapped(left), baseline - height, width, height};
}

/// A box of turned words as it lies on the whole picture.
Box on_picture(const Canvas& canvas, Box room) {
  double left = 1e9, top = 1e9, right = -1e9, bottom = -1e9;
  for (const Point corner : {Point{room.x, room.y}, Point{room.right(), room.y},
                             Point{room.x, room.bottom()}, Point{room.right(), room.bottom()}}) {
    double x = corner.x, y = corner.y;
    cairo_user_to_device(canvas.cr(), &x, &y);
    left = std::min(left, x), right = std::max(right, x);
    top = std::min(top, y), bottom = std::max(bottom, y);
  }
  const double scale = canvas.hairline();
  return {left * scale, top * scale, (right - left) * scale, (bottom - top) * scale};
}

template <class Draw>
void for_each_line(Point at, std::string_view text, const Lettering& lettering, Draw draw) {
  int lines = 1;
  for (const char c : text) lines += c == '\n';
  double y = at.y - (lines - 1) * line_pitch(lettering) / 2;
  for (std::size_t from = 0; from <= text.size(); y += line_pitch(lettering)) {
    const std::size_t to = std::min(text.find('\n', from), text.size());
    draw(Point{at.x, y}, text.substr(from, to - from));
    from = to + 1;
  }
}

}  // namespace

bool has_font(const char* family) {
  const Canvas canvas({1, 1}, 1, 0);
  const Layout layout = layout_of(canvas, "A", {.family = family});
  PangoContext* context = pango_layout_get_context(layout.get());
  PangoFont* font = pango_context_load_font(context, pango_layout_get_font_description(layout.get()));
  if (font == nullptr) return false;
  PangoFontDescription* found = pango_font_describe(font);
  const bool same = std::string_view(pango_font_description_get_family(found)) == family;
  pango_font_description_free(found);
  g_object_unref(font);
  return same;
}

TextExtent text_extent(const Canvas& canvas, std::string_view text, const Lettering& lettering) {
  double width = 0;
  int lines = 0;
  for_each_line({}, text, lettering, [&](Point, std::string_view row) {
    width = std::max(width, width_of(layout_of(canvas, row, lettering).get()));
    ++lines;
  });
  return {width, lettering.size * capital + (lines - 1) * line_pitch(lettering)};
}

void print(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
           Anchor anchor) {
  for_each_line(at, text, lettering, [&](Point place, std::string_view row) {
    canvas.note_words(on_picture(canvas, print_line(canvas, place, row, lettering, anchor)));
  });
}

void engrave(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
             Anchor anchor) {
  const double edge = canvas.hairline();
  const double strength = canvas.density() == 1 ? 0.6 : 1;
  const auto edging = [&](double by, Colour colour) {
    Lettering cut = lettering;
    cut.colour = colour;
    for_each_line(at + Point{by, by}, text, cut, [&](Point place, std::string_view row) {
      print_line(canvas, place, row, cut, anchor);
    });
  };
  edging(-edge, faded(palette::black, 0.6 * strength));
  edging(edge, faded(palette::white, 0.26 * strength));
  print(canvas, at, text, lettering, anchor);
}

}  // namespace artwork
