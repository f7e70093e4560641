/// Engine start: the master, a start switch for each engine, the selector that turns the starter.
#include "resources/art.h"

namespace artwork::panels::engstart {

constexpr Item items[] = {
    Screw{{7.5, -7.5}, 30, 3.4},
    Screw{{-7.5, -7.5}, 72, 3.4},
    left_of("start_master_switch"),
    below("start_master_switch", "MASTER", {0, 0.5}),
    below("engine_1_start_switch", "ENG 1", {0, 0.5}),
    below("engine_2_start_switch", "ENG 2", {0, 0.5}),
    Positions{between("engine_1_start_switch", "engine_2_start_switch"), "RUN", "ARM", "OFF",
              Anchor::centre},
    Legend{at("start_selector", 0, -25), "OFF"},
    ending(at("start_selector", -21, -13), "ENG 1"),
    beginning(at("start_selector", 21, -13), "ENG 2"),
    below("ready_light", "READY"),
    heading({34, -20}, "ENGINE\nSTART"),
};

constexpr Art art[] = {
    plate(104, items),
    knob_art("start_selector", {40, 36}, {0, 60, -60}, {.radius = 14, .ticks = {3, 6}}),
    lever_art("engine_1_start_switch", {13, 40}, {Throw::down, Throw::centre, Throw::up},
              {.hub = {6.5, 20.5}, .reach = 13.5}),
};

constinit Unit unit{"Engstart", art};

}  // namespace artwork::panels::engstart
