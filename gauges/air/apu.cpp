/// APU control panel (overhead): generator, master and bleed switches, the start button, and lights for
/// the armed and the slow APU. The button starts and stops on the left, and tests its light on the
/// right.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit HoldClock test_clock;
constinit u32 testing;

/// Armed: a press of the start button starts the APU, which spins up without its generator.
bool armed() { return aircraft.apu_master_switch == 1 && aircraft.apu_gen_switch == centre; }

f64 start_button(Element*) { return aircraft.apu_master_switch == 1 ? aircraft.apu_running : 0; }

/// Image 0 is the lit one.
f64 armed_light(Element*) { return armed() ? 0 : 1; }

/// The master takes a running APU down with it.
void press_master() {
  if (aircraft.apu_master_switch != 0) aircraft.apu_running = aircraft.apu_at_speed = 0;
  toggle<&Aircraft::apu_master_switch, event::apu_master_moved>();
}

/// One air-conditioning supply gives the starting APU its relief; with none or both it stays put.
void start() {
  if (aircraft.aircon_left_on == aircraft.aircon_right_on) return;
  aircraft.apu_running = 1;
  send(event::apu_start);
  request(apu_sound_request);
}

void stop() {
  aircraft.apu_running = 0;
  send(event::apu_stop);
}

void press_start_button(u32 buttons) {
  if (is_left(buttons)) {
    if (aircraft.apu_running == 0 && armed()) {
      start();
    } else {
      stop();
    }
  }
  if (is_right(buttons)) test<&test_clock, &testing>();
}

constinit Body body{
    apu,
    {
        icon("Start button", 2070, {102, 81}, start_button),
        lamp("Test light", bitmap::round_light, {53, 70}, test_light<&test_clock, &testing>),
        lamp("Low speed light", bitmap::round_light, {143, 72}, shows<&Aircraft::apu_speed_above_1000>),
        icon("Bleed switch", bitmap::toggle_switch, {150, 28}, shows<&Aircraft::apu_bleed_switch>),
        icon("Master switch", bitmap::toggle_switch, {103, 28}, shows<&Aircraft::apu_master_switch>),
        lamp("Armed light", bitmap::round_light, {52, 28}, armed_light),
        icon("Generator switch", bitmap::three_way_lever, {10, 27}, shows<&Aircraft::apu_gen_switch>),
    },
    {
        click("Generator switch up", {3, 16, 24, 30}, lever_up<&Aircraft::apu_gen_switch>),
        click("Generator switch down", {3, 48, 24, 30}, lever_down<&Aircraft::apu_gen_switch>),
        click("Master switch", {99, 27, 20, 43}, does<press_master>),
        click("Bleed switch", {146, 27, 20, 43}, toggles<&Aircraft::apu_bleed_switch>),
        click("Start button", {99, 77, 22, 22}, does<press_start_button>, Press::either),
    },
};

}  // namespace

constinit Gauge apu{{.name = "Apu", .width_mm = 180, .background = 240}, body};

}  // namespace tarnvale
