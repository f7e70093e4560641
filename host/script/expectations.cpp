#include <algorithm>
#include <cmath>

#include "host/files/shortened.h"
#include "host/script/flow_api.h"

namespace host {
namespace {

std::string plain(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

void expect(LuaCall& call) {
  if (!call.truth(1)) throw std::runtime_error(call.text_or(2, "what", "the expectation is not met"));
}

void expect_near(LuaCall& call) {
  const double expected = call.number(2, "expected"), tolerance = call.number(3, "tolerance");
  const std::string what = call.text_or(4, "what", "the value");
  const bool near = call.is_number(1) && std::abs(call.number(1, "actual") - expected) <= tolerance;
  if (!near)
    throw std::runtime_error(what + " is " + call.shown(1) + ", not within " + plain(tolerance) +
                             " of " + plain(expected));
}

void expect_event(LuaCall& call, const FlowSession& session) {
  const std::uint32_t number = event_argument(call, 1);
  const auto matches = [&](const SentEvent& event) {
    return event.number == number && (!call.has(2) || event.value == call.key(2, "value"));
  };
  if (std::ranges::any_of(session.events(), matches)) return;
  std::string sent;
  for (const SentEvent& event : session.events())
    sent += (sent.empty() ? "" : ", ") + event_name(event.number);
  throw std::runtime_error("the gauges have not sent " + event_name(number) + " but " +
                           (sent.empty() ? "nothing" : sent));
}

// A picture's name becomes a file's name, in the folder for pictures and nowhere else.
std::string picture_name(const LuaCall& call) {
  const std::string name = call.text(1, "name");
  const auto plain_letter = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
  };
  if (name.empty() || name.front() == '.' || name.size() > 100 ||
      !std::ranges::all_of(name, plain_letter))
    throw std::invalid_argument("argument 1 (name) must be letters, digits, - and _");
  return name;
}

void picture(LuaCall& call, FlowSession& session) {
  const std::string what =
      call.is_number(2) ? std::to_string(call.key(2, "what")) : call.text_or(2, "what", "");
  const double zoom = call.number_or(3, "zoom", 1.0);
  if (zoom < 0.1 || zoom > 4) throw std::invalid_argument("argument 3 (zoom) must be 0.1 to 4");
  session.picture(picture_name(call), what, zoom);
}

}  // namespace

void bind_expectations(LuaRunner& runner, FlowSession& session) {
  runner.bind("expect", expect);
  runner.bind("expect_near", expect_near);
  runner.bind("expect_event", [&](LuaCall& call) { expect_event(call, session); });
  runner.bind("picture", [&](LuaCall& call) { picture(call, session); });
  runner.bind("say", [&](LuaCall& call) {
    if (session.surroundings().say) session.surroundings().say(shortened(call.text(1, "text"), 200));
  });
}

void bind_flow_api(LuaRunner& runner, FlowSession& session) {
  bind_gestures(runner, session);
  bind_time(runner, session);
  bind_aircraft(runner, session);
  bind_flying(runner, session);
  bind_readings(runner, session);
  bind_pages(runner, session);
  bind_expectations(runner, session);
}

}  // namespace host
