#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "host/sketch/palette.h"
#include "host/window/ui_pictures.h"

namespace host {
namespace {

struct HelpRow {
  std::string_view keys;
  std::string_view action;  ///< empty: a heading
};

constexpr std::array cockpit_rows{
    HelpRow{"Panels", ""},
    HelpRow{"1  2  3  4", "Captain, First officer, Overhead, Pedestal"},
    HelpRow{"5  6  7  8", "Throttle, Pushback, Utility, GPS"},
    HelpRow{"9", "Start page; with Shift a panel opens beside the others"},
    HelpRow{"T", "Tear off the panel under the pointer, or put it back"},
    HelpRow{"+  -  0", "Zoom in, zoom out, fit; Ctrl with the wheel, too"},
    HelpRow{"Ctrl PgUp  PgDn", "Scroll; Ctrl with Home and End sideways"},
    HelpRow{"F11", "Full screen"},
    HelpRow{"Pages beside the panels", ""},
    HelpRow{"K  N  R", "Kneeboard with checklists, map, radio"},
    HelpRow{"W  F", "GPS, failures"},
    HelpRow{"Controls", ""},
    HelpRow{"Click", "Work a switch, a button or a guard; hold to repeat"},
    HelpRow{"Right click", "The other way, or the test of a button"},
    HelpRow{"Wheel", "Turn a knob or selector; elsewhere scroll"},
    HelpRow{"Drag", "Move a throttle; elsewhere move the view"},
    HelpRow{"Flight", ""},
    HelpRow{"V", "View out of the window, above the captain's panel"},
    HelpRow{"D", "Panel lights: day and night"},
    HelpRow{"P", "Pause: look at everything, work nothing"},
    HelpRow{"S  F12", "Save a picture of the window"},
    HelpRow{"H  F1", "This page"},
    HelpRow{"F10", "Menu; a right click beside the controls, too"},
    HelpRow{"Esc", "Back: out of a page, out of full screen; then the menu"},
    HelpRow{"Q", "Leave; tarnvale fly --resume goes on with the flight"},
};

// As the file of controls beside the program has them.
constexpr std::array flying_rows{
    HelpRow{"Flying by hand", ""},
    HelpRow{"Arrows  8 2 4 6", "Stick; keypad 5 or Backspace centres it"},
    HelpRow{"M", "The mouse is the stick, its wheel the throttles"},
    HelpRow{"Z  X  Pad 0 Enter", "Pedals"},
    HelpRow{"Ins  Del  Ctrl ← →", "Tiller"},
    HelpRow{"PgUp  PgDn  F3  F2", "Throttles; F4 full, Shift+F2 idle"},
    HelpRow{"Home  End  7  1", "Trim nose down, nose up"},
    HelpRow{"Space  .", "Brakes; with Ctrl the parking brake"},
    HelpRow{"U  I  F7  F8", "Flaps a detent up, down"},
    HelpRow{"G", "Gear"},
    HelpRow{"B  Shift+B", "Speed brake, lift dumpers"},
    HelpRow{"Shift+Arrows", "Look to the side, up and down"},
    HelpRow{"J", "What joysticks and keys do, live"},
};

using namespace palette;

// The page is drawn in units of its own: two columns, as high as the rows of the first.
constexpr double column_width = 540, row_height = 25, heading_gap = 12, top = 62, bottom = 22;

double page_height() {
  const auto headings =
      std::ranges::count_if(cockpit_rows, [](const HelpRow& row) { return row.action.empty(); });
  return top + row_height * cockpit_rows.size() + heading_gap * static_cast<double>(headings) + bottom;
}

// Keys stand apart by two blanks, each on its own cap.
void draw_keys(Sketch& sketch, std::string_view keys, double x, double y, double unit) {
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

void draw_column(Sketch& sketch, std::span<const HelpRow> rows, double x, double width_of_keys,
                 double unit) {
  double y = top * unit;
  for (const HelpRow& row : rows) {
    if (row.action.empty()) {
      y += heading_gap * unit;
      sketch.text(std::string(row.keys), x, y, 18 * unit, true, accent);
      sketch.line(x, y + 22 * unit, x + (column_width - 56) * unit, y + 22 * unit, unit, edge);
    } else {
      draw_keys(sketch, row.keys, x, y, unit);
      sketch.text(std::string(row.action), x + width_of_keys * unit, y + 3 * unit, 18 * unit, false,
                  ink);
    }
    y += row_height * unit;
  }
}

}  // namespace

Overlay draw_help(int width, int height, double scale) {
  const double fitting = std::min(width * 0.96 / (2 * column_width), height * 0.96 / page_height());
  const double unit = std::max(0.4, std::min(scale, fitting));
  const double wide = 2 * column_width * unit, high = page_height() * unit;
  Sketch sketch(static_cast<int>(wide), static_cast<int>(high));
  sketch.rounded_box(0, 0, wide, high, 10 * unit, paper);
  sketch.box_outline(0, 0, wide, high, 10 * unit, unit, edge);
  sketch.text("Tarnvale", 28 * unit, 18 * unit, 30 * unit, true, ink);
  draw_column(sketch, cockpit_rows, 28 * unit, 142, unit);
  draw_column(sketch, flying_rows, (28 + column_width) * unit, 190, unit);
  return sketch.finish();
}

}  // namespace host
