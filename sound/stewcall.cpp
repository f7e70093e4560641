/// Cabin signs and crew call (overhead): the two sign switches chime in the cabin, the call button
/// rings for the crew and lights up for a moment.
#include "module/bitmaps.h"
#include "module/body.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit u32 calling;
constinit HoldClock call_clock;

void call_crew() {
  start_hold(call_clock, calling);
  request(stewcall_sound_request);
}

template <auto sign, u32 event>
void switch_sign() {
  flip(variable<sign>());
  send_and_click<signs_sound_request, event>();
}

constinit Body body{
    stewcall,
    {
        icon("Right sign switch", bitmap::toggle_switch, {55, 12},
             shows<&Aircraft::cabin_sign_right_on>)
            .from(token::right_cabin_sign),
        icon("Left sign switch", bitmap::toggle_switch, {19, 12}, shows<&Aircraft::cabin_sign_left_on>)
            .from(token::left_cabin_sign),
        lamp("Crew call light", 1040, {51, 77}, held_lit<&call_clock, &calling>),
    },
    {
        click("Crew call button", {12, 93, 22, 22}, does<call_crew>),
        click("Left sign switch", {16, 11, 18, 43},
              does<switch_sign<&Aircraft::cabin_sign_left_on, event::left_cabin_sign_toggle>>),
        click("Right sign switch", {52, 11, 18, 43},
              does<switch_sign<&Aircraft::cabin_sign_right_on, event::right_cabin_sign_toggle>>),
    },
};

}  // namespace

constinit Gauge stewcall{{.name = "Stewcall", .width_mm = 82, .background = 1030}, body};

}  // namespace tarnvale
