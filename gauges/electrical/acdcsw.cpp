/// Meter selector panel (overhead): which DC source and which AC source the meters beside it read.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    acdcsw,
    {
        icon("DC meter selector", {380, 8}, {14, 7}, shows<&Aircraft::dc_meter_selector>),
        icon("AC meter selector", {380, 8}, {108, 7}, shows<&Aircraft::ac_meter_selector>),
    },
    {
        decrease("DC meter selector down", {6, 7, 34, 56}, steps_down<&Aircraft::dc_meter_selector>),
        increase("DC meter selector up", {42, 7, 34, 56}, steps_up<&Aircraft::dc_meter_selector, 7>),
        decrease("AC meter selector down", {100, 7, 34, 56}, steps_down<&Aircraft::ac_meter_selector>),
        increase("AC meter selector up", {136, 7, 34, 56}, steps_up<&Aircraft::ac_meter_selector, 7>),
    },
};

}  // namespace

constinit Gauge acdcsw{{.name = "Acdcsw", .width_mm = 172, .background = 370}, body};

}  // namespace tarnvale
