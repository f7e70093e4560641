/// Meter selector panel (overhead): which DC source and which AC source the meters beside it read.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

constinit Gauge<5, 4> acdcsw{
    Face{.name = "Acdcsw", .width_mm = 172, .background = 370},
    {
        icon(380, {14, 7}, 8, shows<aircraft.dc_meter_selector>),
        icon(380, {108, 7}, 8, shows<aircraft.ac_meter_selector>),
    },
    {
        decrease({6, 7, 34, 56}, steps_down<aircraft.dc_meter_selector>),
        increase({42, 7, 34, 56}, steps_up<aircraft.dc_meter_selector, 7>),
        decrease({100, 7, 34, 56}, steps_down<aircraft.ac_meter_selector>),
        increase({136, 7, 34, 56}, steps_up<aircraft.ac_meter_selector, 7>),
    },
};

}  // namespace tarnvale
