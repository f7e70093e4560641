/// Autopilot control: the test on the left, the switches on the right, the cabin door below them.
#include "resources/art.h"

namespace artwork::panels::apcon {

constexpr std::string_view test = "test_switch", channel = "channel_switch";
constexpr std::string_view mach = "mach_trim_switch", stabiliser = "stabiliser_trim_switch";
constexpr std::string_view master = "autopilot_master_switch", yaw = "yaw_damper_switch";
constexpr std::string_view door = "door_switch", door_light = "door_open_light";

constexpr double name_below = 22;

constexpr Item items[] = {
    CornerScrews{},
    Legend{at(test, -22, -22), "1"},
    Legend{at(test, 0, -30), "OFF"},
    Legend{at(test, 22, -22), "2"},
    Legend{at(test, 0, 31), "TEST"},
    right_of(channel, {.up = "2", .down = "1", .reach = 8}, 12),
    Legend{at(channel, 0, name_below), "CHANNEL"},
    words_between(mach, stabiliser, {.reach = 8}),
    Legend{at(mach, 0, name_below + 3), "MACH\nTRIM", 7},
    Legend{at(stabiliser, 0, name_below + 3), "STAB\nTRIM", 7},
    words_between(master, yaw, {.reach = 8}),
    Legend{at(master, 0, name_below), "A/P"},
    Legend{at(yaw, 0, name_below), "YAW DMP"},
    Line{at(door, -14, -22), at(yaw, 12)},
    left_of(door, {.up = "OPEN", .down = "SHUT", .reach = 8}, 12),
    Legend{at(door_light, 0, 15), "DOOR"},
    Line{{14, 101}, {98, 101}},
    heading({56, 113}, "AUTOPILOT", 11),
    heading({56, 126}, "CONTROL"),
    Line{{14, 136}, {98, 136}},
};

constexpr Lever small_lever{.reach = 9, .ball = 3};
constexpr Lever trim_lever{
    .hub = {5, 16}, .reach = 10, .ball = 2.8, .polish = 13, .mount = 7.2, .nut = 4.8};

constexpr Art art[] = {
    plate(156, items).in_full_colour(),
    knob_art("test_switch", {48, 48}, {0, -45, 45}, {.radius = 18, .seat = 1.8, .ticks = {3.2, 6}}),
    lever_art("channel_switch", {20, 30}, {Throw::down, Throw::up}, small_lever),
    lever_art("stabiliser_trim_switch", {10, 32}, {Throw::down, Throw::up}, trim_lever),
    lever_art("mach_trim_switch", {10, 32}, {Throw::down, Throw::up}, trim_lever),
    flush_lamp_art("door_open_light", {32, 16}, lens::amber, "OPEN", 7.5),
};

constinit Unit unit{"Apcon", art};

}  // namespace artwork::panels::apcon
