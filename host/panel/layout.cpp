#include "host/panel/layout.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

// Sizes along and across the lines: a line is a row, or a column with x and y exchanged.
struct Frame {
  double along;
  double across;
  double caption_along;  // a caption lies above each window: across a row, along a column
  double caption_across;
  double gap;
};

struct Line {
  std::size_t first;
  std::size_t count;
};

struct Extent {
  double along = 0;
  double across = 0;
};

double along_of(PanelSize size, bool rows) { return rows ? size.width : size.height; }
double across_of(PanelSize size, bool rows) { return rows ? size.height : size.width; }

Frame frame_of(const LayoutArea& area, bool rows) {
  const double width = area.width, height = area.height, caption = area.caption, gap = area.gap;
  return rows ? Frame{width, height, 0, caption, gap} : Frame{height, width, caption, 0, gap};
}

// Up to here every way to part the windows is tried.
constexpr std::size_t most_parted = 12;

// Bit i of the mask starts a new line after window i.
std::vector<Line> lines_of(std::size_t count, unsigned mask) {
  std::vector<Line> lines{{0, 1}};
  for (std::size_t i = 1; i < count; ++i) {
    if (mask >> (i - 1) & 1u)
      lines.push_back({i, 1});
    else
      ++lines.back().count;
  }
  return lines;
}

// Of more windows than that, lines of one length.
std::vector<Line> even_lines(std::size_t count, std::size_t length) {
  std::vector<Line> lines;
  for (std::size_t i = 0; i < count; i += length) lines.push_back({i, std::min(length, count - i)});
  return lines;
}

std::vector<std::vector<Line>> ways_to_part(std::size_t count) {
  std::vector<std::vector<Line>> ways;
  if (count > most_parted) {
    for (std::size_t length = 1; length <= count; ++length) ways.push_back(even_lines(count, length));
  } else {
    for (unsigned mask = 0; mask < 1u << (count - 1); ++mask) ways.push_back(lines_of(count, mask));
  }
  return ways;
}

Extent extent_of(std::span<const PanelSize> sizes, const Line& line, bool rows) {
  Extent extent;
  for (PanelSize size : sizes.subspan(line.first, line.count)) {
    extent.along += along_of(size, rows);
    extent.across = std::max(extent.across, across_of(size, rows));
  }
  return extent;
}

double zoom_of(std::span<const PanelSize> sizes, const std::vector<Line>& lines, bool rows,
               const Frame& frame) {
  double across = 0, zoom = 1e9;
  for (const Line& line : lines) {
    const Extent extent = extent_of(sizes, line, rows);
    const auto count = static_cast<double>(line.count);
    const double room = frame.along - frame.gap * (count + 1) - frame.caption_along * count;
    zoom = std::min(zoom, room / extent.along);
    across += extent.across;
  }
  const auto count = static_cast<double>(lines.size());
  const double room = frame.across - frame.gap * (count + 1) - frame.caption_across * count;
  return std::min(zoom, room / across);
}

struct Choice {
  std::vector<Line> lines;
  bool rows = true;
  double zoom = -1e9;
};

Choice best_choice(std::span<const PanelSize> sizes, const LayoutArea& area) {
  Choice best;
  const auto ways = ways_to_part(sizes.size());
  for (const bool rows : {true, false})
    for (const std::vector<Line>& lines : ways) {
      const double zoom = zoom_of(sizes, lines, rows, frame_of(area, rows));
      if (zoom > best.zoom + 1e-9) best = {lines, rows, zoom};
    }
  return best;
}

// Lines are centred in the area, and each window in its line's breadth.
class Placer {
 public:
  Placer(std::span<const PanelSize> sizes, const Choice& choice, const LayoutArea& area, double zoom)
      : sizes_(sizes), choice_(choice), frame_(frame_of(area, choice.rows)), zoom_(zoom) {}

  Layout place() {
    Layout layout;
    layout.zoom = zoom_;
    const Extent all = whole();
    const double along = std::max(frame_.along, all.along);
    double across = std::max(0.0, (frame_.across - all.across) / 2) + frame_.gap;
    for (const Line& line : choice_.lines) across = place_line(layout, line, along, across);
    const double total = std::max(frame_.across, all.across);
    layout.width = static_cast<int>(std::lround(choice_.rows ? along : total));
    layout.height = static_cast<int>(std::lround(choice_.rows ? total : along));
    return layout;
  }

 private:
  double length(const Line& line) const {
    const auto count = static_cast<double>(line.count);
    return extent_of(sizes_, line, choice_.rows).along * zoom_ + frame_.caption_along * count +
           frame_.gap * (count + 1);
  }

  double breadth(const Line& line) const {
    return extent_of(sizes_, line, choice_.rows).across * zoom_ + frame_.caption_across;
  }

  Extent whole() const {
    Extent all{0, frame_.gap};
    for (const Line& line : choice_.lines) {
      all.along = std::max(all.along, length(line));
      all.across += breadth(line) + frame_.gap;
    }
    return all;
  }

  double place_line(Layout& layout, const Line& line, double room, double across) {
    double along = (room - length(line)) / 2 + frame_.gap;
    for (std::size_t i = line.first; i < line.first + line.count; ++i) {
      const PanelSize size = sizes_[i];
      const double spare =
          breadth(line) - frame_.caption_across - across_of(size, choice_.rows) * zoom_;
      along += frame_.caption_along;
      add(layout, size, along, across + frame_.caption_across + spare / 2);
      along += along_of(size, choice_.rows) * zoom_ + frame_.gap;
    }
    return across + breadth(line) + frame_.gap;
  }

  void add(Layout& layout, PanelSize size, double along, double across) const {
    const auto whole_pixel = [](double value) { return static_cast<int>(std::lround(value)); };
    layout.places.push_back(
        {whole_pixel(choice_.rows ? along : across), whole_pixel(choice_.rows ? across : along),
         std::max(1, whole_pixel(size.width * zoom_)), std::max(1, whole_pixel(size.height * zoom_))});
  }

  std::span<const PanelSize> sizes_;
  const Choice& choice_;
  Frame frame_;
  double zoom_;
};

// Just above a whole number the artwork's own pixels look better than a few per cent more of them.
double fitting(double zoom, double most) {
  const double whole = std::floor(zoom);
  if (whole >= 1 && zoom < whole * 1.08) zoom = whole;
  return std::clamp(zoom, 0.1, most);
}

}  // namespace

Layout arrange(std::span<const PanelSize> sizes, const LayoutArea& area, std::optional<double> zoom,
               double most) {
  if (sizes.empty()) return {zoom.value_or(1.0), area.width, area.height, {}};
  const Choice choice = best_choice(sizes, area);
  const double chosen = zoom.value_or(fitting(choice.zoom, most));
  return Placer(sizes, choice, area, chosen).place();
}

}  // namespace host
