/// First officer's fire warning strip (glareshield): left engine, APU, right engine.
#include "gauges/engines/fire_test.h"
#include "module/catalogue.h"

namespace tarnvale {
namespace {

constinit Body body{
    fofire,
    {
        lamp("Left engine fire light", 20210, {0, 6}, engine_fire_light),
        lamp("APU fire light", 20220, {165, 7}, apu_fire_light),
        lamp("Right engine fire light", 20230, {340, 8}, engine_fire_light),
    },
};

}  // namespace

constinit Gauge fofire{{.name = "Fofire", .width_mm = 450, .background = 20190}, body};

}  // namespace tarnvale
