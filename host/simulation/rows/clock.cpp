#include <cmath>

#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// The hands jump: hours, minutes and seconds are whole numbers.
double panel_clock(const Aircraft& aircraft, double unit_s, double round) {
  return std::fmod(std::floor(aircraft.clock.panel_clock_s() / unit_s), round);
}

constexpr TokenRow tokens[] = {
    {{1, "time_of_day", "seconds"}, [](const Aircraft& a) { return a.clock.time_of_day_s(); }},
    {{3, "local_hours", "hours, 0..23"},
     [](const Aircraft& a) { return panel_clock(a, 3600.0, 24.0); }},
    {{4, "local_minutes", "minutes"}, [](const Aircraft& a) { return panel_clock(a, 60.0, 60.0); }},
    {{5, "local_seconds", "seconds"}, [](const Aircraft& a) { return panel_clock(a, 1.0, 60.0); }},
    {{336, "simulation_rate", "1/256 of real time"}, [](const Aircraft&) { return 256.0; }},
    {{746, "months_past", "months since the year began, 0..11"},
     [](const Aircraft& a) { return static_cast<double>(a.clock.date().months_past); }},
    {{747, "day_of_month", "1..31"},
     [](const Aircraft& a) { return static_cast<double>(a.clock.date().day); }},
    {{604, "clock_seconds", "seconds"}, [](const Aircraft& a) { return a.clock.reading_s(); }},
};

constexpr EventRow events[] = {
    {{0x1007B, "clock_back", ""}, [](Aircraft& a, std::uint32_t) { a.clock.set_panel_clock(-60.0); }},
    {{0x1007C, "clock_forward", ""}, [](Aircraft& a, std::uint32_t) { a.clock.set_panel_clock(60.0); }},
};

}  // namespace

constinit const SystemRows clock_rows{tokens, events};

}  // namespace host::simulation
