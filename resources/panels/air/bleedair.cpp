/// Bleed air: four switches, six valves, their press-to-test lights and the duct pressure light.
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Bleedair";
constexpr int right = 0, left = 1;  // of a pair in the panel's list

void draw_switches(const Canvas& canvas) {
  // The list has the lower pair first.
  const Point lower1 = hub_of(panel, 2130, 1), lower2 = hub_of(panel, 2130, 0);
  const Point upper1 = hub_of(panel, 2130, 3), upper2 = hub_of(panel, 2130, 2);
  engrave(canvas, {upper1.x, upper1.y - 23.4}, "ENG 1");
  engrave(canvas, {upper2.x, upper2.y - 23.4}, "ENG 2");
  lever_words(canvas, {(upper1.x + upper2.x) / 2 - 7, upper1.y}, {.aside = 0});
  engrave(canvas, {lower1.x - 4, lower1.y - 25}, "XFEED 1");
  engrave(canvas, {lower2.x + 4, lower2.y - 25}, "XFEED 2");
  lever_words(canvas, {(lower1.x + lower2.x) / 2 - 7, lower1.y}, {.aside = 0});
}

void draw_valve_names(const Canvas& canvas) {
  const Point mid1 = hub_of(panel, 2140, 1), mid2 = hub_of(panel, 2140, 0);
  const Point top1 = hub_of(panel, 2140, 3), top2 = hub_of(panel, 2140, 2);
  engrave(canvas, {top1.x, top1.y + 19}, "SOV 1");
  engrave(canvas, {top2.x, top2.y + 19}, "SOV 2");
  engrave(canvas, {mid1.x + 3, mid1.y - 19}, "ISOL 1");
  engrave(canvas, {mid2.x - 3, mid2.y - 19}, "ISOL 2");
  const Point low1 = part_box(panel, 160, left).centre();
  const Point low2 = part_box(panel, 160, right).centre();
  for (const Point at : {low1, low2}) knob_seat(canvas, at, 12.8);
  const double y = canvas.snapped((low1.y + low2.y) / 2) + 0.5;
  engraved_line(canvas, {low1.x + 16, y}, {low2.x - 16, y});
  engrave(canvas, {(low1.x + low2.x) / 2, y + 18}, "MANIFOLD");
}

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  engrave(canvas, {canvas.size().width / 2.0, 7.2}, "BLEED AIR", {.size = heading_size});
  draw_switches(canvas);
  draw_valve_names(canvas);
  const Point light1 = part_box(panel, 2110, 3).centre();
  const Point light2 = part_box(panel, 2110, 2).centre();
  engrave(canvas, {light1.x, light1.y + 17}, "VALVE");
  engrave(canvas, {light2.x, light2.y + 17}, "VALVE");
  const Box duct = part_box(panel, 150);
  engrave(canvas, {duct.centre().x, duct.y - 4}, "DUCT");
}

void draw_valve(Canvas& canvas, int image) {
  bar_knob(canvas, {12.5, 12.5}, 11.6, image == 0 ? 90 : 0);
}

void draw_duct_light(Canvas& canvas, int image) {
  const Colour colour = image == 2 ? palette::lamp_amber : palette::lamp_green;
  lamp(canvas, whole(canvas.size()), {colour, "PSI"}, image > 0);
}

constexpr Art art[] = {
    background(130, draw_plate, "bleed air panel"),
    {150, 3, {29, 23}, draw_duct_light, "duct pressure light: dark, green, amber"},
    {160, 2, {26, 26}, draw_valve, "manifold valve: across, in line"},
};

}  // namespace

const std::span<const Art> bleedair_art = art;

}  // namespace artwork
