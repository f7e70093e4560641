/// Virtual-cockpit copy of the right throttle pedestal: its two three-position switches, one of which
/// is not connected to the other panel's.
#include "gauges/controls/pedestal_switches.h"

namespace tarnvale {
namespace {

constinit u32 auxiliary = 0;

constinit Body body{
    vcthright,
    {pedestal_selector_row(), auxiliary_row<&auxiliary>()},
    {auxiliary_up<&auxiliary>(), auxiliary_down<&auxiliary>(), pedestal_selector_left(),
     pedestal_selector_right()},
};

}  // namespace

constinit Gauge vcthright{{.name = "Vcthright", .width_mm = 251, .background = 4480}, body};

}  // namespace tarnvale
