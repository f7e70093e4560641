/// Fuel request switch (pedestal): a lever that springs back two seconds after it was pushed.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit HoldClock spring;
constinit u32 pushed;

void push_lever() {
  start_hold(spring, pushed);
  send_and_click<click_sound_request, event::fuel_request>();
}

constinit Body body{
    fuelreq,
    {
        icon("Fuel request lever", bitmap::light_lever, {30, 17}, held_lit<&spring, &pushed>),
    },
    {
        click("Fuel request lever", {24, 14, 24, 44}, does<push_lever>),
    },
};

}  // namespace

constinit Gauge fuelreq{{.name = "Fuelreq", .width_mm = 192, .background = 24260}, body};

}  // namespace tarnvale
