/// Overhead light switches: landing light bank, strobe, taxi and beacon buttons, navigation lights.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/tokens.h"

namespace tarnvale {

constinit Gauge<11, 5> ovhmain{
    Face{.name = "Ovhmain", .width_mm = 385, .background = 13210},
    {
        icon(13240, {358, 0}, 2, nullptr, {.source = token::navigation_lights}),
        icon(13230, {208, 6}, 2, nullptr, {.source = token::strobe_lights}),
        icon(13230, {244, 6}, 2, nullptr, {.source = token::taxi_lights}),
        icon(13230, {280, 6}, 2, nullptr, {.source = token::beacon_lights}),
        icon(13220, {0, 0}, 2, nullptr, {.source = token::landing_lights}),
    },
    {
        click({280, 6, 24, 24}, button_sends<event::beacon_lights_toggle>),
        click({244, 6, 24, 24}, button_sends<event::taxi_lights_toggle>),
        click({208, 6, 24, 24}, button_sends<event::strobe_lights_toggle>),
        click({1, 1, 158, 36}, switch_sends<event::landing_lights_toggle>),
        click({351, 1, 25, 39}, switch_sends<event::navigation_lights_toggle>),
    },
};

}  // namespace tarnvale
