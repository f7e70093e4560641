#include <algorithm>

#include "host/panel/nearest.h"
#include "host/script/flow_api.h"
#include "host/simulation/places.h"

namespace host {
namespace {

std::string suggestion(std::span<const TableRow> rows, std::string_view name) {
  std::vector<std::string_view> names;
  for (const TableRow& row : rows) names.push_back(row.name);
  return did_you_mean(name, names);
}

std::uint32_t number_of(const LuaCall& call, int index, const char* what,
                        std::span<const TableRow> rows) {
  if (call.is_number(index)) {
    const std::uint32_t number = call.key(index, what);
    if (find_row(rows, number)) return number;
    throw std::invalid_argument("the aircraft has no " + std::string(what) + " " +
                                std::to_string(number));
  }
  const std::string name = call.text(index, what);
  if (const TableRow* row = find_row(rows, name)) return row->number;
  throw std::invalid_argument("the aircraft has no " + std::string(what) + " '" + name + "'" +
                              suggestion(rows, name));
}

void start_at_place(CockpitInputs& inputs, const std::string& name) {
  if (inputs.take(input::StartAt{name}) != Answer::nothing) return;
  std::vector<std::string_view> names;
  for (const StartPlace& place : start_places()) names.push_back(place.name);
  throw std::invalid_argument("no flight begins at '" + name + "'" + did_you_mean(name, names));
}

}  // namespace

std::uint32_t event_argument(const LuaCall& call, int index) {
  return number_of(call, index, "event", AircraftModel::events());
}

std::uint32_t token_argument(const LuaCall& call, int index) {
  return number_of(call, index, "token", AircraftModel::tokens());
}

/// By its key or its name.
static std::uint32_t failure_argument(const LuaCall& call, int index) {
  const std::span<const FailureRow> table = AircraftModel::failures();
  if (call.is_number(index)) {
    const std::uint32_t key = call.key(index, "failure");
    if (std::ranges::count(table, key, &FailureRow::key) != 0) return key;
    throw std::invalid_argument("the aircraft has no failure key " + std::to_string(key));
  }
  const std::string name = call.text(index, "failure");
  const auto found = std::ranges::find(table, name, &FailureRow::name);
  if (found != table.end()) return found->key;
  std::vector<std::string_view> names;
  for (const FailureRow& row : table) names.push_back(row.name);
  throw std::invalid_argument("the aircraft has no failure '" + name + "'" + did_you_mean(name, names));
}

std::string event_name(std::uint32_t number) {
  if (const TableRow* row = find_row(AircraftModel::events(), number)) return std::string(row->name);
  char text[16];
  std::snprintf(text, sizeof text, "0x%X", number);
  return text;
}

void bind_aircraft(LuaRunner& runner, FlowSession& session) {
  const AircraftModel& aircraft = session.cockpit().aircraft();
  CockpitInputs& inputs = session.inputs();
  runner.bind("token", [&](LuaCall& call) { call.give(aircraft.token(token_argument(call, 1))); });
  runner.bind("set_token", [&](LuaCall& call) {
    const std::uint32_t token = token_argument(call, 1);
    inputs.take(input::HoldToken{token, call.number(2, "value")});
  });
  runner.bind("release_token",
              [&](LuaCall& call) { inputs.take(input::ReleaseToken{token_argument(call, 1)}); });
  runner.bind("event", [&](LuaCall& call) {
    const std::uint32_t event = event_argument(call, 1);
    inputs.take(input::KeyEvent{event, call.has(2) ? call.key(2, "value") : 0});
  });
  runner.bind("fail", [&](LuaCall& call) { inputs.take(input::Fail{failure_argument(call, 1)}); });
  runner.bind("repair", [&](LuaCall& call) { inputs.take(input::Repair{failure_argument(call, 1)}); });
  runner.bind("failures_per_hour", [&](LuaCall& call) {
    const double rate = call.number(1, "failures per hour");
    if (!(rate >= 0 && rate <= 3600)) throw std::invalid_argument("failures per hour are 0 to 3600");
    inputs.take(input::FailByChance{rate});
  });
  runner.bind("start_at", [&](LuaCall& call) { start_at_place(inputs, call.text(1, "place")); });
  runner.bind("set_time_of_day", [&](LuaCall& call) {
    const double hours = call.number(1, "hours");
    if (!(hours >= 0 && hours <= 24)) throw std::invalid_argument("argument 1 (hours) must be 0 to 24");
    inputs.take(input::SetTimeOfDay{hours});
  });
}

}  // namespace host
