/// Standby attitude indicator (main panel): horizon and bank pointer alone.
#include "gauges/instruments/horizon.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constinit Body body{
    adisafe,
    rows(all_failing_with(failure::attitude,
                          {
                              sprite("Horizon", 13010, {0, 0}, {53, 52}, horizon_motion(1)),
                              needle("Bank pointer", 12490, {51, 54}, {2, 37})
                                  .from(token::bank_pointer)
                                  .flags(image_flag::transparent),
                          })),
};

}  // namespace

constinit Gauge adisafe{{.name = "Adisafe", .width_mm = 103, .background = 12480}, body};

}  // namespace tarnvale
