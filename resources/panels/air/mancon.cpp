/// Manual control of the cabin pressure: one lit button. The test lights it whiter than the switch does.
#include "resources/art.h"

namespace artwork::panels::mancon {

constexpr Item items[] = {
    Screw{{5.5, 5.5}, 12, 2.2},
    Screw{{-5.5, 5.5}, 57, 2.2},
    Legend{middle(7.5), "PRESS"},
    Legend{at("manual_control_button", 0, 23), "CONTROL"},
};

constexpr Art art[] = {
    plate(66, items),
    button_art("manual_control_button", {30, 32}, {lens::amber, lens::white}, "MAN", 7.5),
    button_art(spare(1450, 2), {30, 32}, lens::green, "AUTO", 6.5),
};

constinit Unit unit{"Mancon", art};

}  // namespace artwork::panels::mancon
