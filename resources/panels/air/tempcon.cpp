/// Air conditioning: packs, trim valves, temperature selectors and the guarded override.
#include "resources/art.h"

namespace artwork::panels::tempcon {

constexpr Item items[] = {
    CornerScrews{},
    above("pack_1_switch", "PACK 1"),
    above("pack_2_switch", "PACK 2"),
    words_between("pack_1_switch", "pack_2_switch"),
    Legend{at("trim_1_knob", -4, -26).level_with("pack_1_switch"), "TRIM 1"},
    Legend{at("trim_2_knob", 6, -26).level_with("pack_2_switch"), "TRIM 2"},
    FlowKey{at("trim_1_knob", -12.5, 16)},
    FlowKey{at("trim_2_knob", -12.5, 16)},
    Legend{between("left_duct_hot_light", "right_duct_hot_light", 0, -16), "DUCT HOT"},
    Legend{at("left_temperature_selector", 0, 33), "TEMP 1"},
    Legend{at("left_temperature_selector", -17, 24), "COLD"},
    Legend{at("left_temperature_selector", 18, 24), "HOT"},
    Legend{at("right_temperature_selector", 0, 33), "TEMP 2"},
    Legend{at("right_temperature_selector", -17, 24), "COLD"},
    Legend{at("right_temperature_selector", 18, 24), "HOT"},
    right_of("left_automatic_control_switch", {.up = "AUTO", .down = "MAN", .reach = 11}, 12),
    left_of("right_automatic_control_switch", {.up = "AUTO", .down = "MAN", .reach = 11}, 12),
    below("override_guard", "OVERRIDE", {0, 1}),
    ending(at("test_light", -15), "TEST"),
    heading(at("test_light", 45), "AIR COND", 10),
};

// A selector springs back after each step; its ticks show which way is warmer.
constexpr Art art[] = {
    plate(208, items).in_full_colour(),
    lever_art("left_automatic_control_switch", {13, 34}, {Throw::down, Throw::up},
              {.reach = 10.5, .ball = 3, .polish = 16}),
    knob_art("left_temperature_selector", {52, 52}, {0, -40, 40},
             {.radius = 17, .seat = 1.6, .ticks = {3.4, 6}}),
};

constinit Unit unit{"Tempcon", art};

}  // namespace artwork::panels::tempcon
