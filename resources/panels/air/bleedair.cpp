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
    FlowKey{at("shut_off_valve_1_knob", -40, 0)},
    FlowKey{at("shut_off_valve_2_knob", 16, 0)},
    above("isolation_1_knob", "ISOL 1", {3, 0}),
    above("isolation_2_knob", "ISOL 2", {-3, 0}),
    FlowKey{at("isolation_1_knob", -41, 1)},
    FlowKey{at("isolation_2_knob", 17, -1)},
    // The pointers of the manifold's knobs show up or to the right.
    Legend{at("manifold_1_knob", 0, -17.5), "OPEN", 6.5},
    beginning(at("manifold_1_knob", 14.5), "SHUT", 6.5),
    Legend{at("manifold_2_knob", 0, -18), "OPEN", 6.5},
    beginning(at("manifold_2_knob", 14.5), "SHUT", 6.5),
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
