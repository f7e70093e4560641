/// Seat button on the first officer's panel: moves over to the captain's.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    fopselect,
    {
        window_button("Open Captains Panel", {1, 1, 94, 48},
                      does<change_seat<window::captain, window::first_officer>>),
    },
};

}  // namespace

constinit Gauge fopselect{{.name = "Fopselect", .width_mm = 96, .background = 20240}, body};

}  // namespace tarnvale
