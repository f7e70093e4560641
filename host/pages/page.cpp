#include "host/pages/page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace host {

const std::vector<PageRow>& page_table() {
  static const std::vector<PageRow> rows{
      {PageKind::kneeboard, "kneeboard", "Kneeboard", "K"},
      {PageKind::map, "map", "Map", "N"},
      {PageKind::radio, "atc", "Radio", "R"},
      {PageKind::gps, "gps", "GPS", "W"},
      {PageKind::failures, "failures", "Failures", "F"},
  };
  return rows;
}

const PageRow* find_page(std::string_view name) {
  const auto found = std::ranges::find(page_table(), name, &PageRow::name);
  return found != page_table().end() ? &*found : nullptr;
}

const PageSpot* DrawnPage::at(int x, int y) const {
  const auto under = [&](const PageSpot& spot) {
    return x >= spot.place.x && x < spot.place.x + spot.place.width && y >= spot.place.y &&
           y < spot.place.y + spot.place.height;
  };
  const auto found = std::find_if(spots.rbegin(), spots.rend(), under);
  return found != spots.rend() ? &*found : nullptr;
}

DrawnPage draw_page(PageKind kind, const PageView& view) {
  constexpr std::array draw{draw_kneeboard, draw_map, draw_radio_page, draw_gps, draw_failures};
  return draw[static_cast<std::size_t>(kind)](view);
}

Canvas picture_of_page(std::string_view name, const Cockpit& cockpit,
                       const std::vector<Checklist>& lists, double zoom) {
  const PageRow* row = find_page(name);
  if (!row) throw std::runtime_error("there is no page " + std::string(name));
  const auto pixels = [&](int length) { return static_cast<int>(std::lround(length * zoom)); };
  const PageChoices choices;
  const DrawnPage page = draw_page(
      row->kind, {cockpit, lists, choices, {pixels(page_size.width), pixels(page_size.height)}, zoom});
  Canvas canvas(page.picture.width, page.picture.height);
  canvas.pixels = page.picture.pixels;
  return canvas;
}

}  // namespace host
