/// Autopilot engage panel: buttons that say what they engage, the trims' lamps at both ends below.
#include "resources/art.h"

namespace artwork::panels::apset {

constexpr Item items[] = {
    CornerScrews{},
    Line{{9, 49}, middle(49, -22)},
    heading(middle(49), "ENGAGE"),
    Line{middle(49, 22), {-9, 49}},
};

constexpr Size size{24, 22};
constexpr double text_size = 6.5;

constexpr Art art[] = {
    plate(98, items),
    flush_lamp_art("mach_trim_lamp", size, lens::blue, "MACH\nTRIM", 6),
    cap_art("airspeed_hold_button", size, lens::green, "SPD\nHLD", text_size),
    cap_art("heading_hold_button", size, lens::green, "HDG\nHLD", text_size),
    flush_lamp_art("stabiliser_trim_lamp", size, lens::blue, "STAB\nTRIM", 6),
    cap_art("approach_button", size, lens::amber, "APP\nARM", text_size),
    cap_art("autopilot_master_button", size, lens::green, "A/P\nON", text_size),
    cap_art("autothrottle_button", size, lens::green, "A/T\nARM", text_size),
};

constinit Unit unit{"Apset", art};

}  // namespace artwork::panels::apset
