#include "module/gauge.h"

#include "module/aircraft.h"
#include "module/host.h"

namespace tarnvale {
namespace {

/// By day the lit copy is hidden. A light that reads as no number counts as dark.
void switch_day_and_night(const Gauge& gauge) {
  if (gauge.lit == nullptr) return;
  const f64 light = read(gauge.light_token);
  const u32 hidden = light != 0.0 && light == light ? 0 : IMAGE_HIDE_CHAIN;
  u32& flags = gauge.lit->image_flags;
  if ((flags & IMAGE_HIDE_CHAIN) != hidden) flags ^= IMAGE_HIDE_CHAIN;
}

void call(void (*routine)()) {
  if (routine != nullptr) routine();
}

}  // namespace

void serve(const GaugeHeader* header, u32 service_id, uintptr_t extra_data) {
  const Gauge& gauge = gauge_of(*header);
  switch (service_id) {
    case SERVICE_BEGIN:
      if (gauge.services.start != nullptr) gauge.services.start(extra_data);
      break;
    case SERVICE_SET_UP: return call(gauge.services.set_up);
    case SERVICE_TICK: switch_day_and_night(gauge); return call(gauge.services.tick);
    case SERVICE_AFTER_VALUES: return call(gauge.services.after_values);
    case SERVICE_BEFORE_DRAW: return call(gauge.services.before_draw);
    case SERVICE_END: return call(gauge.services.end);
  }
}

void serve_light(const GaugeHeader* header, u32 service_id, uintptr_t) {
  if (service_id == SERVICE_TICK) switch_day_and_night(gauge_of(*header));
}

f64 lighting_image(Element*) {
  const u32 level = aircraft.instrument_light_level;
  return level <= 2 ? level : 0;
}

}  // namespace tarnvale
