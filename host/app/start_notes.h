/// What a person is told when the cockpit opens.
#pragma once

#include "host/loader/gauge_module.h"

namespace host {

/// Says on standard error what of the module's artwork is missing or damaged.
void say_artwork_notes(const GaugeModule& module);

}  // namespace host
