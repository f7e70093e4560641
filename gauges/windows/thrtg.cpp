/// Throttle panel's own button: puts the throttles away.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    thrtg,
    {
        window_button("Close Throttle Panel", {3, 3, 142, 38}, does<close_panel<window::throttle>>),
    },
};

}  // namespace

constinit Gauge thrtg{{.name = "Thrtg", .width_mm = 148, .background = 23220}, body};

}  // namespace tarnvale
