/// Weather radar's place (captain's panel): the dark screen, and two buttons for windows of the host.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit Body body{
    caradar,
    {
        icon("Screen lighting", 24010, {0, 0}, shows<&Aircraft::panel_lights_on>)
            .lit_flags(image_flag::luminous | IMAGE_HIDE_CHAIN),
    },
    {
        window_button("Open/Close ATC Window", {45, 7, 14, 14}, does<ask<event::atc_window_toggle>>),
        window_button("Open/Close Flightmap Window", {60, 7, 14, 14},
                      does<ask<event::map_window_toggle>>),
    },
};

}  // namespace

constinit Gauge caradar{{.name = "Caradar", .width_mm = 162, .background = 14110}, body};

}  // namespace tarnvale
