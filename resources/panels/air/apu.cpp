/// The auxiliary power unit: its control panel, its instruments and its running light.
#include "resources/kit/dial.h"
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Apu";
constexpr Point pivot{7, 2};
constexpr double needle_length = 26;
constexpr double radius = 36;
constexpr double rim = 30.4;

void draw_lights(const Canvas& canvas) {
  constexpr std::string_view names[] = {"TEST", "LO SPD", "ARMED"};
  for (int nth = 0; nth < 3; ++nth) {
    const Point at = part_box(panel, 2110, nth).centre();
    engrave(canvas, {at.x, nth == 2 ? hub_of(panel, 2130).y - 27 : at.y + 17}, names[nth]);
  }
}

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  fit_parts(canvas, panel);
  const Box plate = whole(canvas.size());
  screw(canvas, {8, plate.height - 8}, 3.4, 12);
  screw(canvas, {plate.width - 8, 8}, 3.4, 57);
  const Point generator = hub_of(panel, 2080), master = hub_of(panel, 2130, 1);
  const Point bleed = hub_of(panel, 2130, 0);
  engrave(canvas, {generator.x, master.y - 27}, "GEN");
  lever_words(canvas, generator, {.up = "ON", .down = "TEST", .centre = "OFF", .aside = 11});
  engrave(canvas, {master.x, master.y - 27}, "MASTER");
  engrave(canvas, {bleed.x, bleed.y - 27}, "BLEED");
  lever_words(canvas, {(master.x + bleed.x) / 2 - 7, master.y}, {.aside = 0});
  const Box start = part_box(panel, 2070);
  engrave(canvas, {start.centre().x, start.bottom() + 6}, "START");
  draw_lights(canvas);
  engrave(canvas, {82, 8}, "AUX POWER UNIT", {.size = heading_size});
}

void draw_start_button(Canvas& canvas, int image) {
  round_light(canvas, whole(canvas.size()).centre(), 8.4, palette::lamp_green, image == 1);
}

/// The speed's full power is at 1250 units; the temperature's units are half degrees.
void print_speed(const Scale& scale) {
  scale.band({1187.5, 1312.5, rim - 1.3, 2.6, palette::range_green});
  scale.band({1375, 1500, rim - 1.3, 2.6, palette::range_red});
  scale.marks({0, 1250, 125, rim - 5, rim, 1.3});
  scale.marks({1250, 1500, 62.5, rim - 4, rim, 1});
  scale.numerals({{0, "0", -20}, {500, "40"}, {1000, "80"}, {1250, "100"}}, rim - 6, 8.5);
}

void print_temperature(const Scale& scale) {
  scale.band({400, 1290, rim - 1.3, 2.6, palette::range_green});
  scale.band({1400, 1500, rim - 1.3, 2.6, palette::range_red});
  scale.marks({0, 1400, 200, rim - 5, rim, 1.3});
  scale.marks({0, 1500, 100, rim - 3, rim, 0.7});
  scale.numerals({{0, "0", -20}, {400, "2"}, {800, "4"}, {1200, "6"}, {1400, "7"}}, rim - 6, 8.5);
}

void draw_dial(const Canvas& canvas, int nth, Lighting lighting) {
  const Dial d{place("Apuins", 470, nth), radius};
  const bool speed = nth == 0;
  meter(canvas, d, lighting, [&](Colour ink) {
    const Scale scale(canvas, part("Apuins", 470, nth), ink);
    speed ? print_speed(scale) : print_temperature(scale);
    print(canvas, d.centre + Point{4, 16.5}, speed ? "APU" : "EGT", {.size = 8, .colour = ink});
    print(canvas, d.centre + Point{1, 25.3}, speed ? "% RPM" : "\u00b0C\u00d7100",
          {.size = 7, .colour = ink});
  });
}

void draw_instruments(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  for (const double x : {6.5, plate.width - 6.5}) screw(canvas, {x, plate.height / 2}, 2.8, 9 * x);
  for (int nth = 0; nth < 2; ++nth) draw_dial(canvas, nth, lighting);
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = pivot, .length = needle_length, .tail = 7, .half_width = 1.6});
}

void draw_running_plate(Canvas& canvas, int) { painted_plate(canvas); }

void draw_running_light(Canvas& canvas, int image) {
  const Box frame = whole(canvas.size()).grown(-1);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, frame.grown(-1.6), {palette::lamp_green, "APU", 7}, image == 1);
}

constexpr Art art[] = {
    background(240, draw_plate, "APU control panel"),
    background(460, plate_by_day<draw_instruments>, "APU instruments"),
    {470, 1, needle_size(pivot, needle_length), draw_needle, "APU needle"},
    lighting_overlay(480, 460, plate_lit<draw_instruments>, "APU instruments lit"),
    {2070, 2, {18, 18}, draw_start_button, "APU start button: dark, lit"},
    background(13360, draw_running_plate, "APU running light's plate"),
    {13370, 2, {23, 23}, draw_running_light, "APU running light: dark, lit"},
};

}  // namespace

const std::span<const Art> apu_art = art;

}  // namespace artwork
