/// Airframe anti-ice: wing switches in the middle, valves, lights and the guarded standby controls.
#include "resources/art.h"

namespace artwork::panels::aimain {

constexpr Item items[] = {
    CornerScrews{7, 3.2},
    right_of("tail_anti_ice_lever", {.up = "1", .centre = "BOTH", .down = "2"}),
    ending(at("tail_anti_ice_lever", -11), "TAIL"),
    below("shut_off_valve_1_knob", "SOV 1", {2, 0}),
    below("shut_off_valve_2_knob", "SOV 2", {-2, 0}),
    FlowKey{at("shut_off_valve_1_knob", -40, -3)},
    FlowKey{at("shut_off_valve_2_knob", 15, -4)},
    above("standby_2_guard", "STBY 2"),
    above("standby_1_guard", "STBY 1"),
    guarded_position("standby_1_switch", 0, "OFF"),
    guarded_position("standby_1_switch", 1, "1"),
    guarded_position("standby_1_switch", 2, "2"),
    guarded_position("standby_1_switch", 3, "3"),
    guarded_position("standby_2_switch", 0, "OFF"),
    guarded_position("standby_2_switch", 1, "1"),
    guarded_position("standby_2_switch", 2, "2"),
    guarded_position("standby_2_switch", 3, "3"),
    above("left_wing_anti_ice_switch", "WING 1"),
    above("right_wing_anti_ice_switch", "WING 2"),
    words_between("left_wing_anti_ice_switch", "right_wing_anti_ice_switch"),
    below("duct_1_knob", "DUCT 1", {0, 1}),
    Legend{at("duct_2_knob", 0, 20).level_with("duct_1_knob"), "DUCT 2"},
    FlowKey{between("duct_1_knob", "duct_2_knob", -14, 3).level_with("duct_1_knob")},
    heading(between("duct_1_knob", "duct_2_knob", 0, -13).level_with("duct_1_knob"), "ANTI-ICE"),
    // One name for the two lights of each side's corner.
    below("left_valve_light", "VALVE", {0, -0.5}),
    below("right_valve_light", "VALVE", {0, -0.5}),
    below("left_upper_overheat_light", "OVHT", {2, -1}),
    below("right_upper_overheat_light", "OVHT", {0, -0.5}),
};

constexpr Art art[] = {
    plate(240, items).in_full_colour(),
    lever_art("left_wing_anti_ice_switch", {13, 42}, {Throw::down, Throw::up}, {.ball = 3.2}),
};

constinit Unit unit{"Aimain", art};

}  // namespace artwork::panels::aimain
