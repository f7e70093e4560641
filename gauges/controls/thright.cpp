/// Right half of the throttle pedestal: throttle 2, flap lever and two three-position switches.
#include "gauges/controls/pedestal_switches.h"
#include "gauges/controls/throttle_lever.h"

namespace tarnvale {
namespace {

constinit u32 auxiliary = 0;

f64 throttle_image(Element*) { return throttle_lever_image(read(token::throttle_2)); }

/// The detent that the lever stands in.
f64 flap_lever_image(Element*) {
  constexpr f64 steps[] = {2730, 5460, 8190, 10920, 13650};
  return steps_passed(steps, read(token::flap_position));
}

constinit Body body{
    thright,
    {
        icon("Throttle 2 lever", throttle_lever_bitmaps(10030), {97, 0}, throttle_image).mode(3, 0.0),
        pedestal_selector_row(),
        auxiliary_row<&auxiliary>(),
        icon("Flap lever", {10020, 6}, {6, 30}, flap_lever_image),
    },
    {
        decrease("Flap lever up", {2, 56, 60, 40}, does<ask<event::flap_lever_up>>, Press::left_held),
        increase("Flap lever down", {2, 148, 60, 40}, does<ask<event::flap_lever_down>>,
                 Press::left_held),
        auxiliary_up<&auxiliary>(),
        auxiliary_down<&auxiliary>(),
        pedestal_selector_left(),
        pedestal_selector_right(),
        click("Throttle 2 lever", {112, 16, 64, 154}, drags_throttle<event::throttle_2_set>,
              Press::drag),
    },
};

}  // namespace

constinit Gauge thright{{.name = "Thright", .width_mm = 251, .background = 4480}, body};

}  // namespace tarnvale
