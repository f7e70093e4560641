/// Avionics master: one large rotary switch and its lamp.
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Avimaster";
constexpr double turned = 45;  // of the knob to either side
constexpr double radius = 15.5;

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  const Point hub = part_box(panel, 2320).centre();
  knob_seat(canvas, hub, radius + 1.6);
  const Point off = polar(hub, radius + 9, -90 - turned), on = polar(hub, radius + 9, -90 + turned);
  engrave(canvas, {off.x, off.y}, "OFF", {}, Anchor::right);
  engrave(canvas, {on.x, on.y}, "ON", {}, Anchor::left);
  for (const double way : {-turned, turned}) {
    engraved_line(canvas, polar(hub, radius + 4, way - 90), polar(hub, radius + 7, way - 90));
  }
  engrave(canvas, {canvas.size().width / 2.0, 9}, "AVIONICS", {.size = heading_size});
  engrave(canvas, {hub.x, hub.y + 28}, "MASTER", {.size = heading_size});
}

void draw_knob(Canvas& canvas, int image) {
  bar_knob(canvas, whole(canvas.size()).centre(), radius, image == 0 ? -turned : turned);
}

void draw_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "ON"}, image == 1);
}

constexpr Art art[] = {
    background(2310, draw_plate, "avionics master panel"),
    {2320, 2, {40, 40}, draw_knob, "avionics master: off, on"},
    {2330, 2, {32, 23}, draw_lamp, "avionics lamp: dark, lit"},
};

}  // namespace

const std::span<const Art> avimaster_art = art;

}  // namespace artwork
