/// Lift-dumper lights: left and right, each with what its dumper does.
#include "resources/art.h"
#include "resources/kit/lamp.h"

namespace artwork::panels::liftdump {

constexpr Lens out{palette::lamp_amber, "OUT", 6.5};

/// Dark, off, armed, out. "Off" is printed on the lens and not lit: a dead cockpit has no lights.
constexpr Lens lenses[] = {
    out, {palette::lamp_white, "OFF", 6.5}, {palette::lamp_green, "ARM", 6}, out};

/// The records begin the right picture a pixel higher than the left one; their lamps stand level.
void draw_light(const Canvas& canvas, int image) {
  const Point middle = whole(canvas.size()).centre();
  lamp(canvas, {middle.x - 12.5, middle.y - 12.5, 25, 25}, lenses[image], image > 1);
}

constexpr Item items[] = {
    CornerScrews{5, 2.2},
    Legend{at("left_lift_dumper_light", 0, -13.5), "L", 6.5},
    Legend{at("right_lift_dumper_light", 0, -13.5), "R", 6.5},
    Legend{middle(-7), "LIFT DUMP", 7},
};

constexpr Art art[] = {
    plate(46, items),
    drawn_art("right_lift_dumper_light", {25, 27}, draw_light),
    drawn_art("left_lift_dumper_light", {25, 25}, draw_light),
};

constinit Unit unit{"Liftdump", art};

}  // namespace artwork::panels::liftdump
