/// Lift-dumper lights: left and right, each with what its dumper does.
#include "resources/art.h"
#include "resources/kit/lamp.h"

namespace artwork::panels::liftdump {

constexpr Lens out{palette::lamp_amber, "OUT", 7};

/// Dark, off, armed, out.
constexpr Lens lenses[] = {out, {palette::lamp_white, "OFF", 7}, {palette::lamp_green, "ARM", 7}, out};

void draw_light(const Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), lenses[image], image > 0);
}

constexpr Item items[] = {
    Legend{at("left_lift_dumper_light", 0, -13.5), "L", 6.5},
    Legend{at("right_lift_dumper_light", 0, -12.5), "R", 6.5},
    Legend{middle(-7), "LIFT DUMP", 7},
};

constexpr Art art[] = {
    plate(46, items),
    drawn_art("right_lift_dumper_light", {25, 26}, draw_light),
    drawn_art("left_lift_dumper_light", {25, 25}, draw_light),
};

constinit Unit unit{"Liftdump", art};

}  // namespace artwork::panels::liftdump
