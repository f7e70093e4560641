/// Names that a person may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

/// "; did you mean battery_switch?" with the names that are nearest to the mistaken one, up to three;
/// empty where none looks alike. A name that goes on where the mistaken one ends is very near.
std::string did_you_mean(std::string_view mistaken, const std::vector<std::string_view>& names);

}  // namespace host
