/// First officer's warning lights: a pair for each hydraulic system, with its number beside it.
#include "resources/panels/warnings/annunciator.h"

namespace artwork::panels::fowarn {

constexpr Size picture{20, 26};

void draw_pump(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::amber, "HYD\nOFF", 5.9}, image == 1);
}

void draw_pressure(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::amber, "HYD\nLOW", 5.9}, image == 1);
}

void draw_engine(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::red, "ENG\nHYD", 5.9}, image == 1);
}

constexpr Item items[] = {
    Legend{between("system_2_pump_light", "system_2_pressure_light", 12.8), "2", 6.5},
    Legend{between("system_1_pump_light", "system_1_pressure_light", 12.8), "1", 6.5},
};

constexpr Art art[] = {
    plate(144, items),
    drawn_art("system_2_pump_light", picture, draw_pump),
    drawn_art("system_2_pressure_light", picture, draw_pressure),
    drawn_art("engine_light", picture, draw_engine),
};

constinit Unit unit{"Fowarn", art};

}  // namespace artwork::panels::fowarn
