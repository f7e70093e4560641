/// What can be seen and heard of a gauge.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/rig/rig.h"

namespace walk {

/// What a gauge shows: the values of its parts, and of a text the letters as a number.
using Picture = std::vector<f64>;
Picture picture(const rig::Gauge& gauge);

/// Of the click just made: "toggle", "push", "other" or nothing. The requests are taken back.
std::string sounds_of_click();

/// The part that a control works, which it is named after: "start_selector" for "start_selector_off".
/// Null for a button that is printed on its plate.
const rig::NamedPart* part_of(const rig::Gauge& gauge, std::string_view control);

}  // namespace walk
