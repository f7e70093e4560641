/// The host's token variables and key events that the gauges use, by role; their units stand in the list.
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
}  // namespace window

}  // namespace tarnvale
