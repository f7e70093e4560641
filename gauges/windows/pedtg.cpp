/// Pedestal's own button: puts the pedestal away.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    pedtg,
    {
        window_button("Close Pedestal Panel", {5, 6, 218, 44}, does<close_panel<window::pedestal>>),
    },
};

}  // namespace

constinit Gauge pedtg{{.name = "Pedtg", .width_mm = 229, .background = 14220}, body};

}  // namespace tarnvale
