#include "host/script/flow_api.h"

namespace host {

void bind_flying(LuaRunner& runner, FlowSession& session) {
  CockpitInputs& inputs = session.inputs();
  runner.bind("fly", [&](LuaCall& call) { inputs.take(input::Fly{call.fields(1)}); });
  runner.bind("controls", [&](LuaCall& call) {
    call.begin_list();
    for (const NamedValue& each : positions_of(session.cockpit().aircraft().controls()))
      call.field(each);
  });
  runner.bind("weather", [&](LuaCall& call) { inputs.take(input::MakeWeather{call.fields(1)}); });
  runner.bind("make_ready", [&](LuaCall&) { inputs.take(input::MakeReady{}); });
  runner.bind("place_on_runway", [&](LuaCall&) { inputs.take(input::PlaceOnRunway{}); });
  runner.bind("place_in_flight", [&](LuaCall& call) {
    if (inputs.take(input::PlaceInFlight{call.fields(1)}) != Answer::done)
      throw std::runtime_error("the aircraft cannot fly level there and like that");
  });
}

}  // namespace host
