/// The hydraulic system of the flight controls.
#include "resources/panels/controls/hydraulic_dials.h"

namespace artwork::panels::foflt {

constexpr auto items = hydraulic_items("FLIGHT");

constexpr Art art[] = {
    plate(72, items),

};

constinit Unit unit{"Foflt", art};

}  // namespace artwork::panels::foflt
