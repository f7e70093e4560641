#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// The bars show wanted less present attitude, so the wanted one has the attitude's own signs: with a
// wish to climb the pitch bar stands above the aircraft symbol, with one to turn right the bank bar to
// its right.
constexpr TokenRow tokens[] = {
    {{792, "flight_director", "0/1"},
     [](const Aircraft& a) { return on_off(a.autopilot.director.on); }},
    {{793, "flight_director_pitch", "degrees, down positive"},
     [](const Aircraft& a) { return 0.0 - a.autopilot.director.pitch_deg; }},
    {{794, "flight_director_bank", "degrees, left positive"},
     [](const Aircraft& a) { return 0.0 - a.autopilot.director.bank_deg; }},
};

constexpr EventRow events[] = {
    {{0x102F0, "flight_director_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.autopilot.director.on = !a.autopilot.director.on; }},
};

}  // namespace

constinit const SystemRows flight_director_rows{tokens, events};

}  // namespace host::simulation
