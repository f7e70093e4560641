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

// ---- Controls: how a flow sets each, and how it finds where it stands

struct Control {
  KnownField<FlightControls> field;
  LuaField::Value (*position)(const FlightControls&);
};

template <double FlightControls::*ratio, int least>
constexpr Control lever(std::string_view name) {
  return {{name, [](FlightControls& c, const LuaField& field) { c.*ratio = field.number(least, 1); }},
          [](const FlightControls& c) -> LuaField::Value { return c.*ratio; }};
}

template <std::array<double, 2> FlightControls::*ratios>
constexpr Control levers(std::string_view name) {
  return {{name, [](FlightControls& c, const LuaField& field) { c.*ratios = field.both(0, 1); }},
          [](const FlightControls& c) -> LuaField::Value {
            return std::vector((c.*ratios).begin(), (c.*ratios).end());
          }};
}

template <bool FlightControls::*flag>
constexpr Control latch(std::string_view name) {
  return {{name, [](FlightControls& c, const LuaField& field) { c.*flag = field.truth(); }},
          [](const FlightControls& c) -> LuaField::Value { return c.*flag; }};
}

constexpr Control flap_lever{
    {"flaps", [](FlightControls& c, const LuaField& field) { c.flap_detent = flap_detent(field); }},
    [](const FlightControls& c) -> LuaField::Value {
      return simulation::flap_detents_deg[c.limited().flap_detent];
    }};

constexpr Control gear_lever{
    {"gear", [](FlightControls& c, const LuaField& field) { c.gear_down = gear_is_down(field); }},
    [](const FlightControls& c) -> LuaField::Value {
      return std::string(gear_positions[c.gear_down ? 1 : 0]);
    }};

constexpr std::array controls{
    lever<&FlightControls::elevator, -1>("elevator"),
    lever<&FlightControls::aileron, -1>("aileron"),
    lever<&FlightControls::rudder, -1>("rudder"),
    lever<&FlightControls::pitch_trim, -1>("pitch_trim"),
    lever<&FlightControls::aileron_trim, -1>("aileron_trim"),
    lever<&FlightControls::rudder_trim, -1>("rudder_trim"),
    levers<&FlightControls::throttle>("throttle"),
    flap_lever,
    gear_lever,
    lever<&FlightControls::speed_brake, 0>("speed_brake"),
    latch<&FlightControls::lift_dumpers_out>("lift_dumpers"),
    levers<&FlightControls::brake>("brakes"),
    lever<&FlightControls::tiller, -1>("tiller"),
    latch<&FlightControls::parking_brake_set>("parking_brake"),
};

constexpr auto control_fields = [] {
  std::array<KnownField<FlightControls>, controls.size()> fields{};
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = controls[i].field;
  return fields;
}();

void give_controls(LuaCall& call, const FlightControls& positions) {
  call.begin_list();
  for (const Control& control : controls)
    call.field({std::string(control.field.name), control.position(positions)});
}

// ---- Weather and place

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
    aircraft.controls() =
        with_fields<FlightControls>(aircraft.controls(), "fly", call, std::span(control_fields));
  });
  runner.bind("controls", [&](LuaCall& call) { give_controls(call, aircraft.controls()); });
  runner.bind("weather", [&](LuaCall& call) {
    aircraft.weather() = with_fields<Weather>(aircraft.weather(), "weather", call, weather_fields);
  });
  runner.bind("make_ready", [&](LuaCall&) { aircraft.make_ready(); });
  runner.bind("place_on_runway", [&](LuaCall&) { aircraft.place_on_runway(); });
  runner.bind("place_in_flight", [&](LuaCall& call) { place_in_flight(call, aircraft); });
}

}  // namespace host
