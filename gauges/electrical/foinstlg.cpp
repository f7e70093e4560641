/// First officer's instrument lighting (main panel). Its switch shows the host's panel lights through
/// a mirror of its own, so that it shows the truth while the captain's panel is closed.
#include "gauges/electrical/instrument_lighting.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constexpr u32& level = aircraft.instrument_light_level;
constinit u32 lights_shown = 0;

}  // namespace

constinit Gauge<5, 3> foinstlg{
    Face{.name = "Foinstlg", .width_mm = 104, .background = 20180},
    {
        icon(13310, {60, 62}, 2, mirrors<token::panel_lights, lights_shown>),
        icon(13290, {21, 13}, 3, shows<level>),
    },
    {
        decrease({9, 16, 20, 28}, steps_down<level>),
        increase({31, 16, 20, 28}, steps_up<level, 2>),
        click({60, 61, 28, 28},
              presses_panel_lights<window::first_officer_day, window::first_officer_night>),
    },
};

}  // namespace tarnvale
