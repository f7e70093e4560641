/// Bleed air: four switches, six valves, their press-to-test lights and the duct pressure light.
#include "resources/art.h"

namespace artwork::panels::bleedair {

constexpr Item items[] = {
    CornerScrews{},
    heading(middle(7.2), "BLEED AIR"),
    Legend{at("engine_1_bleed_switch", 0, -23.4), "ENG 1"},
    Legend{at("engine_2_bleed_switch", 0, -23.4), "ENG 2"},
    words_between("engine_1_bleed_switch", "engine_2_bleed_switch"),
    above("crossfeed_1_switch", "XFEED 1", {-4, 1}),
    above("crossfeed_2_switch", "XFEED 2", {4, 1}),
    words_between("crossfeed_1_switch", "crossfeed_2_switch"),
    below("shut_off_valve_1_knob", "SOV 1"),
    below("shut_off_valve_2_knob", "SOV 2"),
    above("isolation_1_knob", "ISOL 1", {3, 0}),
    above("isolation_2_knob", "ISOL 2", {-3, 0}),
    Line{at("manifold_1_knob", 16.5, 1.5), at("manifold_2_knob", -15.5)},
    Legend{between("manifold_1_knob", "manifold_2_knob", 0.5, 19), "MANIFOLD"},
    below("valve_1_light", "VALVE"),
    below("valve_2_light", "VALVE"),
    Legend{at("duct_pressure_lamp", 0, -15.5), "DUCT"},
};

constexpr Art art[] = {
    plate(172, items).in_full_colour(),
    lamp_art("duct_pressure_lamp", {29, 23}, {lens::green, lens::amber}, "PSI"),
    knob_art("manifold_1_knob", {26, 26}, {90, 0}, {.radius = 11.6, .seat = 1.2, .hub = {12.5, 12.5}}),
    // Where a valve that stands open is to be seen.
    round_light_art(spare(140, 2), {26, 26}, {.colour = lens::green, .radius = 9.6, .centre = 12.5}),
};

constinit Unit unit{"Bleedair", art};

}  // namespace artwork::panels::bleedair
