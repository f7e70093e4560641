/// Fuel computer selectors: what its left and right displays show.
#include "resources/art.h"

namespace artwork::panels::coltsw {

constexpr std::string_view left = "left_selector", right = "right_selector";

constexpr Legend word(std::string_view selector, Point by, std::string_view text) {
  return {at(selector, by.x, by.y), text, 6.5};
}

constexpr Item items[] = {
    Screw{{64.5, 8}, 15, 3.2},
    Screw{{64.5, 39}, 62, 3.2},
    word(left, {-16, -15}, "FLOW"),
    word(left, {0, -21.5}, "QTY"),
    word(left, {15.5, -15}, "TEST"),
    word(right, {-16, -15}, "FLOW"),
    word(right, {0, -21.5}, "QTY"),
    word(right, {15.5, -15}, "TEST"),
    word(left, {0, 17.5}, "LEFT"),
    word(right, {0, 17.5}, "RIGHT"),
    Line{at(left, -22, 26), middle(0, -36)},
    Line{at(right, 22, 26), middle(0, 36)},
    Legend{middle(-6.5), "FUEL COMPUTER"},
};

constexpr Art art[] = {
    plate(60, items),
    knob_art("left_selector", {27, 30}, {0, -60, 60}, {.radius = 11, .seat = 1.2, .ticks = {2.4, 4.6}}),
};

constinit Unit unit{"Coltsw", art};

}  // namespace artwork::panels::coltsw
