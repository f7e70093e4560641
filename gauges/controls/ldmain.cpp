/// Lift-dump control panel (throttle pedestal): arming, deployment, and a three-position switch that is
/// connected to nothing else.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 selector = 0;

/// Armed with the dumpers selected out they run out at once; otherwise they stay in until something
/// deploys them.
void arm() {
  aircraft.lift_dump_armed = 1;
  send(event::lift_dumpers_arm);
  if (aircraft.lift_dump_deployed == 1) {
    send(event::lift_dumpers_out);
    send(event::lift_dumpers_disarm);
  } else {
    send(event::lift_dumpers_in);
  }
}

void disarm() {
  aircraft.lift_dump_armed = 0;
  send(event::lift_dumpers_disarm);
  send(event::lift_dumpers_in);
}

void press_arm_switch() {
  aircraft.lift_dump_armed == 0 ? arm() : disarm();
  request(toggle_click_sound_request);
}

constinit Body body{
    ldmain,
    {
        icon("Lift dump selector switch", {4270, 3}, {75, 0}, shows<&selector>),
        icon("Lift dump deployment switch", bitmap::light_lever, {42, 10},
             shows<&Aircraft::lift_dump_deployed>),
        icon("Lift dump arm switch", bitmap::light_lever, {12, 10}, shows<&Aircraft::lift_dump_armed>),
    },
    {
        click("Lift dump arm switch", {7, 9, 22, 40}, does<press_arm_switch>),
        click("Lift dump deployment switch", {37, 9, 22, 40}, toggles<&Aircraft::lift_dump_deployed>),
        click("Lift dump selector switch up", {68, 1, 30, 22}, lever_up<&selector>),
        click("Lift dump selector switch down", {68, 26, 30, 22}, lever_down<&selector>),
    },
};

}  // namespace

constinit Gauge ldmain{{.name = "Ldmain", .width_mm = 100, .background = 4250}, body};

}  // namespace tarnvale
