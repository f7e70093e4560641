/// The two small panels of the pressurisation: manual control, and the outflow valves' drives.
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

void draw_manual_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  const Box button = part_box("Mancon", 1440), plate = whole(canvas.size());
  engrave(canvas, {plate.width / 2, 7.5}, "PRESS");
  engrave(canvas, {plate.width / 2, button.bottom() + 7}, "CONTROL");
}

/// The test lights the lens whiter than the switch does.
void draw_manual_button(Canvas& canvas, int image) {
  const Colour colour = image == 2 ? palette::lamp_white : palette::lamp_amber;
  push_button(canvas, whole(canvas.size()), {colour, "MAN", heading_size}, image > 0);
}

void draw_drives_plate(Canvas& canvas, int) {
  constexpr std::string_view panel = "Spdrive";
  plate_of(canvas, panel);
  const Box light_a = part_box(panel, 1410, 1), light_b = part_box(panel, 1410);
  const Box guard_a = part_box(panel, 2180, 1), guard_b = part_box(panel, 2180);
  engrave(canvas, {light_a.x - 22, light_a.centre().y}, "DRIVE", {.size = heading_size});
  engrave(canvas, {light_a.centre().x, light_a.bottom() + 6}, "A");
  engrave(canvas, {light_b.centre().x, light_b.bottom() + 6}, "B");
  engrave(canvas, {guard_a.centre().x + 4, guard_a.y - 8}, "DRIVE A");
  engrave(canvas, {guard_b.centre().x - 4, guard_a.y - 8}, "DRIVE B");
  const double middle = (guard_a.right() + guard_b.x) / 2;
  engrave(canvas, {middle, guard_a.y + 30}, "ON");
  engrave(canvas, {middle, guard_a.y + 54}, "OFF");
  engrave(canvas, {middle, 57}, "OUTFLOW VALVES", {.size = heading_size});
}

void draw_drive_light(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "ON", 7.5}, image == 1);
}

constexpr Art art[] = {
    background(1390, draw_drives_plate, "outflow valve drives"),
    {1410, 2, {25, 20}, draw_drive_light, "drive light: dark, lit"},
    background(1430, draw_manual_plate, "manual pressure control"),
    {1440, 3, {30, 32}, draw_manual_button, "manual control button: dark, lit, test"},
};

}  // namespace

const std::span<const Art> pressurisation_art = art;

}  // namespace artwork
