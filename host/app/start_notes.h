/// What a person is told when the cockpit opens.
#pragma once

#include "host/loader/gauge_module.h"

namespace host {

/// Says on standard error what of the module's artwork and sounds is missing, damaged or of no use.
void say_start_notes(const GaugeModule& module);

}  // namespace host
