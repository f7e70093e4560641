/// Captain's fire warning strip: left engine, APU, right engine.
#include "resources/panels/engines/fire_light.h"

namespace artwork::panels::cafire {

constexpr Item items[] = {
    Line{at("left_engine_fire_light", 48), at("apu_fire_light", -48)},
    Line{at("apu_fire_light", 48), at("right_engine_fire_light", -48)},
    Screw{between("left_engine_fire_light", "apu_fire_light"), 24},
    Screw{between("apu_fire_light", "right_engine_fire_light"), 67},
};

constexpr Art art[] = {
    plate(34, items),
    fire_light_art("left_engine_fire_light", {85, 26}, "FIRE ENG 1"),
    fire_light_art("apu_fire_light", {82, 24}, "FIRE APU"),
    fire_light_art("right_engine_fire_light", {85, 22}, "FIRE ENG 2"),
};

constinit Unit unit{"Cafire", art};

}  // namespace artwork::panels::cafire
