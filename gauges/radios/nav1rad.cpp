/// A second, smaller head of navigation receiver 1 (main panel, GPS window), without the distance test.
#include "gauges/radios/nav_head.h"

namespace tarnvale {
namespace {

constexpr NavHead head{
    .frequencies = {.radio = nav1_radio,
                    .display = {13190, 13180, 13170, 13150},
                    .active = {13, 23},
                    .standby = {89, 23},
                    .transfer_bitmap = 13160,
                    .transfer_light = {58, 53},
                    .transfer_button = {61, 52, 32, 16},
                    .megahertz_down = {8, 54, 22, 38},
                    .megahertz_up = {32, 54, 22, 38},
                    .kilohertz_down = {95, 54, 22, 38},
                    .kilohertz_up = {119, 54, 22, 38}},
    .check_switch = {74, 22},
    .check_switch_up = {71, 15, 11, 14},
    .check_switch_down = {71, 31, 11, 14},
    .check_button = {75, 80},
    .check_button_box = {70, 76, 17, 17},
};

constinit HoldClock timer;
constinit u32 transfer_lit;

constinit Body body{
    nav1rad,
    nav_rows<head, &timer, &transfer_lit>(),
    areas(frequency_areas<head.frequencies, &timer, &transfer_lit>(), check_button_area<head>(),
          check_switch_areas<head>()),
};

}  // namespace

constinit Gauge nav1rad{{.name = "Nav1rad", .width_mm = 144, .background = 13140}, body};

}  // namespace tarnvale
