/// Fire handles (pedestal): left engine, APU, right engine. They light for the fire test; pulled or
/// turned they drive nothing else.
#include "gauges/engines/fire_test.h"
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr u32 highest = 2;

constinit u32 left, apu_handle, right;

template <auto handle>
f64 handle_image(Element*) {
  return fire_tested() ? 1 : *handle;
}

/// One bell rings for all three.
f64 left_image(Element* element) {
  if (fire_tested()) request(fire_sound_request);
  return handle_image<&left>(element);
}

/// The left button moves a handle down by one position, the right button up.
template <auto handle>
void move(u32 buttons) {
  if (is_left(buttons) && *handle > 0) --*handle;
  if (is_right(buttons) && *handle < highest) ++*handle;
  request(toggle_click_sound_request);
}

constinit Body body{
    firesw,
    {
        icon("Left fire handle", {4360, 3}, {12, 4}, left_image),
        icon("APU fire handle", {4370, 3}, {61, 4}, handle_image<&apu_handle>),
        icon("Right fire handle", {4380, 3}, {113, 4}, handle_image<&right>),
    },
    {
        click("Left fire handle", {12, 4, 36, 45}, does<move<&left>>, Press::either),
        click("APU fire handle", {61, 4, 36, 45}, does<move<&apu_handle>>, Press::either),
        click("Right fire handle", {113, 4, 36, 45}, does<move<&right>>, Press::either),
    },
};

}  // namespace

constinit Gauge firesw{{.name = "Firesw", .width_mm = 162, .background = 4350}, body};

}  // namespace tarnvale
