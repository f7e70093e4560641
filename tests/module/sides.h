/// Sides of the aircraft in the names of parts, controls and tokens.
#pragma once

#include <string>

namespace sides {

/// A name with the other side in place of the only one that it names: "pump_2" for "pump_1". Empty if
/// it names none or several.
std::string mirrored(const std::string& name);

/// Whether two names mean different sides of one thing. Left, 1 and A are one side, right, 2 and B the
/// other.
bool opposite(const std::string& one, const std::string& two);

}  // namespace sides
