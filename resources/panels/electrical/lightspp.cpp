/// Exterior and panel light switches, on the pedestal.
#include "resources/art.h"

namespace artwork::panels::lightspp {

constexpr Item items[] = {
    CornerScrews{5, 2.2},
    below("panel_lights_switch", "PANEL", {0, -2}),
    below("strobe_lights_switch", "STRB", {0, -2}),
    below("taxi_lights_switch", "TAXI", {0, -2}),
    below("beacon_lights_switch", "BCN", {0, -2}),
    words_between("beacon_lights_switch", "panel_lights_switch", {.reach = 9}),
    Legend{between("strobe_lights_switch", "beacon_lights_switch", 0, -23.5), "EXTERIOR"},
    Legend{at("panel_lights_switch", 0, -23.5), "INT"},
};

constexpr Art art[] = {plate(64, items)};

constinit Unit unit{"Lightspp", art};

}  // namespace artwork::panels::lightspp
