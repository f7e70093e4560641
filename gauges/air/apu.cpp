/// APU control panel (overhead): generator, master and bleed switches, the start button, and lights for
/// the armed and the slow APU. The button starts and stops on the left, and tests its light on the
/// right.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

constinit TestClock test_clock;
constinit u32 testing;

/// Armed: a press of the start button starts the APU, which spins up without its generator.
bool armed() { return aircraft.apu_master_switch == 1 && aircraft.apu_gen_switch == 0; }

f64 start_button(Element*) { return aircraft.apu_master_switch == 1 ? aircraft.apu_running : 0; }

/// Image 0 is the lit one.
f64 armed_light(Element*) { return armed() ? 0 : 1; }

/// The master takes a running APU down with it.
i32 press_master(PanelPoint, u32) {
  if (aircraft.apu_master_switch != 0) aircraft.apu_running = aircraft.apu_at_speed = 0;
  aircraft.apu_master_switch = aircraft.apu_master_switch == 0;
  send(event::apu_master);
  request(toggle_click_sound_request);
  return 0;
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

i32 press_start_button(PanelPoint point, u32 flags) {
  if (is_left(flags)) {
    if (aircraft.apu_running == 0 && armed()) {
      start();
    } else {
      stop();
    }
  }
  return is_right(flags) ? tests<test_clock, testing>(point, flags) : 0;
}

}  // namespace

constinit Gauge<15, 5> apu{
    Face{.name = "Apu", .width_mm = 180, .background = 240},
    {
        icon(2070, {102, 81}, 2, start_button),
        lamp(2110, {53, 70}, test_light<test_clock, testing>),
        lamp(2110, {143, 72}, shows<aircraft.apu_speed_above_1000>),
        icon(2130, {150, 28}, 2, shows<aircraft.apu_bleed_switch>),
        icon(2130, {103, 28}, 2, shows<aircraft.apu_master_switch>),
        lamp(2110, {52, 28}, armed_light),
        icon(2080, {10, 27}, 3, shows<aircraft.apu_gen_switch>),
    },
    {
        click({3, 16, 24, 30}, lever_up<aircraft.apu_gen_switch>),
        click({3, 48, 24, 30}, lever_down<aircraft.apu_gen_switch>),
        click({99, 27, 20, 43}, press_master),
        click({146, 27, 20, 43}, toggles<aircraft.apu_bleed_switch>),
        click({99, 77, 22, 22}, press_start_button, Press::either),
    },
};

}  // namespace tarnvale
