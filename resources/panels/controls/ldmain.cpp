/// Lift-dump control: arming, deployment, and a selector.
#include "resources/art.h"

namespace artwork::panels::ldmain {

constexpr Item items[] = {
    CornerScrews{5, 2.2},
    heading({34, 6.5}, "LIFT DUMP", 8),
    Legend{at("lift_dump_arm_switch", 0, 23.5), "ARM", 7.5},
    Legend{at("lift_dump_deployment_switch", 0, 23.5), "OUT", 7.5},
    ending(at("lift_dump_selector_switch", -10, -12), "1", 7.5),
    ending(at("lift_dump_selector_switch", -10, 12), "2", 7.5),
    Legend{at("lift_dump_selector_switch", 0, 27), "SYS", 7.5},
};

constexpr Art art[] = {
    plate(58, items),
    lever_art("lift_dump_selector_switch", {16, 49}, {Throw::centre, Throw::up, Throw::down}),
};

constinit Unit unit{"Ldmain", art};

}  // namespace artwork::panels::ldmain
