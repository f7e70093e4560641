#include <algorithm>

#include "host/script/flow_api.h"

namespace host {
namespace {

// A few names that share a word with a mistaken one, for the person who mistyped it.
std::string suggestions(std::span<const TableRow> rows, std::string_view name) {
  std::string text;
  int found = 0;
  const std::string_view stem = name.substr(0, std::min<std::size_t>(name.size(), 4));
  for (const TableRow& row : rows)
    if (!stem.empty() && row.name.find(stem) != std::string_view::npos && ++found <= 4)
      text += (text.empty() ? "; there is " : ", ") + std::string(row.name);
  return text;
}

std::uint32_t number_of(const LuaCall& call, int index, const char* what,
                        std::span<const TableRow> rows) {
  if (call.is_number(index)) {
    const std::uint32_t number = call.key(index, what);
    if (std::ranges::find(rows, number, &TableRow::number) != rows.end()) return number;
    throw std::invalid_argument("the aircraft has no " + std::string(what) + " " + std::to_string(number));
  }
  const std::string name = call.text(index, what);
  const auto row = std::ranges::find(rows, name, &TableRow::name);
  if (row != rows.end()) return row->number;
  throw std::invalid_argument("the aircraft has no " + std::string(what) + " '" + name + "'" +
                              suggestions(rows, name));
}

}  // namespace

std::uint32_t event_argument(const LuaCall& call, int index) {
  return number_of(call, index, "event", AircraftModel::events());
}

std::uint32_t token_argument(const LuaCall& call, int index) {
  return number_of(call, index, "token", AircraftModel::tokens());
}

std::string event_name(std::uint32_t number) {
  const auto rows = AircraftModel::events();
  const auto row = std::ranges::find(rows, number, &TableRow::number);
  if (row != rows.end()) return std::string(row->name);
  char text[16];
  std::snprintf(text, sizeof text, "0x%X", number);
  return text;
}

void bind_aircraft(LuaRunner& runner, FlowSession& session) {
  AircraftModel& aircraft = session.cockpit().aircraft();
  runner.bind("token", [&](LuaCall& call) { call.give(aircraft.token(token_argument(call, 1))); });
  runner.bind("set_token", [&](LuaCall& call) {
    const std::uint32_t token = token_argument(call, 1);
    aircraft.hold_token(token, call.number(2, "value"));
  });
  runner.bind("release_token", [&](LuaCall& call) {
    aircraft.hold_token(token_argument(call, 1), std::nullopt);
  });
  runner.bind("event", [&](LuaCall& call) {
    const std::uint32_t event = event_argument(call, 1);
    aircraft.key_event(event, call.has(2) ? call.key(2, "value") : 0);
  });
  runner.bind("fail", [&](LuaCall& call) { aircraft.set_failed(call.key(1, "failure key"), true); });
  runner.bind("repair", [&](LuaCall& call) { aircraft.set_failed(call.key(1, "failure key"), false); });
}

}  // namespace host
