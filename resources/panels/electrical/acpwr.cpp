/// AC power: bus lamps, guarded drive disconnects with their lights, rectifiers and bus ties.
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Acpwr";

void draw_tie_line(Canvas& canvas, Point left, Point right) {
  const double y = canvas.snapped(left.y) + 0.5, middle = (left.x + right.x) / 2;
  engraved_line(canvas, {left.x + 15, y}, {middle - 19, y});
  engraved_line(canvas, {middle + 19, y}, {right.x - 15, y});
  engrave(canvas, {middle, y}, "AC TIE");
}

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  const double middle = canvas.size().width / 2.0;
  engrave(canvas, {middle, part_box(panel, 80).centre().y}, "AC\nPOWER", {.size = heading_size});
  const Point left = part_box(panel, 2110, 1).centre(), right = part_box(panel, 2110).centre();
  engrave(canvas, {left.x, left.y - 24}, "DRIVE 1\nDISC");
  engrave(canvas, {right.x, right.y - 21}, "DRIVE 2\nDISC");
  const Point one = hub_of(panel, 2130, 1), two = hub_of(panel, 2130);
  engrave(canvas, {one.x, one.y - 26}, "TRU 1");
  engrave(canvas, {two.x, two.y - 26}, "TRU 2");
  lever_words(canvas, {(one.x + two.x) / 2 - 7, one.y}, {.aside = 0});
  const Point tie_left = hub_of(panel, 2140, 1), tie_right = hub_of(panel, 2140);
  engrave(canvas, {tie_left.x, tie_left.y + 19}, "BUS 1");
  engrave(canvas, {tie_right.x, tie_left.y + 19}, "BUS 2");
  draw_tie_line(canvas, tie_left, tie_right);
}

void draw_bus1_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "BUS 1"}, image == 1);
}

void draw_bus2_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "BUS 2"}, image == 1);
}

void draw_apu_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_blue, "APU"}, image == 1);
}

constexpr Art art[] = {
    background(70, draw_plate, "AC power panel"),
    {80, 2, {49, 24}, draw_bus1_lamp, "AC bus 1 lamp: dark, lit"},
    {90, 2, {49, 24}, draw_bus2_lamp, "AC bus 2 lamp: dark, lit"},
    {110, 2, {46, 24}, draw_apu_lamp, "APU generator lamp: dark, lit"},
};

}  // namespace

const std::span<const Art> acpwr_art = art;

}  // namespace artwork
