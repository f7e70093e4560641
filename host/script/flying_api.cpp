#include "host/script/flow_api.h"
#include "host/script/named_fields.h"
#include "host/simulation/world/airfield.h"

namespace host {
namespace {

using simulation::FlightControls;
using simulation::InFlight;
using simulation::Weather;

constexpr std::string_view gear_positions[] = {"up", "down"};

bool gear_is_down(const LuaField& field) { return field.one_of(gear_positions) == 1; }
std::size_t flap_detent(const LuaField& field) { return field.one_of(simulation::flap_detents_deg); }

template <double FlightControls::*control, int least>
void take_ratio(FlightControls& controls, const LuaField& field) {
  controls.*control = field.number(least, 1);
}

template <std::array<double, 2> FlightControls::*control>
void take_both(FlightControls& controls, const LuaField& field) {
  controls.*control = field.both(0, 1);
}

template <bool FlightControls::*control>
void take_truth(FlightControls& controls, const LuaField& field) {
  controls.*control = field.truth();
}

constexpr KnownField<FlightControls> control_fields[] = {
    {"elevator", take_ratio<&FlightControls::elevator, -1>},
    {"aileron", take_ratio<&FlightControls::aileron, -1>},
    {"rudder", take_ratio<&FlightControls::rudder, -1>},
    {"pitch_trim", take_ratio<&FlightControls::pitch_trim, -1>},
    {"aileron_trim", take_ratio<&FlightControls::aileron_trim, -1>},
    {"rudder_trim", take_ratio<&FlightControls::rudder_trim, -1>},
    {"throttle", take_both<&FlightControls::throttle>},
    {"flaps", [](FlightControls& c, const LuaField& field) { c.flap_detent = flap_detent(field); }},
    {"gear", [](FlightControls& c, const LuaField& field) { c.gear_down = gear_is_down(field); }},
    {"speed_brake", take_ratio<&FlightControls::speed_brake, 0>},
    {"lift_dumpers", take_truth<&FlightControls::lift_dumpers_out>},
    {"brakes", take_both<&FlightControls::brake>},
    {"tiller", take_ratio<&FlightControls::tiller, -1>},
    {"parking_brake", take_truth<&FlightControls::parking_brake_set>},
};

constexpr KnownField<Weather> weather_fields[] = {
    // The tower tells the wind as the compass shows it.
    {"wind_from",
     [](Weather& w, const LuaField& field) {
       w.wind.from_true_deg = field.number(0, 360) + simulation::magnetic_variation_deg;
     }},
    {"wind_speed", [](Weather& w, const LuaField& field) { w.wind.speed_kt = field.number(0, 150); }},
    {"gusts", [](Weather& w, const LuaField& field) { w.wind.gust_mps = field.number(0, 10); }},
    {"pressure",
     [](Weather& w, const LuaField& field) { w.sea_level_pressure_hpa = field.number(900, 1100); }},
    {"warmer_by",
     [](Weather& w, const LuaField& field) { w.warmer_by_celsius = field.number(-60, 60); }},
};

constexpr double farthest_m = 200000;

constexpr KnownField<InFlight> place_fields[] = {
    {"altitude", [](InFlight& p, const LuaField& field) { p.altitude_ft = field.number(0, 60000); }},
    {"airspeed", [](InFlight& p, const LuaField& field) { p.airspeed_kt = field.number(50, 400); }},
    {"mach", [](InFlight& p, const LuaField& field) { p.mach = field.number(0, 0.95); }},
    {"heading", [](InFlight& p, const LuaField& field) { p.heading_deg = field.number(0, 360); }},
    {"along",
     [](InFlight& p, const LuaField& field) { p.along_m = field.number(-farthest_m, farthest_m); }},
    {"right",
     [](InFlight& p, const LuaField& field) { p.right_m = field.number(-farthest_m, farthest_m); }},
    {"flaps", [](InFlight& p, const LuaField& field) { p.flap_detent = flap_detent(field); }},
    {"gear", [](InFlight& p, const LuaField& field) { p.gear_down = gear_is_down(field); }},
};

void place_in_flight(const LuaCall& call, AircraftModel& aircraft) {
  const InFlight place = with_fields<InFlight>({}, "place_in_flight", call, place_fields);
  if (!aircraft.place_in_flight(place))
    throw std::runtime_error("the aircraft cannot fly level there and like that");
}

}  // namespace

void bind_flying(LuaRunner& runner, FlowSession& session) {
  AircraftModel& aircraft = session.cockpit().aircraft();
  runner.bind("fly", [&](LuaCall& call) {
    aircraft.controls() = with_fields<FlightControls>(aircraft.controls(), "fly", call, control_fields);
  });
  runner.bind("weather", [&](LuaCall& call) {
    aircraft.weather() = with_fields<Weather>(aircraft.weather(), "weather", call, weather_fields);
  });
  runner.bind("make_ready", [&](LuaCall&) { aircraft.make_ready(); });
  runner.bind("place_on_runway", [&](LuaCall&) { aircraft.place_on_runway(); });
  runner.bind("place_in_flight", [&](LuaCall& call) { place_in_flight(call, aircraft); });
}

}  // namespace host
