/// The hydraulic system of the gear, flaps, speed brake and lift dumpers.
#include "resources/panels/controls/hydraulic_dials.h"

namespace artwork::panels::fouti {

constexpr auto items = hydraulic_items("UTILITY");

constexpr Art art[] = {
    plate(72, items),
    needle_art("hydraulic_quantity", {.length = 25, .tail = 6, .half_width = 1.6}),
};

constinit Unit unit{"Fouti", art};

}  // namespace artwork::panels::fouti
