/// First officer's instrument lighting (main panel). Its switch shows the host's panel lights through
/// a mirror of its own, so that it shows the truth while the captain's panel is closed.
#include "gauges/electrical/instrument_lighting.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constexpr auto level = &Aircraft::instrument_light_level;
constinit u32 lights_shown = 0;

constinit Body body{
    foinstlg,
    {
        icon("Panel lights button", bitmap::panel_lights_button, {60, 62},
             mirrors<token::panel_lights, &lights_shown>),
        icon("Instrument lights knob", bitmap::instrument_lights_knob, {21, 13}, shows<level>),
    },
    {
        decrease("Instrument lights knob down", {9, 16, 20, 28}, steps_down<level>),
        increase("Instrument lights knob up", {31, 16, 20, 28}, steps_up<level, 2>),
        click("Panel lights button", {60, 61, 28, 28},
              presses_panel_lights<window::first_officer_day, window::first_officer_night>),
    },
};

}  // namespace

constinit Gauge foinstlg{{.name = "Foinstlg", .width_mm = 104, .background = 20180}, body};

}  // namespace tarnvale
