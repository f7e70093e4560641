/// Fan speeds: a dial for each engine, with the pressure ratio on a small dial let into its face.
#include "resources/panels/engines/engine_dials.h"

namespace artwork::panels::engn1 {

constexpr Item items[] = {
    Screw{{76.5, 10}, 32, 3.2},
    Screw{{76.5, 60}, 68, 3.2},
    engine_speed_dial("engine_1_fan_speed"),
    pressure_ratio_dial("engine_1_pressure_ratio"),
    engine_speed_dial("engine_2_fan_speed"),
    pressure_ratio_dial("engine_2_pressure_ratio"),
    Legend{at("engine_1_fan_speed", 0, 37.6), "ENG 1", 7},
    Legend{between("engine_1_fan_speed", "engine_2_fan_speed", 0, 37.6), "N1 %"},
    Legend{at("engine_2_fan_speed", 0, 37.6), "ENG 2", 7},
};

constexpr Art art[] = {
    plate(78, items),
    needle_art("engine_1_fan_speed", {.length = 25.5, .tail = 6, .half_width = 1.6}),
    // All four dials of the speeds have this pointer.
    needle_art("engine_1_pressure_ratio", {.length = 8.6, .tail = 3, .half_width = 0.9}),
};

constinit Unit unit{"Engn1", art};

}  // namespace artwork::panels::engn1
