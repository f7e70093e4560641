/// The host's token variables and key events that the gauges use, by role; their units stand in the
/// list.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale {

/// Host token variables: numbers of the host's, read with read().
namespace token {
#define TOKEN(number, name, unit) inline constexpr u32 name = number;
#define EVENT(number, name)
#include "module/tokens.inc"
#undef TOKEN
#undef EVENT
}  // namespace token

/// Host key events: numbers of the host's, sent with send().
namespace event {
#define TOKEN(number, name, unit)
#define EVENT(number, name) inline constexpr u32 name = number;
#include "module/tokens.inc"
#undef TOKEN
#undef EVENT
}  // namespace event

/// Panel windows of the host.
namespace window {
inline constexpr u32 captain_day = 20;
inline constexpr u32 first_officer_day = 21;
inline constexpr u32 captain_night = 27;
inline constexpr u32 first_officer_night = 28;
inline constexpr u32 captain = 500;
inline constexpr u32 first_officer = 501;
inline constexpr u32 overhead = 502;
inline constexpr u32 pedestal = 503;
inline constexpr u32 throttle = 504;
inline constexpr u32 pushback = 505;
inline constexpr u32 utility = 506;
inline constexpr u32 gps = 507;
}  // namespace window

}  // namespace tarnvale
