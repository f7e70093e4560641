/// The light that says the APU runs.
#include "resources/art.h"

namespace artwork::panels::apulg {

constexpr Art art[] = {
    plate(25, {}),
    flush_lamp_art("apu_running_lamp", {23, 23}, lens::green, "APU", 7),
};

constinit Unit unit{"Apulg", art};

}  // namespace artwork::panels::apulg
