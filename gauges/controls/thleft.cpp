/// Left half of the throttle pedestal: throttle 1, speed brake, parking brake, and the brakes'
/// pressures with their test.
#include "gauges/controls/brake_section.h"
#include "gauges/controls/speed_brake.h"
#include "gauges/controls/throttle_lever.h"

namespace tarnvale {
namespace {

constinit BrakePanel panel{.switch_on = aircraft.brake_control_switch_on};
constinit f64 last_throttle = 0;

f64 throttle_image(Element*) {
  last_throttle = read(token::throttle_1);
  disarm_speed_brake(last_throttle);
  return throttle_lever_image(last_throttle);
}

void watch_throttle() { shut_speed_brake(read(token::throttle_1)); }

constinit Body body{
    thleft,
    rows(brake_rows<&panel>(),
         icon("Throttle 1 lever", throttle_lever_bitmaps(4020), {28, 114}, throttle_image).mode(3, 0.0),
         speed_brake_row(), icon("Parking brake lever", 4060, {3, 86}).from(token::parking_brake)),
    {
        click("Parking brake lever", {2, 82, 40, 72},
              does<send_and_click<pbrake_sound_request, event::parking_brake_toggle>>),
        speed_brake_area<&last_throttle>(),
        click("Throttle 1 lever", {90, 140, 44, 150}, drags_throttle<event::throttle_1_set>,
              Press::drag),
        brake_control_area<&panel>(),
    },
};

}  // namespace

constinit Gauge thleft{
    {.name = "Thleft", .width_mm = 264, .background = 4010, .services = {.tick = watch_throttle}},
    body};

}  // namespace tarnvale
