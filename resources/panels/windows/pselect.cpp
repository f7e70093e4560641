/// Panel selector strip: small keys with the panels' short names, which shine at night.
#include "module/catalogue.h"
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::pselect {

struct Key {
  std::string_view area, word;
};

constexpr Key keys[] = {
    {"open_overhead_panel", "OVH"},        {"open_pedestal_panel", "PED"},
    {"open_throttle_panel", "THR"},        {"open_close_pushback_panel", "PSH"},
    {"open_first_officer_panel", "F/O"},   {"open_close_utility_panel", "UTL"},
    {"open_close_kneeboard_panel", "CHK"}, {"open_close_gps_panel", "GPS"},
};

/// Dark, lit. It covers the label plate that it shares with the pedestal.
void draw_strip(const Canvas& canvas, int image) {
  painted_plate(canvas);
  const Colour ink = image == 1 ? palette::filament : palette::legend;
  for (const Key& key : keys) {
    const Box box = part_box(tarnvale::pselect.header, key.area).grown(-0.7);
    label_key(canvas, box, 1.5);
    if (image == 1) soft(canvas, rounded(box.grown(-4), 2), faded(palette::filament_wash, 0.55), 2);
    print(canvas, box.centre(), key.word, {.size = 6.4, .colour = ink});
  }
  const Lettering words{.size = 9, .colour = ink};
  engraved_line(canvas, {104, 10}, {104, 46});
  if (image == 1) {
    print(canvas, {163, 20}, "PANELS", words);
    print(canvas, {163, 34}, "AND WINDOWS", {.size = 7.5, .colour = ink});
  } else {
    engrave(canvas, {163, 20}, "PANELS", words);
    engrave(canvas, {163, 34}, "AND WINDOWS", {.size = 7.5});
  }
  screw(canvas, {13, 28}, 3, 41);
  screw(canvas, {219, 28}, 3.2, 118);
  engrave(canvas, {50, 43}, "SELECT", {.size = 7, .colour = ink});
}

constexpr Art art[] = {drawn_art("selector_lighting", {229, 56}, draw_strip)};

constinit Unit unit{"Pselect", art};

}  // namespace artwork::panels::pselect
