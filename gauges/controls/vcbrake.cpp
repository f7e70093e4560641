/// Virtual-cockpit copy of the pedestal's brake section, with a switch and a test of its own.
#include "gauges/controls/brake_section.h"

namespace tarnvale {
namespace {

constinit u32 switch_on = 0;
constinit BrakePanel panel{.switch_on = switch_on};

constinit Body body{vcbrake, brake_rows<&panel>(), {brake_control_area<&panel>()}};

}  // namespace

constinit Gauge vcbrake{{.name = "Vcbrake", .width_mm = 264, .background = 4010}, body};

}  // namespace tarnvale
