#include <algorithm>
#include <array>
#include <string_view>

#include "host/window/palette.h"
#include "host/window/ui_pictures.h"

namespace host {
namespace {

struct HelpRow {
  std::string_view keys;
  std::string_view action;  ///< empty: a heading
};

constexpr std::array rows{
    HelpRow{"Panels", ""},
    HelpRow{"1  2  3  4", "Captain, First officer, Overhead, Pedestal"},
    HelpRow{"5  6  7  8", "Throttle, Pushback, Utility, GPS"},
    HelpRow{"9", "Start page"},
    HelpRow{"T", "Tear off the panel under the pointer, or put it back"},
    HelpRow{"+  -  0", "Zoom in, zoom out, fit the window"},
    HelpRow{"F11", "Full screen"},
    HelpRow{"Controls", ""},
    HelpRow{"Click", "Work a switch, a button or a guard; hold to repeat"},
    HelpRow{"Right click", "The other way, or the test of a button"},
    HelpRow{"Wheel", "Turn a knob; elsewhere scroll"},
    HelpRow{"Drag", "Move a lever; elsewhere move the view"},
    HelpRow{"Flight", ""},
    HelpRow{"V", "View out of the window, above the captain's panel"},
    HelpRow{"D", "Panel lights: day and night"},
    HelpRow{"F5  F6", "Fuel levers of engines 1 and 2"},
    HelpRow{"P", "Pause"},
    HelpRow{"S  F12", "Save a picture of the screen"},
    HelpRow{"H  F1", "This page"},
    HelpRow{"Q  Esc", "Leave the cockpit"},
};

using namespace palette;

// The page is drawn in units of its own: 560 wide, as high as its rows.
constexpr double page_width = 560, row_height = 25, heading_gap = 12, top = 62, bottom = 22;

double page_height() {
  const auto headings =
      std::ranges::count_if(rows, [](const HelpRow& row) { return row.action.empty(); });
  return top + row_height * rows.size() + heading_gap * static_cast<double>(headings) + bottom;
}

// Keys stand apart by two blanks, each on its own cap.
void draw_keys(Sketch& sketch, std::string_view keys, double y, double unit) {
  double x = 28 * unit;
  while (!keys.empty()) {
    const std::size_t end = std::min(keys.find("  "), keys.size());
    const std::string key(keys.substr(0, end));
    keys.remove_prefix(std::min(keys.size(), end + 2));
    const double size = 16 * unit;
    const double width = std::max(21 * unit, Sketch::text_width(key, size, true) + 12 * unit);
    sketch.rounded_box(x, y + 1.5 * unit, width, 21 * unit, 4 * unit, key_face);
    sketch.box_outline(x, y + 1.5 * unit, width, 21 * unit, 4 * unit, unit, key_edge);
    sketch.text(key, x + (width - Sketch::text_width(key, size, true)) / 2, y + 4 * unit, size, true,
                ink);
    x += width + 5 * unit;
  }
}

}  // namespace

Overlay draw_help(int width, int height, double scale) {
  const double fitting = std::min(width * 0.96 / page_width, height * 0.96 / page_height());
  const double unit = std::max(0.4, std::min(scale, fitting));
  const double wide = page_width * unit, high = page_height() * unit;
  Sketch sketch(static_cast<int>(wide), static_cast<int>(high));
  sketch.rounded_box(0, 0, wide, high, 10 * unit, paper);
  sketch.box_outline(0, 0, wide, high, 10 * unit, unit, edge);
  sketch.text("Tarnvale", 28 * unit, 18 * unit, 30 * unit, true, ink);
  double y = top * unit;
  for (const HelpRow& row : rows) {
    if (row.action.empty()) {
      y += heading_gap * unit;
      sketch.text(std::string(row.keys), 28 * unit, y, 18 * unit, true, accent);
      sketch.line(28 * unit, y + 22 * unit, wide - 28 * unit, y + 22 * unit, unit, edge);
    } else {
      draw_keys(sketch, row.keys, y, unit);
      sketch.text(std::string(row.action), 170 * unit, y + 3 * unit, 18 * unit, false, ink);
    }
    y += row_height * unit;
  }
  return sketch.finish();
}

}  // namespace host
