/// Airframe anti-ice: wing switches in the middle, valves, lights and the guarded standby controls.
#include "resources/kit/guard.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Aimain";
constexpr Point wing_hub{6.5, 21};

void draw_top(const Canvas& canvas) {
  const Point lever = hub_of(panel, 2080);
  lever_words(canvas, lever, {.up = "1", .down = "2", .centre = "BOTH", .aside = 11});
  engrave(canvas, {lever.x - 11, lever.y}, "TAIL", {}, Anchor::right);
  const Point right = hub_of(panel, 2140, 2), left = hub_of(panel, 2140, 3);
  engrave(canvas, {left.x + 2, left.y + 19}, "SOV 1");
  engrave(canvas, {right.x - 2, right.y + 19}, "SOV 2");
}

void draw_guarded_pair(const Canvas& canvas) {
  constexpr std::string_view names[] = {"STBY 2", "STBY 1"};
  for (int nth = 0; nth < 2; ++nth) {
    const Box guard = part_box(panel, 2160, nth);
    guarded_rotary(canvas, guard, 0);
    engrave(canvas, {guard.centre().x, guard.y - 6}, names[nth]);
  }
}

void draw_wing_levers(const Canvas& canvas) {
  Point hubs[2];
  for (int nth = 0; nth < 2; ++nth) {
    const Box lever = part_box(panel, 1210, nth);
    const Point hub = hubs[nth] = Point{lever.x, lever.y} + wing_hub;
    polish(canvas, hub, 17);
    lever_mount(canvas, hub);
    engrave(canvas, {hub.x, hub.y - 26}, nth == 0 ? "WING 2" : "WING 1");
  }
  lever_words(canvas, {(hubs[0].x + hubs[1].x) / 2 - 7, hubs[0].y}, {.aside = 0});
}

void draw_bottom(const Canvas& canvas) {
  const Point right = hub_of(panel, 2140, 0), left = hub_of(panel, 2140, 1);
  engrave(canvas, {left.x, left.y + 20}, "DUCT 1");
  engrave(canvas, {right.x, left.y + 20}, "DUCT 2");
  engrave(canvas, {(left.x + right.x) / 2, left.y}, "ANTI\nICE", {.size = heading_size + 1});
}

/// One name for the two lights of each side's corner.
void draw_light_names(const Canvas& canvas) {
  const Point top_left = part_box(panel, 2110, 5).centre();
  const Point top_right = part_box(panel, 2110, 4).centre();
  const Point low_left = part_box(panel, 2110, 3).centre();
  const Point low_right = part_box(panel, 2110, 1).centre();
  engrave(canvas, {top_left.x, top_left.y + 16.5}, "VALVE");
  engrave(canvas, {top_right.x, top_right.y + 16.5}, "VALVE");
  engrave(canvas, {low_left.x + 2, low_left.y + 16}, "OVHT");
  engrave(canvas, {low_right.x, low_right.y + 16.5}, "OVHT");
}

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  corner_screws(canvas, 7, 3.2);
  fit_parts(canvas, panel);
  draw_top(canvas);
  draw_guarded_pair(canvas);
  draw_wing_levers(canvas);
  draw_bottom(canvas);
  draw_light_names(canvas);
}

void draw_wing_lever(Canvas& canvas, int image) {
  lever_nut(canvas, wing_hub, 6);
  lever_handle(canvas, wing_hub, 14, image == 0 ? Throw::down : Throw::up, 3.2);
}

void draw_standby_knob(Canvas& canvas, int image) {
  if (image > 0) guarded_rotary(canvas, whole(canvas.size()), image);
}

constexpr Art art[] = {
    background(1190, draw_plate, "airframe anti-ice panel"),
    {1210, 2, {13, 42}, draw_wing_lever, "wing anti-ice lever: off, on"},
    {2220, 4, {27, 64}, draw_standby_knob, "standby knob: off (on the plate), three positions"},
};

}  // namespace

const std::span<const Art> aimain_art = art;

}  // namespace artwork
