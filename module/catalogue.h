/// Every gauge of the module.
#pragma once

#include "module/bitmaps.h"
#include "module/body.h"

namespace tarnvale {

#define GAUGE(gauge) extern constinit Gauge gauge;
#include "module/catalogue.inc"
#undef GAUGE

}  // namespace tarnvale
