#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <std::size_t engine>
double lever(const Aircraft& aircraft) {
  return on_off(aircraft.fuel.lever_open[engine]);
}

template <std::size_t engine>
void toggle_lever(Aircraft& aircraft, std::uint32_t) {
  aircraft.fuel.lever_open[engine] = !aircraft.fuel.lever_open[engine];
}

template <std::size_t engine>
void toggle_pump(Aircraft& aircraft, std::uint32_t) {
  aircraft.fuel.boost_pump_on[engine] = !aircraft.fuel.boost_pump_on[engine];
}

constexpr TokenRow tokens[] = {
    {{token::fuel_lever[0], "fuel_lever_1", "0 closed, 1 open"}, lever<0>},
    {{token::fuel_lever[1], "fuel_lever_2", "0 closed, 1 open"}, lever<1>},
};

constexpr EventRow events[] = {
    {{event::fuel_lever_toggle[0], "fuel_lever_1_toggle", ""}, toggle_lever<0>},
    {{event::fuel_lever_toggle[1], "fuel_lever_2_toggle", ""}, toggle_lever<1>},
    {{0x10324, "boost_pump_1_toggle", ""}, toggle_pump<0>},
    {{0x10325, "boost_pump_2_toggle", ""}, toggle_pump<1>},
    {{0x10424, "crossfeed_toggle", ""}, [](Aircraft& a, std::uint32_t) { a.fuel.toggle_crossfeed(); }},
    {{0x10160, "feed_both_from_tank_1", ""},
     [](Aircraft& a, std::uint32_t) { a.fuel.feed = FuelFeed::tank_1_both; }},
    {{0x10161, "feed_both_from_tank_2", ""},
     [](Aircraft& a, std::uint32_t) { a.fuel.feed = FuelFeed::tank_2_both; }},
};

}  // namespace

constinit const SystemRows fuel_rows{tokens, events};

}  // namespace host::simulation
