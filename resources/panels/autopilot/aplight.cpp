/// The light that says the autopilot is engaged.
#include "resources/art.h"

namespace artwork::panels::aplight {

constexpr Art art[] = {
    plate(22, {}),
    flush_lamp_art("autopilot_lamp", {24, 20}, lens::green, "A/P"),
};

constinit Unit unit{"Aplight", art};

}  // namespace artwork::panels::aplight
