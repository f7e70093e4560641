/// Battery panel: what feeds the DC system.
#include "resources/art.h"

namespace artwork::panels::masterbat {

constexpr Item items[] = {
    CornerScrews{},
    heading(at("apu_generator_lamp", 0, 17.5), "ELECTRICAL POWER"),
    Legend{at("battery_switch", -2, -28), "BATT"},
    Legend{at("bus_tie_button", -1, -28).level_with("battery_switch"), "BUS TIE"},
    Legend{at("external_power_switch", 4, -28).level_with("battery_switch"), "EXT PWR"},
    FlowKey{at("bus_tie_button", -12, 17.5), "TIED", "OPEN"},
    left_of("battery_switch", {}, 11, -2.5),
    right_of("external_power_switch", {}, 10, 2.5),
    Bracket{at("battery_switch", 0, 30), at("external_power_switch")},
    heading(between("battery_switch", "external_power_switch", 0, 39).level_with("battery_switch"),
            "DC SYSTEM"),
};

constexpr Art art[] = {
    plate(148, items),
    lens_stack_art("external_power_lamp", {28, 33},
                   {{lens::amber, "AVL", 7.5}, {lens::green, "ON", 7.5}}),
    lamp_art("battery_lamp", {66, 24}, lens::green, "BATT ON"),
    lamp_art("apu_on_bus_lamp", {66, 24}, lens::green, "APU ON BUS"),
    lamp_art("apu_generator_lamp", {66, 24}, lens::amber, "APU GEN"),
};

constinit Unit unit{"Masterbat", art};

}  // namespace artwork::panels::masterbat
