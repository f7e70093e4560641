/// Emergency lights: off, armed, on and back over armed, with a light for each state.
#include "resources/art.h"
#include "resources/kit/lamp.h"

namespace artwork::panels::emerlight {

constexpr Item items[] = {
    // One word for the lever's upper position and for the bar of light beside it.
    beginning(at("emergency_lights_switch", 12).level_with("emergency_lights_on_bar"), "ON"),
    beginning(at("emergency_lights_switch", 12, 14.5), "OFF"),
    Legend{at("not_armed_lamp", 0, -12.5), "EMER LTS"},
    Screw{{-7.5, 7.5}, 40},
};

/// A bar of light over the lever.
void draw_on_bar(const Canvas& canvas, int image) {
  const Box bar = whole(canvas.size()).grown(-1);
  if (image == 1) soft(canvas, rounded(bar, 1), faded(palette::lamp_green, 0.7), 0.8);
  lamp_housing(canvas, bar);
  const Box glass = bar.grown(-0.8);
  lamp_lens(canvas, glass, {palette::lamp_green}, image == 1);
  // So small a lens would lose its tint among its own edges.
  if (image == 0) fill(canvas, rounded(glass, 1), faded(palette::lamp_green, 0.28));
}

constexpr Art art[] = {
    plate(84, items),
    lever_art("emergency_lights_switch", {13, 43},
              {Throw::down, Throw::centre, Throw::up, Throw::centre},
              {.hub = {6.5, 23.5}, .reach = 12.5, .ball = 3}),
    drawn_art("emergency_lights_on_bar", {13, 6}, draw_on_bar),
    lamp_art("armed_lamp", {31, 20}, lens::green, "ARM", 7.5),
    lamp_art("not_armed_lamp", {50, 20}, lens::amber, "NOT ARM", 7.5),
};

constinit Unit unit{"Emerlight", art};

}  // namespace artwork::panels::emerlight
