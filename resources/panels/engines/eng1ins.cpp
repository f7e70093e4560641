/// Engine 1 column: oil pressure, oil temperature, fuel pressure.
#include "resources/kit/needle.h"
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

void draw_peak_pointer(const Canvas& canvas, int) {
  blade(
      canvas,
      {.pivot = {8.5, 7.5}, .length = 26, .tail = 0, .half_width = 0.9, .colour = palette::range_red});
}

void draw_inner_pointer(const Canvas& canvas, int) {
  blade(canvas,
        {.pivot = {8.5, 7.5}, .length = 18, .tail = 5, .half_width = 1.2, .colour = palette::bug});
  needle_cap(canvas, {8.5, 7.5}, 3.4);
}

constexpr Art art[] = {
    plate(304, items),
    needle_art("oil_pressure", {.length = 25, .tail = 6.5, .half_width = 1.6, .cap = 4.8}),
    // A pointer that stays at the highest reading, and a thinner one for a scale within another.
    drawn_art(spare(10440), {36, 15}, draw_peak_pointer),
    drawn_art(spare(10450), {28, 15}, draw_inner_pointer),
};

constinit Unit unit{"Eng1ins", art};

}  // namespace artwork::panels::eng1ins
