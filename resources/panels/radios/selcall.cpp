/// Call panel: announcements above, below them the ground crew and what the crew calls by itself.
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::selcall {

constexpr Legend name(std::string_view button, std::string_view text, double above = 18) {
  return {at(button, 0, -above), text, 6.5};
}

constexpr Item items[] = {
    name("taxi_announcement_button", "TAXI"),
    name("safety_announcement_button", "SAFETY"),
    name("climb_announcement_button", "CLIMB"),
    name("descent_announcement_button", "DESC"),
    name("final_approach_announcement_button", "FINAL"),
    name("roll_out_announcement_button", "ROLL"),
    Bracket{at("taxi_announcement_button", -12, 18), at("roll_out_announcement_button", 12, 18)},
    heading(between("taxi_announcement_button", "roll_out_announcement_button", 0, 26),
            "CABIN ANNOUNCEMENTS", 8),
    name("welcome_announcement_button", "WELCOME"),
    name("first_officer_s_calls_button", "F/O"),
    name("first_officer_s_calls_button", "CALLS", -18),
    name("ground_power_button", "GND PWR", 15),
    name("automatic_announcements_button", "AUTO ANN", 15),
    Screw{{8, -8}, 40, 3.2},
    Screw{{-8, -8}, 120, 3.2},
};

constexpr Art art[] = {
    plate(112, items),
    button_art("taxi_announcement_button", {24, 24}, lens::blue, ""),
    button_art("ground_power_button", {16, 16}, lens::green, ""),
    button_art(spare(2490, 2), {24, 24}, lens::amber, "CALL", 6),
};

constinit Unit unit{"Selcall", art};

}  // namespace artwork::panels::selcall
