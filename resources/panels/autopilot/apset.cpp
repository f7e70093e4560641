/// Autopilot engage panel: buttons that say what they engage, the trims' lamps at both ends below.
#include "resources/art.h"

namespace artwork::panels::apset {

constexpr std::string_view first = "autothrottle_button", last = "approach_button";

constexpr Item items[] = {
    Line{at("stabiliser_trim_lamp", -10, -24), middle(0, -22)},
    heading(middle(0).level_with("stabiliser_trim_lamp").moved(0, -24), "ENGAGE"),
    Line{middle(0, 22).level_with("stabiliser_trim_lamp").moved(0, -24), at("mach_trim_lamp", 10)},
};

constexpr Size size{24, 22};
constexpr double text_size = 6.5;

constexpr Art art[] = {
    plate(98, items),
    flush_lamp_art("mach_trim_lamp", size, lens::white, "MACH\nTRIM", 6),
    cap_art("airspeed_hold_button", size, lens::green, "SPD\nHLD", text_size),
    cap_art("heading_hold_button", size, lens::green, "HDG\nHLD", text_size),
    flush_lamp_art("stabiliser_trim_lamp", size, lens::white, "STAB\nTRIM", 6),
    cap_art("approach_button", size, lens::amber, "APP\nARM", text_size),
    cap_art("autopilot_master_button", size, lens::green, "A/P\nON", text_size),
    cap_art("autothrottle_button", size, lens::green, "A/T\nARM", text_size),
};

constinit Unit unit{"Apset", art};

}  // namespace artwork::panels::apset
