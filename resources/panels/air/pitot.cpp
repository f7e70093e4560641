/// Pitot heat: a switch and a light for each side.
#include "resources/art.h"

namespace artwork::panels::pitot {

constexpr Item items[] = {
    Screw{{5.5, -5.5}, 20, 2.3},
    Screw{{-5.5, -5.5}, 65, 2.3},
    words_between("left_pitot_heat_switch", "right_pitot_heat_switch"),
    Legend{middle(-11), "PITOT HEAT"},
};

constexpr Art art[] = {plate(92, items)};

constinit Unit unit{"Pitot", art};

}  // namespace artwork::panels::pitot
