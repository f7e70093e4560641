/// What the commands look up in a module, and what they say of it.
#pragma once

#include <string>

#include "host/panel/name_book.h"

namespace host {

/// Throws std::runtime_error for a gauge that the module does not have.
const GaugeHeader& find_gauge(const GaugeModule& module, const std::string& name);

/// Says on standard error which lines of the names file are wrong.
void say_notes(const NameBook& names);

}  // namespace host
