#include <algorithm>

#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double control_full = 16384.0;
constexpr double brake_full = 32767.0;

// The pointers of both hydraulic dials end at 14,500,000, which is 4,000 psi, and their quantities are
// full at 16384.
constexpr double hydraulic_units_per_psi = 14'500'000.0 / 4000.0;
constexpr double reservoir_full = 16384.0;

template <std::size_t engine>
double throttle(const Aircraft& aircraft) {
  return control_full * std::clamp(aircraft.controls.throttle[engine], 0.0, 1.0);
}

// A lever pulled beyond its idle stop sends less than nothing.
template <std::size_t engine>
void set_throttle(Aircraft& aircraft, std::uint32_t value) {
  const double position = static_cast<std::int32_t>(value);
  aircraft.controls.throttle[engine] = std::clamp(position / control_full, 0.0, 1.0);
}

template <std::size_t side>
double brake(const Aircraft& aircraft) {
  return brake_full * aircraft.brakes.pressure_ratio[side];
}

double lift_dumpers(const Aircraft& aircraft) {
  return control_full * aircraft.airframe.surfaces.lift_dumpers;
}

template <HydraulicSystem Hydraulics::*system>
double pressure(const Aircraft& aircraft) {
  return hydraulic_units_per_psi * (aircraft.hydraulics.*system).pressure_psi;
}

template <HydraulicSystem Hydraulics::*system>
double quantity(const Aircraft& aircraft) {
  return reservoir_full * (aircraft.hydraulics.*system).quantity_ratio();
}

template <bool FlightControls::*control, bool position>
void put(Aircraft& aircraft, std::uint32_t) {
  aircraft.controls.*control = position;
}

template <int detents>
void move_flap_lever(Aircraft& aircraft, std::uint32_t) {
  const int last = static_cast<int>(flap_detents_deg.size()) - 1;
  const int detent = static_cast<int>(aircraft.controls.limited().flap_detent) + detents;
  aircraft.controls.flap_detent = static_cast<std::size_t>(std::clamp(detent, 0, last));
}

constexpr TokenRow tokens[] = {
    {{128, "throttle_1", "0..16384"}, throttle<0>},
    {{163, "throttle_2", "0..16384"}, throttle<1>},
    {{150, "flight_hydraulic_pressure", "1/3625 psi"}, pressure<&Hydraulics::flight>},
    {{151, "flight_hydraulic_quantity", "1/16384"}, quantity<&Hydraulics::flight>},
    {{185, "utility_hydraulic_pressure", "1/3625 psi"}, pressure<&Hydraulics::utility>},
    {{186, "utility_hydraulic_quantity", "1/16384"}, quantity<&Hydraulics::utility>},
    {{320, "left_brake", "0..32767"}, brake<0>},
    {{321, "right_brake", "0..32767"}, brake<1>},
    {{323, "parking_brake", "0 released, 32767 set"},
     [](const Aircraft& a) { return a.controls.parking_brake_set ? brake_full : 0.0; }},
    {{326, "left_lift_dumper", "0..16384"}, lift_dumpers},
    {{327, "right_lift_dumper", "0..16384"}, lift_dumpers},
    {{869, "speed_brake", "0/1"},
     [](const Aircraft& a) { return on_off(a.controls.speed_brake > 0.0); }},
};

constexpr EventRow events[] = {
    {{0x1011C, "throttle_1_set", "0..16384"}, set_throttle<0>},
    {{0x1011D, "throttle_2_set", "0..16384"}, set_throttle<1>},
    {{0x100DE, "flap_lever_down", ""}, move_flap_lever<1>},
    {{0x100DF, "flap_lever_up", ""}, move_flap_lever<-1>},
    {{0x100D8, "parking_brake_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.controls.parking_brake_set = !a.controls.parking_brake_set; }},
    {{0x104A0, "brake_control_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.brakes.antiskid_on = !a.brakes.antiskid_on; }},
    {{0x10357, "speed_brake_toggle", ""},
     [](Aircraft& a, std::uint32_t) {
       a.controls.speed_brake = a.controls.speed_brake > 0.0 ? 0.0 : 1.0;
     }},
    {{0x10210, "lift_dumpers_out", ""}, put<&FlightControls::lift_dumpers_out, true>},
    {{0x10211, "lift_dumpers_in", ""}, put<&FlightControls::lift_dumpers_out, false>},
    {{0x10212, "lift_dumpers_arm", ""}, put<&FlightControls::lift_dumpers_armed, true>},
    {{0x10213, "lift_dumpers_disarm", ""}, put<&FlightControls::lift_dumpers_armed, false>},
};

}  // namespace

constinit const SystemRows pedestal_rows{tokens, events};

}  // namespace host::simulation
