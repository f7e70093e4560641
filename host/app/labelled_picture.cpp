#include "host/app/labelled_picture.h"

#include <algorithm>
#include <cmath>

#include "host/app/badge_places.h"
#include "host/panel/area_marks.h"
#include "host/panel/hints.h"
#include "host/panel/panel_scene.h"
#include "host/sketch/palette.h"
#include "host/window/compose.h"

namespace host {
namespace {

using namespace palette;

constexpr double leader_from = 4;       // pixels of distance from which a line leads to the badge
constexpr std::size_t most_texts = 30;  // lines that say what a control does; of more only the names

Color color_of(std::uint32_t rgb) {
  const auto part = [&](int shift) { return (rgb >> shift & 255) / 255.0; };
  return {part(16), part(8), part(0)};
}

std::string box_text(const Box& box) {
  return std::to_string(box.x) + "," + std::to_string(box.y) + "," + std::to_string(box.width) + "," +
         std::to_string(box.height);
}

// One line of the legend: a gauge's name, or an area with its number.
struct LegendLine {
  std::string number;  // empty: a gauge
  std::string words;
  std::string text;  // what it does, too
  std::string how;
  Color color = ink;
};

// The numbered areas of a window.
struct Areas {
  std::vector<Rect> boxes;
  std::vector<LegendLine> legend;
};

Areas areas_of(const Cockpit& cockpit, const PanelPicture& picture) {
  Areas all;
  const auto& gauges = cockpit.windows()[picture.window()].gauges;
  for (const PlacedGauge& placed : gauges) {
    const CockpitGauge& gauge = *placed.gauge;
    const std::vector<HotArea>& areas = gauge.areas.areas();
    if (!areas.empty() && gauges.size() > 1)
      all.legend.push_back({"", gauge.header().name, gauge.header().name, "", accent});
    for (std::size_t i = 0; i < areas.size(); ++i) {
      all.boxes.push_back(mark_place(areas[i].box, gauge.size, picture.place_of(gauge)));
      const std::string_view words = gauge.names.area_words(i);
      all.legend.push_back({std::to_string(all.boxes.size()),
                            words.empty() ? box_text(areas[i].box) : std::string(words),
                            words_of(gauge, areas[i]), way_to_work(areas[i]),
                            color_of(mark_color(areas[i]))});
    }
  }
  if (all.legend.size() > most_texts) return all;
  for (LegendLine& line : all.legend)
    if (!line.text.empty()) line.words = line.text;
  return all;
}

// Lines in columns from top to bottom, a gauge's name never the last of its column.
class Legend {
 public:
  Legend(const std::vector<LegendLine>& lines, int width, double scale)
      : lines_(lines), size_(16 * scale), gap_(8 * scale) {
    for (const LegendLine& line : lines_) {
      number_width_ = std::max(number_width_, text_width(line.number, true));
      words_width_ = std::max(words_width_, words_end(line));
    }
    columns_ = std::max(1, static_cast<int>(width / column_width()));
    rows_ = (static_cast<int>(lines_.size()) + columns_ - 1) / columns_;
    while (arrange() > columns_) ++rows_;
  }

  int width() const { return static_cast<int>(std::ceil(column_width())); }  // at least
  int height() const { return static_cast<int>(std::ceil(rows_ * line_height() + 2 * gap_)); }

  void draw(Sketch& sketch, double top) const {
    for (std::size_t i = 0; i < lines_.size(); ++i)
      draw_line(sketch, lines_[i], gap_ + places_[i].x * column_width(),
                top + gap_ + places_[i].y * line_height());
  }

 private:
  double column_width() const { return number_width_ + words_width_ + 4 * gap_; }
  double line_height() const { return size_ * 1.2; }
  double text_width(const std::string& text, bool bold) const {
    return text.empty() ? 0 : Sketch::text_width(text, size_, bold);
  }
  double words_end(const LegendLine& line) const {
    const double how = text_width(line.how, false);
    return text_width(line.words, line.number.empty()) + (how > 0 ? gap_ + how : 0);
  }

  // Returns how many columns it takes.
  int arrange() {
    places_.clear();
    PanelPoint at{0, 0};
    for (const LegendLine& line : lines_) {
      const bool last_row = at.y == rows_ - 1;
      if (at.y == rows_ || (line.number.empty() && last_row && rows_ > 1)) at = {at.x + 1, 0};
      places_.push_back(at);
      ++at.y;
    }
    return at.x + 1;
  }

  void draw_line(Sketch& sketch, const LegendLine& line, double x, double y) const {
    if (line.number.empty()) return sketch.text(line.words, x, y, size_, true, line.color);
    sketch.text(line.number, x + number_width_ - text_width(line.number, true), y, size_, true,
                line.color);
    const double words = x + number_width_ + gap_;
    sketch.text(line.words, words, y, size_, false, ink);
    if (!line.how.empty())
      sketch.text(line.how, words + text_width(line.words, false) + gap_, y, size_, false, soft_ink);
  }

  const std::vector<LegendLine>& lines_;
  double size_;
  double gap_;
  double number_width_ = 0;
  double words_width_ = 0;
  int columns_ = 1;
  int rows_ = 0;
  std::vector<PanelPoint> places_;  // column and row
};

// The numbers in the picture, each in the colour of its outline.
class Badges {
 public:
  Badges(const Areas& areas, const Canvas& picture, double scale) : boxes_(areas.boxes), scale_(scale) {
    std::vector<PanelSize> sizes;
    for (const LegendLine& line : areas.legend) {
      if (line.number.empty()) continue;
      lines_.push_back(&line);
      const double width = Sketch::text_width(line.number, size(), true) + 4 * scale_;
      sizes.push_back({static_cast<int>(std::ceil(width)), static_cast<int>(std::lround(size()))});
    }
    places_ = place_badges(boxes_, sizes, picture);
  }

  void draw(Sketch& sketch) const {
    for (std::size_t i = 0; i < places_.size(); ++i) draw_leader(sketch, i);
    for (std::size_t i = 0; i < places_.size(); ++i) {
      const Rect& place = places_[i];
      sketch.rounded_box(place.x, place.y, place.width, place.height, 3 * scale_, paper);
      sketch.text(lines_[i]->number, place.x + 2 * scale_, place.y, size(), true, lines_[i]->color);
    }
  }

 private:
  double size() const { return 14 * scale_; }

  // From the point of the box that is nearest to the badge's middle.
  void draw_leader(Sketch& sketch, std::size_t i) const {
    const Rect &box = boxes_[i], &badge = places_[i];
    const double x = badge.x + badge.width / 2.0, y = badge.y + badge.height / 2.0;
    const double to_x = std::clamp<double>(x, box.x, box.x + box.width);
    const double to_y = std::clamp<double>(y, box.y, box.y + box.height);
    const double away =
        std::max(std::abs(x - to_x) - badge.width / 2.0, std::abs(y - to_y) - badge.height / 2.0);
    if (away > leader_from) sketch.line(x, y, to_x, to_y, scale_, lines_[i]->color);
  }

  const std::vector<Rect>& boxes_;
  double scale_;
  std::vector<const LegendLine*> lines_;
  std::vector<Rect> places_;
};

}  // namespace

Canvas labelled_picture(const Cockpit& cockpit, const PanelPicture& picture) {
  const Canvas& panel = picture.canvas();
  const double scale = std::clamp((picture.zoom() + 1) / 2, 1.0, 3.0);
  const Areas areas = areas_of(cockpit, picture);
  const Legend legend(areas.legend, panel.width, scale);
  check_picture_size(std::max(panel.width, legend.width()), panel.height + legend.height());
  Sketch sketch(std::max(panel.width, legend.width()), panel.height + legend.height());
  Badges(areas, panel, scale).draw(sketch);
  legend.draw(sketch, panel.height);
  const Overlay overlay = sketch.finish();
  Canvas canvas(overlay.width, overlay.height);
  const Rect whole{0, 0, canvas.width, canvas.height};
  fill(canvas, whole, surround_color);
  copy_within(canvas, panel, 0, 0, whole);
  blend_within(canvas, overlay, 0, 0, whole);
  return canvas;
}

}  // namespace host
