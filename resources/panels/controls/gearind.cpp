/// Gear lights: a column for each leg, green below the legs' names, in transit red and amber.
#include "resources/art.h"

namespace artwork::panels::gearind {

constexpr Size lamp{27, 13};

constexpr Item items[] = {
    Screw{{7, 8}, 17, 2.8},
    Screw{{-6.5, 6.5}, 80, 2.6},
    Legend{{12.5, 23}, "CUT", 6.5},
    Legend{{12.5, 71}, "HORN", 6},
    Legend{at("left_upper_down_light", 0, -12), "LEFT", 7.5},
    Legend{at("nose_down_light", 0, -12), "NOSE", 7.5},
    Legend{at("right_upper_down_light", 0, -12), "RIGHT", 7.5},
    heading(at("nose_unlocked_light", 0, 17), "LDG\nGEAR", 8),
};

constexpr Art art[] = {
    plate(84, items),
    lever_art("horn_cutout_switch", {13, 36}, {Throw::down, Throw::up},
              {.reach = 10, .ball = 2.7, .polish = 12, .mount = 6.6}),
    flush_lamp_art("left_upper_down_light", lamp, lens::green, "DOWN", 6.5),
    flush_lamp_art("left_unlocked_light", lamp, lens::red, "UNLK", 6.5),
    flush_lamp_art("left_door_light", lamp, lens::amber, "DOOR", 6.5),
};

constinit Unit unit{"Gearind", art};

}  // namespace artwork::panels::gearind
