/// Every gauge of the module, declared with its sizes.
#pragma once

#include "module/gauge.h"

namespace tarnvale {

#define GAUGE(gauge, elements, click_areas) extern constinit Gauge<elements, click_areas> gauge;
#include "module/catalogue.inc"
#undef GAUGE

}  // namespace tarnvale
