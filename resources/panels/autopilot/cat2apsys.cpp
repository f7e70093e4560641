/// Category II approach: two columns of lenses, and the buttons that test them in green and in amber.
#include "resources/art.h"

namespace artwork::panels::cat2apsys {

constexpr std::string_view green = "green_test_button", amber = "amber_test_button";

constexpr Item items[] = {
    FixedButton{at(green), 5.4, palette::range_green},
    FixedButton{at(amber), 5.4, palette::range_amber},
    Legend{at(green, 3.5, 13), "TEST", 6},
    Legend{at(amber, -3.5, 13), "TEST", 6},
    heading(middle(-14), "CAT II"),
    Legend{middle(-5.5), "APPROACH", 6.5},
};

constexpr Size size{35, 17};
constexpr Colours off_on{lens::amber, lens::green};

constexpr Art art[] = {
    plate(98, items),
    flush_lamp_art("left_arm_lamp", size, lens::green, "ARM"),
    flush_lamp_art("left_localizer_lamp", size, off_on, "LOC"),
    flush_lamp_art("left_glide_slope_lamp", size, off_on, "GS"),
    flush_lamp_art("speed_lamp", size, off_on, "SPD"),
    flush_lamp_art("altitude_lamp", size, off_on, "ALT"),
};

constinit Unit unit{"Cat2apsys", art};

}  // namespace artwork::panels::cat2apsys
