#include "host/script/flow_api.h"

namespace host {
namespace {

// The spot at the start of the arguments, with the control of a flow taken apart.
Spot take_spot(LuaCall& call) {
  if (call.is_table(1)) call.unpack(1, 3);
  return {call.text(1, "gauge"), {call.whole(2, "x"), call.whole(3, "y")}};
}

double duration(const LuaCall& call, int index, double fallback = -1) {
  const double seconds =
      fallback < 0 ? call.number(index, "seconds") : call.number_or(index, "seconds", fallback);
  if (seconds < 0 || seconds > 3600) throw std::invalid_argument("a gesture lasts 0 to 3600 seconds");
  return seconds;
}

}  // namespace

void bind_gestures(LuaRunner& runner, FlowSession& session) {
  runner.bind("click", [&](LuaCall& call) { session.click(take_spot(call), MOUSE_LEFT); });
  runner.bind("right_click", [&](LuaCall& call) { session.click(take_spot(call), MOUSE_RIGHT); });
  runner.bind("hold", [&](LuaCall& call) {
    const Spot spot = take_spot(call);
    session.hold(spot, MOUSE_LEFT, duration(call, 4));
  });
  runner.bind("right_hold", [&](LuaCall& call) {
    const Spot spot = take_spot(call);
    session.hold(spot, MOUSE_RIGHT, duration(call, 4));
  });
  runner.bind("drag", [&](LuaCall& call) {
    const Spot spot = take_spot(call);
    const PanelPoint to{call.whole(4, "to x"), call.whole(5, "to y")};
    session.drag(spot, to, duration(call, 6, 0.5));
  });
  runner.bind("wheel", [&](LuaCall& call) {
    const Spot spot = take_spot(call);
    const int notches = call.whole(4, "notches");
    if (notches < -1000 || notches > 1000) throw std::invalid_argument("at most 1000 notches at once");
    session.wheel(spot, notches);
  });
}

}  // namespace host
