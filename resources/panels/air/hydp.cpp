/// Hydraulic pumps: two rows of four, each with its light.
#include "resources/art.h"

namespace artwork::panels::hydp {

constexpr std::string_view first1 = "system_1_engine_1_pump_lamp", last1 = "system_1_standby_pump_lamp";
constexpr std::string_view first2 = "system_2_engine_1_pump_lamp", last2 = "system_2_standby_pump_lamp";

/// The words beside a row of levers.
constexpr Positions on_off(std::string_view lever) {
  return {.spot = Spot(-26, 0).level_with(lever), .reach = 9};
}

constexpr Item items[] = {
    CornerScrews{},
    heading(middle(16), "HYDRAULIC PUMPS", 10),
    // A line over each row of lights, with the system's name in the middle.
    Line{at(first1, -13, -19), between(first1, last1, -30)},
    Line{between(first1, last1, 30, -19), at(last1, 13)},
    Legend{between(first1, last1, 0, -19), "SYSTEM 1"},
    on_off("system_1_standby_pump_switch"),
    Line{at(first2, -13, -19), between(first2, last2, -30)},
    Line{between(first2, last2, 30, -19), at(last2, 13)},
    Legend{between(first2, last2, 0, -19), "SYSTEM 2"},
    on_off("system_2_standby_pump_switch"),
};

constexpr Art art[] = {
    plate(196, items).in_full_colour(),
    lamp_art("system_1_engine_1_pump_lamp", {38, 22}, lens::green, "ENG 1", 7.5),
    lamp_art("system_1_engine_2_pump_lamp", {38, 22}, lens::green, "ENG 2", 7.5),
    lamp_art("system_1_electric_pump_lamp", {38, 22}, lens::green, "ELEC", 7.5),
    lamp_art("system_1_standby_pump_lamp", {38, 22}, lens::green, "STBY", 7.5),
};

constinit Unit unit{"Hydp", art};

}  // namespace artwork::panels::hydp
