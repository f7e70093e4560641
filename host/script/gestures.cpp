#include "host/script/flow_api.h"
#include "host/script/named_things.h"

namespace host {
namespace {

using NameLookup = Spot (*)(FlowSession&, const std::string&, const std::string&);

// The spot at the start of a call, and the number of the argument behind it.
struct SpotArgument {
  Spot spot;
  int next;
};

SpotArgument take_spot(LuaCall& call, FlowSession& session, NameLookup lookup = named_spot) {
  if (call.is_table(1)) call.unpack(1, 3);
  const std::string gauge = call.text(1, "gauge");
  if (call.is_text(2)) return {lookup(session, gauge, call.text(2, "control")), 3};
  return {{gauge, {call.whole(2, "x"), call.whole(3, "y")}, {}, nullptr}, 4};
}

double duration(const LuaCall& call, int index, double fallback = -1) {
  const double seconds =
      fallback < 0 ? call.number(index, "seconds") : call.number_or(index, "seconds", fallback);
  if (seconds < 0 || seconds > 3600) throw std::invalid_argument("a gesture lasts 0 to 3600 seconds");
  return seconds;
}

void hold(LuaCall& call, FlowSession& session, std::uint32_t button) {
  const auto [spot, next] = take_spot(call, session);
  session.hold(spot, button, duration(call, next));
}

void drag(LuaCall& call, FlowSession& session) {
  const auto [spot, next] = take_spot(call, session);
  const PanelPoint to{call.whole(next, "to x"), call.whole(next + 1, "to y")};
  session.drag(spot, to, duration(call, next + 2, 0.5));
}

void wheel(LuaCall& call, FlowSession& session) {
  const auto [spot, next] = take_spot(call, session, named_wheel_spot);
  const int notches = call.whole(next, "notches");
  if (notches < -1000 || notches > 1000) throw std::invalid_argument("at most 1000 notches at once");
  session.wheel(spot, notches);
}

}  // namespace

void bind_gestures(LuaRunner& runner, FlowSession& session) {
  const auto bind_button = [&](const char* click, const char* hold_down, std::uint32_t button) {
    runner.bind(click, [&session, button](LuaCall& call) {
      session.click(take_spot(call, session).spot, button);
    });
    runner.bind(hold_down, [&session, button](LuaCall& call) { hold(call, session, button); });
  };
  bind_button("click", "hold", MOUSE_LEFT);
  bind_button("right_click", "right_hold", MOUSE_RIGHT);
  runner.bind("drag", [&](LuaCall& call) { drag(call, session); });
  runner.bind("wheel", [&](LuaCall& call) { wheel(call, session); });
}

}  // namespace host
