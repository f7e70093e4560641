/// Cabin signs and crew call.
#include "resources/art.h"

namespace artwork::panels::stewcall {

constexpr Item items[] = {
    CornerScrews{6.5, 2.6},
    words_between("left_sign_switch", "right_sign_switch", {.reach = 11}),
    Legend{at("left_sign_switch", 0, 26), "NO\nSMKG", 7.5},
    Legend{at("right_sign_switch", 0, 26), "SEAT\nBELT", 7.5},
    FixedButton{at("crew_call_button"), 9, palette::mould_light},
    Legend{at("crew_call_button", 0, -16), "CALL", 7.5},
    heading({58, 108}, "CABIN"),
};

constexpr Art art[] = {
    plate(122, items),
    cap_art("crew_call_light", {24, 18}, lens::blue, "CALL", 6),
};

constinit Unit unit{"Stewcall", art};

}  // namespace artwork::panels::stewcall
