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

double gallons(double kg) { return kg / kg_per_gallon; }

constexpr TokenRow tokens[] = {
    {{303, "right_tank_quantity", "gallons"},
     [](const Aircraft& a) { return gallons(a.fuel.wing_kg[1]); }},
    {{304, "left_tank_quantity", "gallons"},
     [](const Aircraft& a) { return gallons(a.fuel.wing_kg[0]); }},
    {{305, "centre_tank_quantity", "gallons"},
     [](const Aircraft& a) { return gallons(a.fuel.centre_kg); }},
    {{386, "total_fuel", "gallons"}, [](const Aircraft& a) { return gallons(a.fuel.total_kg()); }},
    {{895, "fuel_lever_1", "0 closed, 1 open"}, lever<0>},
    {{896, "fuel_lever_2", "0 closed, 1 open"}, lever<1>},
};

constexpr EventRow events[] = {
    {{0x103BE, "fuel_lever_1_toggle", ""}, toggle_lever<0>},
    {{0x103BF, "fuel_lever_2_toggle", ""}, toggle_lever<1>},
    {{0x10324, "boost_pump_1_toggle", ""}, toggle_pump<0>},
    {{0x10325, "boost_pump_2_toggle", ""}, toggle_pump<1>},
    {{0x10424, "crossfeed_toggle", ""}, [](Aircraft& a, std::uint32_t) { a.fuel.toggle_crossfeed(); }},
    {{0x10160, "feed_both_from_tank_1", ""},
     [](Aircraft& a, std::uint32_t) { a.fuel.feed = FuelFeed::tank_1_both; }},
    {{0x10161, "feed_both_from_tank_2", ""},
     [](Aircraft& a, std::uint32_t) { a.fuel.feed = FuelFeed::tank_2_both; }},
    {{0x10461, "fuel_request", ""}, [](Aircraft& a, std::uint32_t) { a.fuel.toggle_refuelling(); }},
};

}  // namespace

constinit const SystemRows fuel_rows{tokens, events};

}  // namespace host::simulation
