/// Where the levers and knobs that many panels share turn, within their pictures.
#pragma once

#include "resources/kit/canvas.h"

namespace artwork {

inline constexpr Point toggle_hub{7, 20.5};
inline constexpr Point three_way_hub{6.5, 19.5};
inline constexpr Point light_toggle_hub{7, 18};
inline constexpr Point pump_toggle_hub{9, 15};
inline constexpr Point flow_switch_hub{12.5, 12.5};

}  // namespace artwork
