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

/// Dark, lit: a black panel over the label plate that it shares with the pedestal, so that by night nothing
/// but the words shines.
void draw_strip(const Canvas& canvas, int image) {
  const bool lit = image == 1;
  const Colour ink = lit ? palette::filament : palette::legend;
  label_key(canvas, whole(canvas.size()).grown(-2), 4);
  for (const Key& key : keys) {
    const Box box = part_box(tarnvale::pselect.header, key.area).grown(-0.7);
    set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()},
               {{0, palette::mould_light}, {1, palette::mould}});
    fill(canvas, rounded(box, 1.5));
    if (lit) soft(canvas, rounded(box.grown(-4), 2), faded(palette::filament_wash, 0.55), 2);
    print(canvas, box.centre(), key.word, {.size = 6.4, .colour = ink});
  }
  line(canvas, {104, 12}, {104, 44}, 0.8, faded(ink, 0.6));
  print(canvas, {163, 21}, "PANELS", {.size = 9, .colour = ink});
  print(canvas, {163, 35}, "AND WINDOWS", {.size = 7.5, .colour = ink});
  print(canvas, {50, 43}, "SELECT", {.size = 7, .colour = ink});
}

constexpr Art art[] = {drawn_art("selector_lighting", {229, 56}, draw_strip)};

constinit Unit unit{"Pselect", art};

}  // namespace artwork::panels::pselect
