/// Captain's fire warning strip (glareshield): left engine, APU, right engine. Its first light keeps
/// the time of the fire test for the whole cockpit.
#include "gauges/engines/fire_test.h"
#include "module/catalogue.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

f64 left_light(Element* element) {
  SharedHoldClock timer{aircraft.fire_test_deadline, aircraft.fire_test_clock};
  hold_goes_on(timer, aircraft.fire_test_active);
  return engine_fire_light(element);
}

constinit Body body{
    cafire,
    {
        lamp("Left engine fire light", 13050, {4, 4}, left_light),
        lamp("APU fire light", 13060, {183, 5}, apu_fire_light),
        lamp("Right engine fire light", 13070, {359, 6}, engine_fire_light),
    },
};

}  // namespace

constinit Gauge cafire{{.name = "Cafire", .width_mm = 448, .background = 13040}, body};

}  // namespace tarnvale
