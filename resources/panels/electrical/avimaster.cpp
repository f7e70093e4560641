/// Avionics master: one large rotary switch and its lamp.
#include "resources/art.h"

namespace artwork::panels::avimaster {

constexpr Item items[] = {
    CornerScrews{},
    ending(at("avionics_master_switch", -18.5, -17.32), "OFF"),
    beginning(at("avionics_master_switch", 18.5, -17.32), "ON"),
    heading(middle(9), "AVIONICS"),
    heading(at("avionics_master_switch", 0, 28), "MASTER"),
};

constexpr Art art[] = {
    plate(82, items),
    knob_art("avionics_master_switch", {40, 40}, {-45, 45},
             {.radius = 15.5, .seat = 1.6, .ticks = {4, 7}}),
    lamp_art("avionics_lamp", {32, 23}, lens::green, "ON"),
};

constinit Unit unit{"Avimaster", art};

}  // namespace artwork::panels::avimaster
