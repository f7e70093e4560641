/// Levers, guards and knobs that stand on many panels.
#include "module/bitmaps.h"
#include "resources/art.h"

namespace artwork::panels::switches {

namespace bitmap = tarnvale::bitmap;
using enum Throw;

constexpr Art art[] = {
    lever_art(bitmap::toggle_switch, {14, 41}, {down, up}, {.hub = {7, 20.5}}),
    lever_art(bitmap::three_way_lever, {13, 39}, {centre, up, down}, {.hub = {6.5, 19.5}, .reach = 13}),
    lever_art(bitmap::pump_switch, {18, 30}, {down, up}, {.reach = 9, .ball = 3}),
    lever_art(bitmap::light_lever, {14, 36}, {down, up}, {.reach = 11, .ball = 3}),
    flow_switch_art(bitmap::flow_knob, {26, 26}, {.hub = {12.5, 12.5}, .radius = 11.2, .seat = 12.4}),
    guard_art(bitmap::red_guard, {27, 64}),
    guarded_lever_art(bitmap::disconnect_switch, {27, 64}),
    guarded_knob_art(bitmap::four_way_guarded_switch, {27, 64}),
    guard_art(bitmap::wide_guard, {30, 66}),
    guarded_lever_art(bitmap::wide_guarded_switch, {30, 66}),
};

constinit Unit unit{"", art};

}  // namespace artwork::panels::switches
