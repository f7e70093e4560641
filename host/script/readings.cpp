#include <algorithm>
#include <cmath>

#include "host/script/flow_api.h"
#include "host/script/named_things.h"

namespace host {
namespace {

// The nth element that passes, among those that the last frame evaluated: of the day and the night
// copies of an element only the one that shows. Null if the gauge has fewer.
template <typename Test>
const ElementState* nth_element(CockpitGauge& gauge, int nth, Test test) {
  for (const ElementState& state : gauge.run.now())
    if (state.evaluated && test(*state.element) && --nth == 0) return &state;
  return nullptr;
}

CockpitGauge& gauge_that_ran(LuaCall& call, FlowSession& session) {
  CockpitGauge& gauge = session.shown_gauge(call.text(1, "gauge"));
  if (!gauge.started) session.frame();
  return gauge;
}

// An element of a gauge as the call names it.
struct ElementArgument {
  const ElementState* state;  // null while it is hidden
  std::string what;
  int next;  // the argument behind it
};

ElementArgument nth_argument(LuaCall& call, FlowSession& session) {
  CockpitGauge& gauge = gauge_that_ran(call, session);
  const int bitmap = call.whole(2, "bitmap");
  const int nth = call.whole_or(3, "nth", 1);
  const auto* state =
      nth_element(gauge, nth, [&](const Element& element) { return element.resource_id == bitmap; });
  if (!state)
    throw std::runtime_error(call.text(1, "gauge") + " shows no element " + std::to_string(nth) +
                             " with bitmap " + std::to_string(bitmap));
  return {state, "that element", 4};
}

ElementArgument element_argument(LuaCall& call, FlowSession& session) {
  if (!call.is_text(2)) return nth_argument(call, session);
  const std::string gauge = call.text(1, "gauge"), part = call.text(2, "part");
  return {named_part(session, gauge, part), part + " of " + gauge, 3};
}

// Hidden, or switched to no picture.
bool in_view(const ElementState& state) {
  const bool no_picture = state.element->kind == ELEMENT_ICON && !(state.values[0] > -1);
  return state.drawn && !no_picture;
}

void give_shown(LuaCall& call, FlowSession& session) {
  const ElementState* state = element_argument(call, session).state;
  call.give(state != nullptr && in_view(*state));
}

void give_image(LuaCall& call, FlowSession& session) {
  const auto [state, what, next] = element_argument(call, session);
  if (!state) return call.give_nothing();
  if (state->element->kind != ELEMENT_ICON) throw std::runtime_error(what + " is not an icon");
  if (!in_view(*state)) return call.give_nothing();
  const double last = std::max(1.0, static_cast<double>(state->element->icon.image_count)) - 1;
  call.give(std::min(std::trunc(state->values[0]) + 0.0, last));
}

void give_value(LuaCall& call, FlowSession& session) {
  const auto [state, what, next] = element_argument(call, session);
  const int axis = call.whole_or(next, "axis", 1);
  if (axis < 1 || axis > 3)
    throw std::invalid_argument("argument " + std::to_string(next) + " (axis) must be 1, 2 or 3");
  if (!state) throw std::runtime_error(what + " is hidden");
  call.give(state->values[static_cast<std::size_t>(axis - 1)]);
}

const ElementState* nth_text(LuaCall& call, FlowSession& session) {
  CockpitGauge& gauge = gauge_that_ran(call, session);
  const int nth = call.whole_or(2, "nth", 1);
  const auto* state =
      nth_element(gauge, nth, [](const Element& element) { return element.kind == ELEMENT_STRING; });
  if (state) return state;
  throw std::runtime_error(call.text(1, "gauge") + " shows no text field " + std::to_string(nth));
}

void give_text(LuaCall& call, FlowSession& session) {
  const ElementState* state = nullptr;
  if (call.is_text(2)) {
    const auto argument = element_argument(call, session);
    state = argument.state;
    if (state && state->element->kind != ELEMENT_STRING)
      throw std::runtime_error(argument.what + " is not a text");
  } else {
    state = nth_text(call, session);
  }
  call.give(state && state->drawn ? std::string_view(state->text) : std::string_view());
}

void give_events(LuaCall& call, const FlowSession& session) {
  call.begin_list();
  for (const SentEvent& event : session.events()) {
    call.begin_entry();
    call.field("number", static_cast<double>(event.number));
    call.field("name", std::string_view(event_name(event.number)));
    call.field("value", static_cast<double>(event.value));
    call.field("seconds", event.seconds);
    call.end_entry();
  }
}

void give_sounds(LuaCall& call, const FlowSession& session) {
  const double since = call.number_or(1, "since", 0);
  auto sound = std::ranges::lower_bound(session.sounds, since, {}, &HeardSound::seconds);
  call.begin_list();
  for (; sound != session.sounds.end(); ++sound) {
    call.begin_entry();
    call.field("name", std::string_view(sound->name));
    call.field("seconds", sound->seconds);
    call.end_entry();
  }
}

void give_sound_level(LuaCall& call, const FlowSession& session) {
  const double seconds = call.number(1, "seconds");
  if (seconds <= 0 || seconds > 10) throw std::invalid_argument("argument 1 (seconds) must be 0 to 10");
  const auto& level = session.surroundings().sound_level;
  if (!level) return call.give_nothing();
  call.give(level(seconds));
}

std::uint32_t window_argument(const LuaCall& call, const PanelSet& panels) {
  const std::uint32_t ident = call.key(1, "ident");
  if (panels.find(ident)) return ident;
  throw std::invalid_argument("the panel has no window " + std::to_string(ident));
}

}  // namespace

void bind_readings(LuaRunner& runner, FlowSession& session) {
  const PanelSet& panels = session.cockpit().panels();
  CockpitInputs& inputs = session.inputs();
  runner.bind("shown", [&](LuaCall& call) { give_shown(call, session); });
  runner.bind("image", [&](LuaCall& call) { give_image(call, session); });
  runner.bind("value", [&](LuaCall& call) { give_value(call, session); });
  runner.bind("text", [&](LuaCall& call) { give_text(call, session); });
  runner.bind("events", [&](LuaCall& call) { give_events(call, session); });
  runner.bind("messages", [&](LuaCall& call) {
    call.begin_list();
    for (const std::string& message : session.messages) call.append(message);
  });
  runner.bind("sounds", [&](LuaCall& call) { give_sounds(call, session); });
  runner.bind("sound_level", [&](LuaCall& call) { give_sound_level(call, session); });
  runner.bind("start_page", [&](LuaCall&) { inputs.take(input::BeginWithStartPage{}); });
  runner.bind("open_window",
              [&](LuaCall& call) { inputs.take(input::OpenWindow{window_argument(call, panels)}); });
  runner.bind("close_window",
              [&](LuaCall& call) { inputs.take(input::CloseWindow{window_argument(call, panels)}); });
  runner.bind("window_open",
              [&](LuaCall& call) { call.give(panels.shows(window_argument(call, panels))); });
}

}  // namespace host
