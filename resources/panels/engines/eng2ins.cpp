/// Engine 2 column: oil pressure, oil temperature, fuel pressure.
#include "resources/kit/flight.h"
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

void draw_limit_bug(const Canvas& canvas, int) {
  edged(canvas, {{27, 4.5}, {31, 0.8}, {35, 0.8}, {35, 8.2}, {31, 8.2}}, palette::bug);
}

constexpr Art art[] = {
    plate(304, items),
    // A limit that is set by hand.
    drawn_art(spare(10490), {36, 9}, draw_limit_bug),
};

constinit Unit unit{"Eng2ins", art};

}  // namespace artwork::panels::eng2ins
