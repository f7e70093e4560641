#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double metres_per_foot = 0.3048;
constexpr double parking_brake_full = 32767.0;

constexpr TokenRow tokens[] = {
    {{60, "on_ground", "0/1"}, [](const Aircraft& a) { return on_off(a.flight.on_ground); }},
    {{61, "indicated_airspeed", "knots"},
     [](const Aircraft& a) { return a.flight.indicated_airspeed_kt; }},
    {{65, "vertical_speed", "feet/minute"},
     [](const Aircraft& a) { return a.flight.vertical_speed_fpm; }},
    {{323, "parking_brake", "0 released, 32767 set"},
     [](const Aircraft& a) { return a.flight.parking_brake_set ? parking_brake_full : 0.0; }},
    {{614, "radio_altitude", "metres"},
     [](const Aircraft& a) { return a.flight.height_ft * metres_per_foot; }},
};

constexpr EventRow events[] = {
    {{0x100D8, "parking_brake_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.flight.parking_brake_set = !a.flight.parking_brake_set; }},
};

}  // namespace

constinit const SystemRows flight_rows{tokens, events};

}  // namespace host::simulation
