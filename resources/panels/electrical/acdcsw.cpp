/// Meter selectors: which source the DC and the AC meters read.
#include "resources/art.h"

namespace artwork::panels::acdcsw {

/// Four names on either side of a knob, each level with its tick.
constexpr Legend name(std::string_view knob, int position, std::string_view text) {
  constexpr double aside[] = {14, 19.5, 19.5, 9, 9, 19.5, 19.5, 14};
  constexpr double below[] = {22, 7.5, -7.5, -22, -22, -7.5, 7.5, 22};
  return position < 4 ? ending(at(knob, -aside[position], below[position]), text)
                      : beginning(at(knob, aside[position], below[position]), text);
}

constexpr std::string_view dc = "dc_meter_selector", ac = "ac_meter_selector";

constexpr Item items[] = {
    CornerScrews{6.5, 3},
    heading(at(dc, 0, 23), "DC", 10),
    heading(at(ac, 0, 23), "AC", 10),
    name(dc, 0, "OFF"),
    name(dc, 1, "BAT"),
    name(dc, 2, "DC1"),
    name(dc, 3, "DC2"),
    name(dc, 4, "EXT"),
    name(dc, 5, "TR1"),
    name(dc, 6, "TR2"),
    name(dc, 7, "ESS"),
    name(ac, 0, "OFF"),
    name(ac, 1, "APU"),
    name(ac, 2, "G1"),
    name(ac, 3, "AC1"),
    name(ac, 4, "ESS"),
    name(ac, 5, "G2"),
    name(ac, 6, "AC2"),
    name(ac, 7, "EXT"),
};

constexpr Art art[] = {
    plate(72, items),
    knob_art("dc_meter_selector", {54, 56}, {-140, -100, -60, -20, 20, 60, 100, 140},
             {.radius = 11.5, .seat = 1.4, .ticks = {2.6, 5.5}}),
};

constinit Unit unit{"Acdcsw", art};

}  // namespace artwork::panels::acdcsw
