/// Captain's instrument lighting (main panel): the panel-light switch and the brightness of the
/// instruments' own lighting.
#include "gauges/electrical/instrument_lighting.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constexpr u32& level = aircraft.instrument_light_level;

}  // namespace

constinit Gauge<5, 3> cainstlg{
    Face{.name = "Cainstlg", .width_mm = 96, .background = 13280},
    {
        icon(13310, {14, 70}, 2, mirrors<token::panel_lights, aircraft.panel_lights_on>),
        icon(13290, {58, 21}, 3, shows<level>),
    },
    {
        decrease({50, 20, 20, 28}, steps_down<level>),
        increase({72, 20, 20, 28}, steps_up<level, 2>),
        click({13, 69, 28, 28}, presses_panel_lights<window::captain_day, window::captain_night>),
    },
};

}  // namespace tarnvale
