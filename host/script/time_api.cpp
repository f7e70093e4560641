#include "host/script/flow_api.h"

namespace host {
namespace {

constexpr double longest_wait = 86400;

double waiting_time(const LuaCall& call, int index, const char* what) {
  const double seconds = call.number(index, what);
  if (seconds < 0 || seconds > longest_wait)
    throw std::invalid_argument("a flow waits 0 to 86400 seconds at once");
  return seconds;
}

std::string in_seconds(double seconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f s", seconds);
  return text;
}

void wait_until(LuaCall& call, FlowSession& session) {
  const double timeout = waiting_time(call, 2, "timeout");
  const double start = session.seconds();
  while (!call.ask(1, "condition")) {
    if (session.seconds() - start >= timeout)
      throw std::runtime_error("waited " + in_seconds(timeout) + " in vain for " +
                               call.text_or(3, "what", "the condition"));
    session.frame();
  }
}

}  // namespace

void bind_time(LuaRunner& runner, FlowSession& session) {
  session.time_moved = [&runner] { runner.alive(); };
  runner.bind("wait", [&](LuaCall& call) { session.wait(waiting_time(call, 1, "seconds")); });
  runner.bind("wait_until", [&](LuaCall& call) { wait_until(call, session); });
  runner.bind("now", [&](LuaCall& call) { call.give(session.seconds()); });
}

}  // namespace host
