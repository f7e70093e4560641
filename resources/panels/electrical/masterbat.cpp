/// Battery panel: what feeds the DC system.
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Masterbat";

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  const Point battery = hub_of(panel, 2130), external = hub_of(panel, 2130, 1);
  const double names = battery.y - 28, width = canvas.size().width;
  engrave(canvas, {width / 2, part_box(panel, 60).bottom() + 5.5}, "ELECTRICAL POWER",
          {.size = heading_size});
  engrave(canvas, {battery.x - 2, names}, "BATT");
  engrave(canvas, {hub_of(panel, 2140).x - 1, names}, "BUS TIE");
  engrave(canvas, {external.x + 4, names}, "EXT PWR");
  const double level = (battery.y + external.y) / 2;
  lever_words(canvas, {battery.x, level}, {.aside = -11});
  lever_words(canvas, {external.x, level}, {.aside = 10});
  const double line = battery.y + 30;
  engraved_bracket(canvas, {battery.x, line}, external.x - battery.x, 4);
  engrave(canvas, {(battery.x + external.x) / 2, line + 9}, "DC SYSTEM", {.size = heading_size});
}

void draw_battery_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "BATT ON"}, image == 1);
}

void draw_apu_bus_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "APU ON BUS"}, image == 1);
}

void draw_apu_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_amber, "APU GEN"}, image == 1);
}

/// Two lenses in one frame: available above, in use below.
void draw_external_light(Canvas& canvas, int image) {
  const Box frame = lamp_frame(whole(canvas.size()));
  if (image > 0) {
    const Colour colour = image == 1 ? palette::lamp_amber : palette::lamp_green;
    soft(canvas, rounded(frame, 1.8), faded(colour, 0.4), lamp_spill * 0.7);
  }
  lamp_housing(canvas, frame);
  const Box lenses = frame.grown(-2);
  const double half = (lenses.height - 1) / 2;
  lamp_lens(canvas, {lenses.x, lenses.y, lenses.width, half}, {palette::lamp_amber, "AVL", 7.5},
            image == 1);
  lamp_lens(canvas, {lenses.x, lenses.y + half + 1, lenses.width, half},
            {palette::lamp_green, "ON", 7.5}, image == 2);
}

constexpr Art art[] = {
    background(20, draw_plate, "battery panel"),
    {30, 3, {28, 33}, draw_external_light, "external power: dark, available, in use"},
    {40, 2, {66, 24}, draw_battery_lamp, "battery lamp: dark, lit"},
    {50, 2, {66, 24}, draw_apu_bus_lamp, "APU on bus lamp: dark, lit"},
    {60, 2, {66, 24}, draw_apu_lamp, "APU generator lamp: dark, lit"},
};

}  // namespace

const std::span<const Art> masterbat_art = art;

}  // namespace artwork
