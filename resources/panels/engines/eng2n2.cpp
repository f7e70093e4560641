/// Engine 2 core speed, with the pressure ratio on a small dial let into its face.
#include "resources/panels/engines/engine_dials.h"

namespace artwork::panels::eng2n2 {

constexpr Item items[] = {
    engine_speed_dial("core_speed"), pressure_ratio_dial("pressure_ratio"),
    Legend{{10.5, 8}, "N2"},         Legend{{-10.5, 8}, "%"},
    Legend{{10.5, -8}, "ENG"},       Legend{{-10.5, -8}, "2"},
};

constexpr Art art[] = {
    plate(78, items),
};

constinit Unit unit{"Eng2n2", art};

}  // namespace artwork::panels::eng2n2
