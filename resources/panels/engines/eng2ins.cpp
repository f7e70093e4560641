/// Engine 2 column: oil pressure, oil temperature, fuel pressure.
#include "resources/panels/engines/engine_column.h"

namespace artwork::panels::eng2ins {

constexpr Item items[] = {
    Screw{{7.5, 7.5}, 22, 3.2},
    Screw{{-7.5, 7.5}, 62, 3.2},
    heading(middle(13), "ENG 2", 10),
    Ornament{draw_limits},
    column_dials[0],
    column_dials[1],
    column_dials[2],
};

constexpr Art art[] = {
    plate(304, items),
};

constinit Unit unit{"Eng2ins", art};

}  // namespace artwork::panels::eng2ins
