#include "host/drawing/text.h"

#include <pango/pangocairo.h>
#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace host {
namespace {

constexpr double trial_size = 100;       // pixels; sizes are measured at it and then scaled
constexpr double segment_height = 0.78;  // of the box's height
constexpr double narrowest = 0.6;        // a text that needs more narrowing than this is clipped
constexpr std::size_t longest_shown = 256;
constexpr u32 segment_weight = 700;  // thin segments are lost on a small display

template <auto destroy>
struct Destroyer {
  template <typename Object>
  void operator()(Object* object) const {
    destroy(object);
  }
};
using SurfacePtr = std::unique_ptr<cairo_surface_t, Destroyer<cairo_surface_destroy>>;
using ContextPtr = std::unique_ptr<cairo_t, Destroyer<cairo_destroy>>;
using LayoutPtr = std::unique_ptr<PangoLayout, Destroyer<g_object_unref>>;
using FontPtr = std::unique_ptr<PangoFontDescription, Destroyer<pango_font_description_free>>;

bool is_segment_display(const char* font) { return ::strcasecmp(font, "quartz") == 0; }

FontPtr font_of(const StringPart& part) {
  const char* name = part.font == nullptr ? "" : part.font;
  const bool arial = ::strcasecmp(name, "arial") == 0;
  FontPtr font(pango_font_description_new());
  const bool segments = is_segment_display(name);
  const char* family = segments ? "DSEG14 Classic, DSEG7 Classic, monospace"
                       : arial  ? "B612, Liberation Sans, Arial, sans-serif"
                                : name;
  pango_font_description_set_family(font.get(), family);
  const u32 weight = segments ? segment_weight : std::clamp(part.weight, 100u, 900u);
  pango_font_description_set_weight(font.get(), static_cast<PangoWeight>(weight));
  return font;
}

// The same glyphs on every screen: smooth, and placed where the size puts them.
void steady_rendering(cairo_t* cr) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(cr, options);
  cairo_font_options_destroy(options);
}

void set_colour(cairo_t* cr, u32 colour) {
  cairo_set_source_rgb(cr, (colour & 255) / 255.0, (colour >> 8 & 255) / 255.0,
                       (colour >> 16 & 255) / 255.0);
}

// In the segment font a space is narrow and "!" is a place with all segments off; its zero has a
// stroke through it, its O has not.
char segment_letter(char letter) {
  if (letter == ' ') return '!';
  return letter == '0' ? 'O' : static_cast<char>(std::toupper(letter));
}

std::string display_text(std::string_view text, bool segments) {
  std::string shown;
  for (const char c : text.substr(0, longest_shown)) {
    const char letter = c >= ' ' && c <= '~' ? c : '?';
    shown += segments ? segment_letter(letter) : letter;
  }
  return shown;
}

struct Extent {
  double width;  // of one figure, with its share of space
  double top;    // of what has to stand in the middle of the box
  double height;
};

// In pixels at the layout's font size.
Extent extent(PangoLayout* layout, bool segments) {
  PangoRectangle ink, logical;
  pango_layout_set_text(layout, "8", 1);
  pango_layout_get_extents(layout, &ink, &logical);
  const PangoRectangle& tall = segments ? ink : logical;
  const auto pixels = [](int units) { return units / static_cast<double>(PANGO_SCALE); };
  return {pixels(logical.width), pixels(tall.y), std::max(1.0, pixels(tall.height))};
}

}  // namespace

// A figure of a segment display at one of its places, as wide as the display's figures are.
struct Cell {
  int first;  // column of the box
  int width;
  std::vector<std::uint32_t> pixels;
};

struct TextSetter::Setting {
  bool segments;
  SurfacePtr surface;
  ContextPtr cr;
  LayoutPtr layout;
  double top = 0;
  double figure_width = 0;
  PanelSize box;
  std::map<std::pair<char, std::size_t>, Cell> cells;  // by figure and place

  Setting(const StringPart& part, PanelSize size);
  void choose_size(FontPtr font, u32 longest);
  void clear();
  void draw(const std::string& text, double x = 0);
  bool is_row_of_cells(const std::string& text) const;
  const Cell& cell(char figure, std::size_t place);
  void draw_cells(const std::string& text);
  PixelView pixels() const;
};

TextSetter::Setting::Setting(const StringPart& part, PanelSize size)
    : segments(part.font != nullptr && is_segment_display(part.font)),
      surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height)),
      cr(cairo_create(surface.get())),
      layout(pango_cairo_create_layout(cr.get())),
      box(size) {
  steady_rendering(cr.get());
  pango_cairo_update_layout(cr.get(), layout.get());
  pango_layout_set_single_paragraph_mode(layout.get(), true);
  set_colour(cr.get(), part.foreground);
  choose_size(font_of(part), part.max_characters);
}

void TextSetter::Setting::choose_size(FontPtr font, u32 longest) {
  const auto use = [&](double pixels) {
    pango_font_description_set_absolute_size(font.get(), pixels * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font.get());
    return extent(layout.get(), segments);
  };
  const Extent trial = use(trial_size);
  const double high = box.height * (segments ? segment_height : 1.0) / trial.height;
  const double wide = box.width / std::max(1.0, trial.width * std::max(1u, longest));
  const Extent fitted = use(trial_size * std::clamp(wide, high * narrowest, high));
  top = (box.height - fitted.height) / 2 - fitted.top;
  figure_width = fitted.width;
}

TextSetter::TextSetter(const StringPart& part, PanelSize box)
    : setting_(std::make_unique<Setting>(part, box)) {}

TextSetter::~TextSetter() = default;

bool TextSetter::set(std::string_view text) {
  const std::string shown = display_text(text, setting_->segments);
  if (setting_->is_row_of_cells(shown))
    setting_->draw_cells(shown);
  else
    setting_->draw(shown);
  return text.find_first_not_of(' ') != std::string_view::npos;
}

void TextSetter::Setting::clear() {
  cairo_save(cr.get());
  cairo_set_operator(cr.get(), CAIRO_OPERATOR_CLEAR);
  cairo_paint(cr.get());
  cairo_restore(cr.get());
}

void TextSetter::Setting::draw(const std::string& text, double x) {
  clear();
  pango_layout_set_text(layout.get(), text.c_str(), static_cast<int>(text.size()));
  cairo_save(cr.get());
  int width = 0;
  pango_layout_get_size(layout.get(), &width, nullptr);
  const double room = static_cast<double>(box.width) * PANGO_SCALE / std::max(1, width);
  cairo_scale(cr.get(), std::clamp(room, narrowest, 1.0), 1);
  cairo_move_to(cr.get(), x, top);
  pango_cairo_show_layout(cr.get(), layout.get());
  cairo_restore(cr.get());
  cairo_surface_flush(surface.get());
}

// Figures and letters of segments are all equally wide, so that a display which counts is put together
// from cells that it has shown before; to set a text anew takes many times as long.
bool TextSetter::Setting::is_row_of_cells(const std::string& text) const {
  const auto fills_a_cell = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || c == '!';
  };
  return segments && std::ranges::all_of(text, fills_a_cell) &&
         figure_width * static_cast<double>(text.size()) <= box.width;
}

const Cell& TextSetter::Setting::cell(char figure, std::size_t place) {
  const auto known = cells.find({figure, place});
  if (known != cells.end()) return known->second;
  const double left = figure_width * static_cast<double>(place);
  draw(std::string(1, figure), left);
  const int first = static_cast<int>(left);
  const int end = std::min(box.width, static_cast<int>(std::ceil(left + figure_width)));
  Cell cell{first, end - first, {}};
  const PixelView drawn = pixels();
  for (int y = 0; y < box.height; ++y)
    cell.pixels.insert(cell.pixels.end(), drawn.at(first, y), drawn.at(first, y) + cell.width);
  return cells.emplace(std::pair{figure, place}, std::move(cell)).first->second;
}

void TextSetter::Setting::draw_cells(const std::string& text) {
  std::vector<const Cell*> row;
  for (std::size_t place = 0; place < text.size(); ++place) row.push_back(&cell(text[place], place));
  clear();
  cairo_surface_flush(surface.get());
  auto* data = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
  const Surface target{data, pixels().stride, 0, 0};
  for (const Cell* each : row)
    blend_pixels(target, {0, 0, box.width, box.height},
                 {each->pixels.data(), each->width, box.height, each->width}, each->first, 0);
  cairo_surface_mark_dirty(surface.get());
}

PixelView TextSetter::Setting::pixels() const {
  const auto* data =
      reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
  return {data, box.width, box.height,
          cairo_image_surface_get_stride(surface.get()) / static_cast<int>(sizeof *data)};
}

PixelView TextSetter::pixels() const { return setting_->pixels(); }

}  // namespace host
