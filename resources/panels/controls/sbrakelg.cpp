/// The light that says the speed brake is out.
#include "resources/art.h"

namespace artwork::panels::sbrakelg {

constexpr Art art[] = {
    plate(22, {}),
    flush_lamp_art("speed_brake_light", {27, 20}, lens::amber, "SPD\nBRK", 6.5),
};

constinit Unit unit{"Sbrakelg", art};

}  // namespace artwork::panels::sbrakelg
