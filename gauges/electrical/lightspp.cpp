/// Light-switch panel (pedestal): strobe, taxi and beacon lights, and the panel lights once more. This
/// panel-light switch leaves the main panels' windows alone.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 panel_lights_shown = 0;

constinit Body body{
    lightspp,
    {
        icon("Panel lights switch", bitmap::light_lever, {137, 13},
             mirrors<token::panel_lights, &panel_lights_shown>),
        icon("Strobe lights switch", bitmap::light_lever, {19, 13}).from(token::strobe_lights),
        icon("Taxi lights switch", bitmap::light_lever, {51, 13}).from(token::taxi_lights),
        icon("Beacon lights switch", bitmap::light_lever, {87, 13}).from(token::beacon_lights),
    },
    {
        click("Beacon lights switch", {82, 11, 22, 41}, switch_sends<event::beacon_lights_toggle>),
        click("Taxi lights switch", {47, 11, 22, 41}, switch_sends<event::taxi_lights_toggle>),
        click("Strobe lights switch", {14, 11, 22, 41}, switch_sends<event::strobe_lights_toggle>),
        click("Panel lights switch", {132, 11, 22, 41},
              toggles<&panel_lights_shown, event::panel_lights_toggle>),
    },
};

}  // namespace

constinit Gauge lightspp{{.name = "Lightspp", .width_mm = 166, .background = 4290}, body};

}  // namespace tarnvale
