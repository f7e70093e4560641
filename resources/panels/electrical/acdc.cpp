/// AC and DC meters: four small dials on one plate. Their needles count divisions; the dials say volts
/// and hertz.
#include "resources/art.h"

namespace artwork::panels::acdc {

constexpr double end = 31;  // degrees by which the outermost figures stand outside the scale

// The needle rests at zero in the middle, which needs no figure.
constexpr Print amperes[] = {
    Marks{-120, 120, 30, 5, 1.3},
    Marks{-120, 120, 10, 3, 0.7},
    Figures{{{-120, -end}, -60, 60, {120, end}}, 6.5, 7.5},
};
constexpr Print dc_volts[] = {
    Band{26, 30, palette::range_green}, MarksAt{{0}, 5, 1.3},
    Marks{20, 36, 4, 5, 1.3},           Marks{20, 28, 1, 3, 0.7},
    Marks{28, 36, 2, 3, 0.7},           Figures{{{0, -22}, 20, 28, {36, 20}}, 6.5, 7.5},
};
constexpr Print ac_volts[] = {
    Band{110, 120, palette::range_green},
    MarksAt{{0, 50, 115, 150}, 5, 1.3},
    Marks{0, 150, 10, 3, 0.7},
    Figures{{{0, -22}, 50, 115, {150, 22}}, 6.5, 7.5},
};
constexpr Print hertz[] = {
    Band{396, 404, palette::range_green},
    Marks{380, 420, 10, 5, 1.3},
    Marks{380, 420, 2, 3, 0.7},
    Figures{{{380, -end}, 400, {420, end}}, 6.5, 7.5},
};

constexpr Dial meter(Scale scale, std::string_view current, std::string_view quantity) {
  scale.rim = 28.6;
  return {.radius = 34.5, .scales = {scale}, .words = {{current, {0, 12}, 10}, {quantity, {0, 21}}}};
}

constexpr Item items[] = {
    Screw{middle(7), 119},
    Screw{middle(75), 195},
    Screw{middle(-7), 271},
    meter({.needle = "dc_ammeter", .print = amperes}, "DC", "AMPERES"),
    meter({.needle = "dc_voltmeter", .print = dc_volts, .per = 66.0 / 28}, "DC", "VOLTS"),
    meter({.needle = "ac_voltmeter", .print = ac_volts, .per = 270.0 / 115}, "AC", "VOLTS"),
    meter({.needle = "ac_frequency_meter", .print = hertz, .zero = 380}, "AC", "FREQ"),
};

constexpr Art art[] = {
    plate(150, items),
    needle_art("dc_ammeter", {.length = 25, .tail = 4}),
};

constinit Unit unit{"Acdc", art};

}  // namespace artwork::panels::acdc
