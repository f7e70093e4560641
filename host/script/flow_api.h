/// The functions that flows call. docs/flows.md says what each takes and gives; the file of a bind_...
/// below has those of one subject.
#pragma once

#include "host/script/flow_session.h"
#include "host/script/lua_runner.h"

namespace host {

/// Gives all of them to the runner. Both must outlive its runs.
void bind_flow_api(LuaRunner& runner, FlowSession& session);

/// Those of one subject each.
void bind_gestures(LuaRunner& runner, FlowSession& session);
void bind_time(LuaRunner& runner, FlowSession& session);
void bind_aircraft(LuaRunner& runner, FlowSession& session);
void bind_flying(LuaRunner& runner, FlowSession& session);
void bind_pages(LuaRunner& runner, FlowSession& session);
void bind_readings(LuaRunner& runner, FlowSession& session);
void bind_expectations(LuaRunner& runner, FlowSession& session);

/// The number of a key event or token that the call names by number or by name.
/// Throws std::invalid_argument, with a name that looks alike.
std::uint32_t event_argument(const LuaCall& call, int index);
std::uint32_t token_argument(const LuaCall& call, int index);

/// The name of a key event; its number in hexadecimal if it has none.
std::string event_name(std::uint32_t number);

}  // namespace host
