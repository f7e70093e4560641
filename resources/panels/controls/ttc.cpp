/// Parking-brake light, and the switch of the top temperature control.
#include "resources/art.h"

namespace artwork::panels::ttc {

constexpr std::string_view control = "top_temperature_control_switch";

constexpr Item items[] = {
    Legend{{20, 14}, "TOP TEMP", 6.5},
    Legend{{20, 23}, "CONTROL", 6.5},
    Legend{at(control, 0, 24), "ON", 7},
    Screw{{-8, -8}, 30, 3},
};

constexpr Art art[] = {
    plate(70, items),
    lamp_art("parking_brake_light", {52, 32}, lens::amber, "PARKING\nBRAKE", 7.5),
};

constinit Unit unit{"Ttc", art};

}  // namespace artwork::panels::ttc
