#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double hpa_per_inch_of_mercury = 33.8639;

constexpr double pressure_knob_hpa = 1.0;

constexpr TokenRow tokens[] = {
    {{61, "indicated_airspeed", "knots"},
     [](const Aircraft& a) { return a.air.indicated_airspeed_kt; }},
    {{63, "maximum_airspeed", "1/128 knots"},
     [](const Aircraft& a) { return 128.0 * a.air.maximum_airspeed_kt; }},
    {{64, "mach", "1/20480"}, [](const Aircraft& a) { return 20480.0 * a.air.mach; }},
    {{74, "indicated_altitude", "feet"}, [](const Aircraft& a) { return a.air.indicated_altitude_ft; }},
    {{75, "pressure_setting", "hectopascals"},
     [](const Aircraft& a) { return a.air.pressure_setting_hpa; }},
    {{76, "pressure_setting_inches", "inches of mercury"},
     [](const Aircraft& a) { return a.air.pressure_setting_hpa / hpa_per_inch_of_mercury; }},
    {{341, "outside_air_temperature", "degrees Celsius"},
     [](const Aircraft& a) { return a.air.temperature_celsius; }},
};

constexpr EventRow events[] = {
    {{0x101F8, "altimeters_to_qnh", ""},
     [](Aircraft& a, std::uint32_t) { a.air.set_altimeters_to_qnh(); }},
    {{0x1015B, "pressure_setting_up", ""},
     [](Aircraft& a, std::uint32_t) { a.air.turn_pressure_setting(pressure_knob_hpa); }},
    {{0x1015C, "pressure_setting_down", ""},
     [](Aircraft& a, std::uint32_t) { a.air.turn_pressure_setting(-pressure_knob_hpa); }},
};

}  // namespace

constinit const SystemRows air_data_rows{tokens, events};

}  // namespace host::simulation
