/// Virtual-cockpit copy of the left throttle pedestal: the speed-brake switch alone.
#include "gauges/controls/speed_brake.h"

namespace tarnvale {
namespace {

constinit f64 last_throttle = 0;

void watch_throttle() {
  last_throttle = read(token::throttle_1);
  shut_speed_brake(last_throttle);
  disarm_speed_brake(last_throttle);
}

constinit Body body{vcthleft, {speed_brake_row()}, {speed_brake_area<&last_throttle>()}};

}  // namespace

constinit Gauge vcthleft{
    {.name = "Vcthleft", .width_mm = 264, .background = 4010, .services = {.tick = watch_throttle}},
    body};

}  // namespace tarnvale
