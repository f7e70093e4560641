/// AC/DC meters (overhead): on the left amperes and volts of the selected DC source, on the right
/// frequency and volts of the selected AC source. Without DC power every meter falls to 0. A meter
/// whose source gives no reading keeps its last one.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/numbers.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

/// Selector positions that are not an engine's generator.
constexpr u32 position_off = 0;
constexpr u32 position_apu = 1;       // AC
constexpr u32 position_external = 7;  // AC
constexpr u32 position_tie = 4;       // DC: fed by external power where connected

/// The last reading of each meter.
constinit i32 dc_load, dc_voltage, ac_frequency, ac_voltage;

bool external_power() { return aircraft.ext_power_switch == 1; }

/// Each selector position reads the battery's amperes with an offset of its own.
f64 selected_dc_load(f64 amperes) {
  constexpr f64 offset[] = {0, 0, -2, 6, -15, 8, -3, 4};
  const u32 position = aircraft.dc_meter_selector;
  if (position == position_off) return 0;
  if (position == position_tie && external_power()) return amperes;
  return amperes + offset[position];
}

f64 show_dc_load(Element*) {
  dc_load = aircraft.dc_power_on == 0 ? 0 : whole_i32(selected_dc_load(read(token::dc_amperes)));
  return dc_load;
}

/// The voltmeter's source is read from above and from below the middle of its scale; exactly at the
/// middle it gives nothing new.
i32 selected_dc_voltage(f64 source) {
  constexpr f64 middle = 66;
  constexpr f64 above[] = {0, -18, -20, -19, 0, -18, -20, -19};
  constexpr f64 below[] = {0, 5, 4, 3, 0, 2, 3, 6};
  const u32 position = aircraft.dc_meter_selector;
  if (position == position_off) return 0;
  if (position == position_tie) return whole_i32(source - (external_power() ? 18 : 20));
  if (source > middle) return whole_i32(source + above[position]);
  if (source < middle) return whole_i32(source + below[position]);
  return dc_voltage < 90 ? dc_voltage : 90;
}

f64 show_dc_voltage(Element*) {
  dc_voltage = aircraft.dc_power_on == 0 ? 0 : selected_dc_voltage(read(token::dc_voltmeter));
  return dc_voltage;
}

f64 selected_ac_voltage() {
  constexpr f64 offset[] = {0, 89, 92, 90, 91, 88, 90, 0};
  const u32 position = aircraft.ac_meter_selector;
  if (position == position_off) return 0;
  if (position == position_external) return external_power() ? 270 : 0;
  if (position == position_apu && aircraft.apu_gen_switch != up) return 0;
  return read(position <= 4 ? token::ac_bus_1_voltmeter : token::ac_bus_2_voltmeter) + offset[position];
}

f64 show_ac_voltage(Element*) {
  ac_voltage = aircraft.dc_power_on == 0 ? 0 : whole_i32(selected_ac_voltage());
  return ac_voltage;
}

/// The frequency meter's scale runs from 380 to 420 hertz as 0 to 40. The APU's governor holds 400, and
/// a little above once both engines turn and take the load off it.
i32 apu_frequency() {
  constexpr f64 turning = generator_turning_percent;
  if (aircraft.apu_gen_switch == centre) return 0;
  const f64 eng1 = read(token::engine_1_core_speed);
  const f64 eng2 = read(token::engine_2_core_speed);
  if (aircraft.apu_gen_switch == up && eng1 > turning && eng2 > turning) return 22;
  if (aircraft.apu_gen_switch == up && eng1 < turning && eng2 < turning) return 20;
  return ac_frequency < 360 ? ac_frequency : 360;
}

i32 selected_ac_frequency() {
  constexpr f64 offset[] = {0, 0, 5, 2, 3, 2, 6, 0};
  const u32 position = aircraft.ac_meter_selector;
  if (position == position_off) return 0;
  if (position == position_apu) return apu_frequency();
  if (position == position_external) return external_power() ? 18 : 0;
  return whole_i32(read(position <= 4 ? token::generator_1_load : token::generator_2_load) +
                   offset[position]);
}

f64 show_ac_frequency(Element*) {
  ac_frequency = aircraft.dc_power_on == 0 ? 0 : selected_ac_frequency();
  return ac_frequency;
}

constexpr PanelPoint pivot{4, 1};
constexpr Scale<3> dc_load_scale{{{12, 16}, -120}, {{37, 5}, 0}, {{61, 16}, 120}};
constexpr Scale<4> dc_voltage_scale{{{9, 95}, 0}, {{11, 92}, 45}, {{49, 83}, 66}, {{60, 92}, 90}};
constexpr Scale<3> ac_voltage_scale{{{94, 96}, 0}, {{135, 85}, 270}, {{145, 93}, 360}};
constexpr Scale<4> ac_frequency_scale{{{95, 16}, 0}, {{119, 4}, 20}, {{144, 16}, 40}, {{144, 17}, 360}};

constinit Body body{
    acdc,
    {
        lighting_overlay(360),
        needle("DC ammeter", 350, {37, 38}, pivot, dc_load_scale, show_dc_load),
        needle("DC voltmeter", 350, {36, 112}, pivot, dc_voltage_scale, show_dc_voltage),
        needle("AC voltmeter", 350, {121, 112}, pivot, ac_voltage_scale, show_ac_voltage),
        needle("AC frequency meter", 350, {120, 37}, pivot, ac_frequency_scale, show_ac_frequency),
    },
};

}  // namespace

constinit Gauge acdc{{.name = "Acdc", .width_mm = 157, .background = 340}, body};

}  // namespace tarnvale
