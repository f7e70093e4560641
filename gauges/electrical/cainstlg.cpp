/// Captain's instrument lighting (main panel): the panel-light switch and the brightness of the
/// instruments' own lighting.
#include "gauges/electrical/instrument_lighting.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constexpr auto level = &Aircraft::instrument_light_level;

constinit Body body{
    cainstlg,
    {
        icon("Panel lights button", bitmap::panel_lights_button, {14, 70},
             mirrors<token::panel_lights, &Aircraft::panel_lights_on>),
        icon("Instrument lights knob", bitmap::instrument_lights_knob, {58, 21}, shows<level>),
    },
    {
        decrease("Instrument lights knob down", {50, 20, 20, 28}, steps_down<level>),
        increase("Instrument lights knob up", {72, 20, 20, 28}, steps_up<level, 2>),
        click("Panel lights button", {13, 69, 28, 28},
              presses_panel_lights<window::captain_day, window::captain_night>),
    },
};

}  // namespace

constinit Gauge cainstlg{{.name = "Cainstlg", .width_mm = 96, .background = 13280}, body};

}  // namespace tarnvale
