/// Panel selector (captain's panel): a strip of small buttons for the other panels, lit with the
/// panels.
#include "gauges/windows/window_button.h"

namespace tarnvale {
namespace {

constinit u32 pushback_opened;
constinit u32 utility_opened;

f64 strip_image(Element*) {
  return aircraft.panel_lights_on == 1 || aircraft.instrument_light_level > 0;
}

constexpr Box button(i32 column, i32 row) { return {4 + 18 * column, 3 + 17 * row, 17, 14}; }

constinit Body body{
    pselect,
    {
        icon("Selector lighting", 14230, {0, 0}, strip_image)
            .lit_flags(image_flag::luminous | IMAGE_HIDE_CHAIN),
    },
    {
        window_button("Open Overhead Panel", button(0, 0), does<open_panel<window::overhead>>),
        window_button("Open Pedestal Panel", button(1, 0), does<open_panel<window::pedestal>>),
        window_button("Open Throttle Panel", button(2, 0), does<open_panel<window::throttle>>),
        window_button("Open/Close Pushback Panel", button(3, 0),
                      does<open_or_close<window::pushback, &pushback_opened>>),
        window_button("Open First Officer Panel", button(4, 0),
                      does<change_seat<window::first_officer, window::captain>>),
        window_button("Open/Close Utility Panel", button(1, 1),
                      does<open_or_close<window::utility, &utility_opened>>),
        window_button("Open/Close Kneeboard Panel", button(2, 1), does<ask<event::kneeboard_toggle>>),
        window_button("Open/Close GPS Panel", button(3, 1), does<toggle_panel<window::gps>>),
    },
};

}  // namespace

constinit Gauge pselect{{.name = "Pselect", .width_mm = 96, .background = 14220}, body};

}  // namespace tarnvale
