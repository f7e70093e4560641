#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double hpa_per_inch_of_mercury = 33.8639;

constexpr TokenRow tokens[] = {
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
};

}  // namespace

constinit const SystemRows air_data_rows{tokens, events};

}  // namespace host::simulation
