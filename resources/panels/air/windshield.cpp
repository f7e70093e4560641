/// Windshield heat: its power, and a selector and a light for each pane.
#include "resources/art.h"

namespace artwork::panels::windshield {

constexpr Item items[] = {
    CornerScrews{5, 2.2},
    Legend{at("windshield_heat_knob", -12, 13), "OFF"},
    Legend{at("windshield_heat_knob", 12, 13), "ON"},
    below("left_windshield_switch", "CAPT", {0, -0.5}),
    below("right_windshield_switch", "F/O", {0, -0.5}),
    Positions{at("windshield_heat_knob", 3, 42), "HI", "LO", "OFF", Anchor::centre},
    Legend{middle(-6.5), "WINDSHIELD"},
};

constexpr Art art[] = {
    plate(110, items),
    lever_art("windshield_heat_knob", {40, 14}, {Throw::down, Throw::up},
              {.reach = 13, .ball = 3.2, .sideways = true, .polish = 16}),
    round_light_art("left_windshield_light", {24, 24},
                    {.colour = lens::green, .radius = 9.2, .centre = 11.5}),
    lever_art("left_windshield_switch", {13, 42},
              {Throw::down, Throw::centre, Throw::up, Throw::centre}, {.reach = 13.5, .ball = 3.2}),
};

constinit Unit unit{"Windshield", art};

}  // namespace artwork::panels::windshield
