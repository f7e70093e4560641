/// Ram air: the guarded ventilation inlet and the guarded emergency outlet.
#include "resources/art.h"

namespace artwork::panels::ramair {

constexpr Item items[] = {
    Screw{{7.5, -7.5}, 33, 3.2},
    Screw{{62, 7.5}, 60, 3.2},
    below("inlet_guard", "INLET"),
    Legend{at("outlet_guard", 2, 37).level_with("inlet_guard"), "OUTLET"},
    below("test_light", "TEST"),
    ending(at("inlet_guard", -17, 0), "ON", 7),
    ending(at("inlet_guard", -17, 20), "OFF", 7),
    guarded_position("outlet_switch", 0, "0"),
    guarded_position("outlet_switch", 1, "1"),
    guarded_position("outlet_switch", 2, "2"),
    guarded_position("outlet_switch", 3, "3"),
    heading({30, 57}, "RAM AIR"),
};

constexpr Art art[] = {
    plate(78, items),
    guard_art("inlet_guard", {28, 62}),
    guarded_lever_art("inlet_switch", {28, 62}),
    guard_art("outlet_guard", {26, 60}),
    guarded_knob_art("outlet_switch", {26, 60}),
};

constinit Unit unit{"Ramair", art};

}  // namespace artwork::panels::ramair
