/// Bitmaps that several parts of the cockpit share, by what they show.
#pragma once

#include "module/elements.h"

namespace tarnvale::bitmap {

inline constexpr Bitmaps three_way_lever{2080, 3};      ///< centre, up, down
inline constexpr Bitmaps round_light{2110, 2};          ///< lit, dark
inline constexpr Bitmaps off_lamp{2120, 2};             ///< dark, lit; its lens says OFF
inline constexpr Bitmaps toggle_switch{2130, 2};        ///< off, on
inline constexpr Bitmaps flow_knob{2140, 2};            ///< across, in line
inline constexpr Bitmaps disconnect_switch{2150, 2};    ///< off, on; stands under a red guard
inline constexpr Bitmaps red_guard{2160, 2};            ///< closed, open
inline constexpr Bitmaps wide_guarded_switch{2170, 2};  ///< off, on; stands under a wide guard
inline constexpr Bitmaps wide_guard{2180, 2};           ///< closed, open
inline constexpr Bitmaps four_way_guarded_switch{2220,
                                                 4};    ///< four positions; stands under a red guard
inline constexpr Bitmaps pump_switch{3280, 2};          ///< off, on
inline constexpr Bitmaps light_lever{4260, 2};          ///< off, on
inline constexpr Bitmaps landing_light_lever{4310, 2};  ///< off, on
inline constexpr Bitmaps light_button{13230, 2};        ///< dark, lit
inline constexpr Bitmaps selector_figures{13470, 1};    ///< of what the autopilot is told to fly
inline constexpr Bitmaps instrument_lights_knob{13290, 3};  ///< off, dim, bright
inline constexpr Bitmaps panel_lights_button{13310, 2};     ///< dark, lit

}  // namespace tarnvale::bitmap
