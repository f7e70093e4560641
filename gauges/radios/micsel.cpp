/// Audio selector (pedestal): which transmitter the microphone goes to, and which receivers'
/// identifications are heard.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 transmit[3];  // transmitter 1, 2, both
constinit u32 audio[3];     // receiver 1, 2, direction finder

template <u32 button>
f64 transmit_light(Element*) {
  return transmit[button];
}
template <u32 button>
f64 audio_light(Element*) {
  return audio[button];
}

/// One transmitter at a time; the third button lights all three.
template <u32 button, u32 event>
void press_transmit() {
  constexpr u32 both = 2;
  const u32 on = transmit[button] == 0;
  if (on != 0) transmit[0] = transmit[1] = transmit[2] = button == both;
  transmit[button] = on;
  send_and_click<click_sound_request, event>();
}

template <u32 button, u32 on_event, u32 off_event>
void press_audio() {
  flip(audio[button]);
  send(audio[button] != 0 ? on_event : off_event);
  request(click_sound_request);
}

constexpr Box button(i32 x, i32 y) { return {x, y, 24, 24}; }

constinit Body body{
    micsel,
    {
        lamp("VHF 1 microphone button", 3090, {10, 85}, transmit_light<0>),
        lamp("VHF 2 microphone button", 3090, {41, 85}, transmit_light<1>),
        lamp("Both microphones button", 3090, {72, 85}, transmit_light<2>),
        lamp("NAV 1 audio button", 3110, {10, 130}, audio_light<0>),
        lamp("NAV 2 audio button", 3110, {41, 130}, audio_light<1>),
        lamp("ADF audio button", 3120, {72, 130}, audio_light<2>),
    },
    {
        click("VHF 1 microphone button", button(6, 81),
              does<press_transmit<0, event::transmit_on_com1>>),
        click("VHF 2 microphone button", button(37, 81),
              does<press_transmit<1, event::transmit_on_com2>>),
        click("Both microphones button", button(68, 81),
              does<press_transmit<2, event::receive_all_toggle>>),
        click("NAV 1 audio button", button(6, 126),
              does<press_audio<0, event::nav1_identification_on, event::nav1_identification_off>>),
        click("NAV 2 audio button", button(37, 126),
              does<press_audio<1, event::nav2_identification_on, event::nav2_identification_off>>),
        click("ADF audio button", button(68, 126),
              does<press_audio<2, event::adf_identification_on, event::adf_identification_off>>),
    },
};

}  // namespace

constinit Gauge micsel{{.name = "Micsel", .width_mm = 194, .background = 3080}, body};

}  // namespace tarnvale
