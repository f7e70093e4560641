/// Overhead light switches: landing light bank, strobe, taxi and beacon buttons, navigation lights.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    ovhmain,
    {
        icon("Navigation lights switch", 13240, {358, 0}).from(token::navigation_lights),
        icon("Strobe lights button", bitmap::light_button, {208, 6}).from(token::strobe_lights),
        icon("Taxi lights button", bitmap::light_button, {244, 6}).from(token::taxi_lights),
        icon("Beacon lights button", bitmap::light_button, {280, 6}).from(token::beacon_lights),
        icon("Landing lights bank", 13220, {0, 0}).from(token::landing_lights),
    },
    {
        click("Beacon lights button", {280, 6, 24, 24}, button_sends<event::beacon_lights_toggle>),
        click("Taxi lights button", {244, 6, 24, 24}, button_sends<event::taxi_lights_toggle>),
        click("Strobe lights button", {208, 6, 24, 24}, button_sends<event::strobe_lights_toggle>),
        click("Landing lights bank", {1, 1, 158, 36}, switch_sends<event::landing_lights_toggle>),
        click("Navigation lights switch", {351, 1, 25, 39},
              switch_sends<event::navigation_lights_toggle>),
    },
};

}  // namespace

constinit Gauge ovhmain{{.name = "Ovhmain", .width_mm = 385, .background = 13210}, body};

}  // namespace tarnvale
