/// Category II approach: two columns of lenses, and the buttons that test them in green and in amber.
#include "resources/art.h"

namespace artwork::panels::cat2apsys {

constexpr std::string_view green = "green_test_button", amber = "amber_test_button";

constexpr Item items[] = {
    CornerScrews{6.5, 3},
    FixedButton{at(green), 5.4, palette::range_green},
    FixedButton{at(amber), 5.4, palette::range_amber},
    Legend{at(green, 3.5, 13), "TEST", 6},
    Legend{at(amber, -3.5, 13), "TEST", 6},
    heading(middle(-14), "CAT II"),
    Legend{middle(-5.5), "APPROACH", 6.5},
};

constexpr Size size{35, 17};
constexpr Colours armed_captured{lens::amber, lens::green};

constexpr Art art[] = {
    plate(98, items),
    flush_lamp_art("left_arm_lamp", size, lens::green, "ARM"),
    flush_lamp_art("left_localizer_lamp", size, armed_captured, "LOC"),
    flush_lamp_art("left_glide_slope_lamp", size, armed_captured, "GS"),
    flush_lamp_art("speed_lamp", size, armed_captured, "SPD"),
    flush_lamp_art("altitude_lamp", size, armed_captured, "ALT"),
};

constinit Unit unit{"Cat2apsys", art};

}  // namespace artwork::panels::cat2apsys
