/// Air conditioning: packs, trim valves, temperature selectors and the guarded override.
#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Tempcon";
constexpr Point auto_hub{6.5, 17};
constexpr double radius = 17;

void draw_supply(const Canvas& canvas) {
  const Point pack1 = hub_of(panel, 2130, 1), pack2 = hub_of(panel, 2130, 0);
  engrave(canvas, {pack1.x, pack1.y - 26}, "PACK 1");
  engrave(canvas, {pack2.x, pack2.y - 26}, "PACK 2");
  lever_words(canvas, {(pack1.x + pack2.x) / 2 - 7, pack1.y}, {.aside = 0});
  const Point trim1 = hub_of(panel, 2140, 1), trim2 = hub_of(panel, 2140, 0);
  engrave(canvas, {trim1.x - 4, pack1.y - 26}, "TRIM 1");
  engrave(canvas, {trim2.x + 6, pack2.y - 26}, "TRIM 2");
  const Point left = part_box(panel, 2110, 1).centre(), right = part_box(panel, 2110, 0).centre();
  engrave(canvas, {(left.x + right.x) / 2, left.y - 16}, "DUCT HOT");
}

/// The selector springs back after each step; its seat shows which way is warmer.
void draw_selector_seat(const Canvas& canvas, int nth, std::string_view name) {
  const Point hub = part_box(panel, 190, nth).centre();
  knob_seat(canvas, hub, radius + 1.6);
  for (const double way : {-40.0, 0.0, 40.0}) {
    engraved_line(canvas, polar(hub, radius + 3.4, way - 90), polar(hub, radius + 6, way - 90));
  }
  engrave(canvas, {hub.x, hub.y - 28}, name);
  engrave(canvas, {hub.x - 17, hub.y + 24}, "COLD");
  engrave(canvas, {hub.x + 18, hub.y + 24}, "HOT");
}

void draw_auto_lever_mount(const Canvas& canvas, int nth, double aside) {
  const Box lever = part_box(panel, 180, nth);
  const Point hub = Point{lever.x, lever.y} + auto_hub;
  polish(canvas, hub, 16);
  lever_mount(canvas, hub);
  lever_words(canvas, hub, {.up = "AUTO", .down = "MAN", .aside = aside, .reach = 11});
}

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  draw_supply(canvas);
  draw_selector_seat(canvas, 1, "TEMP 1");
  draw_selector_seat(canvas, 0, "TEMP 2");
  draw_auto_lever_mount(canvas, 1, 12);
  draw_auto_lever_mount(canvas, 0, -12);
  const Box guard = part_box(panel, 2160), test = part_box(panel, 2110, 2);
  engrave(canvas, {guard.centre().x, guard.bottom() + 7}, "OVERRIDE");
  engrave(canvas, {test.x - 2, test.centre().y}, "TEST", {}, Anchor::right);
  engrave(canvas, {test.right() + 32, test.centre().y}, "AIR COND", {.size = heading_size + 1});
}

void draw_selector(Canvas& canvas, int image) {
  constexpr double positions[] = {0, -40, 40};
  bar_knob(canvas, whole(canvas.size()).centre(), radius, positions[image]);
}

void draw_auto_lever(Canvas& canvas, int image) {
  lever_nut(canvas, auto_hub, 6);
  lever_handle(canvas, auto_hub, 10.5, image == 0 ? Throw::down : Throw::up, 3);
}

constexpr Art art[] = {
    background(170, draw_plate, "air conditioning panel"),
    {180, 2, {13, 34}, draw_auto_lever, "temperature control lever: manual, automatic"},
    {190, 3, {52, 52}, draw_selector, "temperature selector: at rest, turned down, turned up"},
};

}  // namespace

const std::span<const Art> tempcon_art = art;

}  // namespace artwork
