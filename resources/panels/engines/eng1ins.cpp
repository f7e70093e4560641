/// Engine 1 column: oil pressure, oil temperature, fuel pressure.
#include "resources/panels/engines/engine_column.h"

namespace artwork::panels::eng1ins {

constexpr Item items[] = {
    Screw{{7.5, 7.5}, 21, 3.2},
    Screw{{-7.5, 7.5}, 61, 3.2},
    heading(middle(13), "ENG 1", 10),
    Ornament{draw_limits},
    column_dials[0],
    column_dials[1],
    column_dials[2],
};

constexpr Art art[] = {
    plate(304, items),
    needle_art("oil_pressure", {.length = 25, .tail = 6.5, .half_width = 1.6, .cap = 4.8}),
};

constinit Unit unit{"Eng1ins", art};

}  // namespace artwork::panels::eng1ins
