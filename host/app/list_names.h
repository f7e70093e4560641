/// The listing of the names by which flows address parts and controls.
#pragma once

#include <string>

#include "host/loader/gauge_module.h"

namespace host {

/// A table of the names of one gauge, or of all where `gauge` is empty. Throws std::runtime_error for a
/// gauge that the module does not have and for a module without names.
std::string list_names(const GaugeModule& module, const std::string& gauge);

}  // namespace host
