#include "host/hands/actions.h"

namespace host {
namespace {

using enum Control;
using enum Motion;

constexpr double throttle_rate = 0.35, trim_rate = 0.07;  // of the way, a second

constexpr ActionRow actions[] = {
    {"stick_forward", "Stick forward", spring, -1, {elevator}},
    {"stick_back", "Stick back", spring, 1, {elevator}},
    {"stick_left", "Stick left", spring, -1, {aileron}},
    {"stick_right", "Stick right", spring, 1, {aileron}},
    {"stick_centre", "Stick to the middle", set, 0, {}},
    {"rudder_left", "Left pedal", spring, -1, {rudder}},
    {"rudder_right", "Right pedal", spring, 1, {rudder}},
    {"tiller_left", "Tiller left", spring, -1, {tiller}},
    {"tiller_right", "Tiller right", spring, 1, {tiller}},
    {"trim_up", "Trim nose up", ramp, trim_rate, {pitch_trim}},
    {"trim_down", "Trim nose down", ramp, -trim_rate, {pitch_trim}},
    {"aileron_trim_left", "Aileron trim left", ramp, -trim_rate, {aileron_trim}},
    {"aileron_trim_right", "Aileron trim right", ramp, trim_rate, {aileron_trim}},
    {"rudder_trim_left", "Rudder trim left", ramp, -trim_rate, {rudder_trim}},
    {"rudder_trim_right", "Rudder trim right", ramp, trim_rate, {rudder_trim}},
    {"throttle_up", "Throttles forward", ramp, throttle_rate, {throttle_1, throttle_2}},
    {"throttle_down", "Throttles back", ramp, -throttle_rate, {throttle_1, throttle_2}},
    {"throttle_1_up", "Throttle 1 forward", ramp, throttle_rate, {throttle_1}},
    {"throttle_1_down", "Throttle 1 back", ramp, -throttle_rate, {throttle_1}},
    {"throttle_2_up", "Throttle 2 forward", ramp, throttle_rate, {throttle_2}},
    {"throttle_2_down", "Throttle 2 back", ramp, -throttle_rate, {throttle_2}},
    {"throttle_full", "Throttles full", set, 1, {throttle_1, throttle_2}},
    {"throttle_idle", "Throttles idle", set, 0, {throttle_1, throttle_2}},
    {"brakes", "Brakes", spring, 1, {brake_left, brake_right}},
    {"brake_left", "Left brake", spring, 1, {brake_left}},
    {"brake_right", "Right brake", spring, 1, {brake_right}},
    {"parking_brake", "Parking brake", flip, 0, {parking_brake}},
    {"flaps_up", "Flaps a detent up", step, -1, {flaps}},
    {"flaps_down", "Flaps a detent down", step, 1, {flaps}},
    {"gear", "Gear lever", flip, 0, {gear}},
    {"speed_brake", "Speed brake", flip, 0, {speed_brake}},
    {"lift_dumpers", "Lift dumpers", flip, 0, {lift_dumpers}},
    {"look_left", "Look left", look, -1, {}, WindowAction::look_right},
    {"look_right", "Look right", look, 1, {}, WindowAction::look_right},
    {"look_up", "Look up", look, 1, {}, WindowAction::look_up},
    {"look_down", "Look down", look, -1, {}, WindowAction::look_up},
    {"mouse_yoke", "Fly with the mouse", window, 0, {}, WindowAction::mouse_yoke},
    {"controls_page", "What each control does", window, 0, {}, WindowAction::controls_page},
};

constexpr AxisRow axes[] = {
    {"elevator", "Elevator", {elevator}, false},
    {"aileron", "Ailerons", {aileron}, false},
    {"rudder", "Rudder", {rudder}, false},
    {"tiller", "Tiller", {tiller}, false},
    {"throttle", "Throttles", {throttle_1, throttle_2}, true},
    {"throttle_1", "Throttle 1", {throttle_1}, true},
    {"throttle_2", "Throttle 2", {throttle_2}, true},
    {"speed_brake", "Speed brake", {speed_brake}, true},
    {"brakes", "Brakes", {brake_left, brake_right}, true},
    {"brake_left", "Left brake", {brake_left}, true},
    {"brake_right", "Right brake", {brake_right}, true},
};

}  // namespace

std::span<const ActionRow> action_table() { return actions; }
std::span<const AxisRow> axis_table() { return axes; }

}  // namespace host
