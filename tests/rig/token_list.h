/// The tokens and key events that gauges use, as a list to walk through.
#pragma once

#include <string_view>

#include "interface/panel_interface.h"

namespace rig {

struct Listed {
  u32 number;
  std::string_view name, unit;
};

#define TOKEN(number, name, unit) {number, #name, unit},
#define EVENT(number, name)
inline constexpr Listed all_tokens[] = {
#include "module/tokens.inc"
};
#undef TOKEN
#undef EVENT
#define TOKEN(number, name, unit)
#define EVENT(number, name) {number, #name, ""},
inline constexpr Listed all_events[] = {
#include "module/tokens.inc"
};
#undef TOKEN
#undef EVENT

}  // namespace rig
