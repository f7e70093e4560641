/// Stabiliser and speed-brake indicator (main panel).
#include "module/catalogue.h"
#include "module/numbers.h"
#include "module/variables.h"

namespace tarnvale {
namespace {

constexpr i32 pointer = 13340;
constexpr PanelPoint pivot{6, 5};

/// The host knows the speed brake as out or in, and the dial shows it wide open or shut.
f64 speed_brake_angle(Element* needle) {
  constexpr f64 wide_open = 60;
  const f64 out = needle->needle.source.value;
  if (aircraft.speedbrake_armed != 1) return 0;
  return out == 1.0 ? wide_open : out;
}

f64 stabiliser_angle(Element* needle) { return 10 * needle->needle.source.value; }

constexpr Scale<3> speed_brake_scale{{{35, 78}, 0}, {{60, 91}, 30}, {{64, 118}, 60}};
constexpr Scale<3> stabiliser_scale{{{8, 50}, -3}, {{3, 33}, 0}, {{35, 3}, 9}};

constinit Body body{
    sbrake,
    {
        lighting_overlay(13350),
        needle("Speed brake position", pointer, {35, 107}, pivot, speed_brake_scale, speed_brake_angle)
            .from(token::speed_brake),
        needle("Stabiliser position", pointer, {35, 34}, pivot, stabiliser_scale, stabiliser_angle)
            .from(token::stabiliser),
    },
};

}  // namespace

constinit Gauge sbrake{{.name = "Sbrake", .width_mm = 69, .background = 13330}, body};

}  // namespace tarnvale
