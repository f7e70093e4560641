/// Overhead panel's own button: puts the overhead away.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    ovhtoggle,
    {
        window_button("Close Overhead Panel", {5, 3, 188, 204}, does<close_panel<window::overhead>>),
    },
};

}  // namespace

constinit Gauge ovhtoggle{{.name = "Ovhtoggle", .width_mm = 196, .background = 2050}, body};

}  // namespace tarnvale
