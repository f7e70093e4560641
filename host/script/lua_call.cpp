#include "host/script/lua_call.h"

#include <lua.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "host/script/lua_runner.h"

namespace host {
namespace {

[[noreturn]] void wrong(int index, const char* what, const char* wanted) {
  throw std::invalid_argument("argument " + std::to_string(index) + " (" + what + ") must be " +
                              wanted);
}

// The numbers of the list on top; another element ends it as it has no place in a list of numbers.
std::vector<double> list_on_top(lua_State* state) {
  constexpr lua_Integer longest = 100;
  std::vector<double> numbers;
  for (lua_Integer i = 1; i <= longest; ++i) {
    const bool more = lua_rawgeti(state, -1, i) == LUA_TNUMBER;
    if (more) numbers.push_back(lua_tonumber(state, -1));
    lua_pop(state, 1);
    if (!more) break;
  }
  return numbers;
}

NamedValue::Value value_on_top(lua_State* state) {
  switch (lua_type(state, -1)) {
    case LUA_TBOOLEAN: return static_cast<bool>(lua_toboolean(state, -1));
    case LUA_TNUMBER: return lua_tonumber(state, -1);
    case LUA_TSTRING: return std::string(lua_tostring(state, -1));
    case LUA_TTABLE: return list_on_top(state);
    default: return {};
  }
}

void push(lua_State* state, std::monostate) { lua_pushnil(state); }
void push(lua_State* state, bool value) { lua_pushboolean(state, value); }
void push(lua_State* state, double value) { lua_pushnumber(state, value); }
void push(lua_State* state, const std::string& text) {
  lua_pushlstring(state, text.data(), text.size());
}
void push(lua_State* state, const std::vector<double>& numbers) {
  lua_newtable(state);
  lua_Integer place = 0;
  for (const double number : numbers) {
    lua_pushnumber(state, number);
    lua_rawseti(state, -2, ++place);
  }
}

}  // namespace

LuaCall::LuaCall(lua_State* state) : state_(state), count_(lua_gettop(state)) {}

bool LuaCall::has(int index) const { return index <= count_ && !lua_isnil(state_, index); }
bool LuaCall::is_number(int index) const {
  return has(index) && lua_type(state_, index) == LUA_TNUMBER;
}
bool LuaCall::is_table(int index) const { return has(index) && lua_istable(state_, index); }
bool LuaCall::is_text(int index) const { return has(index) && lua_type(state_, index) == LUA_TSTRING; }

double LuaCall::number(int index, const char* what) const {
  if (!is_number(index)) wrong(index, what, "a number");
  const double value = lua_tonumber(state_, index);
  if (!std::isfinite(value)) wrong(index, what, "a finite number");
  return value;
}

double LuaCall::number_or(int index, const char* what, double fallback) const {
  return has(index) ? number(index, what) : fallback;
}

int LuaCall::whole(int index, const char* what) const {
  const double value = number(index, what);
  if (value != std::trunc(value) || std::abs(value) > 1e9) wrong(index, what, "a whole number");
  return static_cast<int>(value);
}

int LuaCall::whole_or(int index, const char* what, int fallback) const {
  return has(index) ? whole(index, what) : fallback;
}

std::uint32_t LuaCall::key(int index, const char* what) const {
  const double value = number(index, what);
  if (value != std::trunc(value) || value < 0 || value > 4294967295.0)
    wrong(index, what, "a whole number from 0 to 4294967295");
  return static_cast<std::uint32_t>(value);
}

std::string LuaCall::text(int index, const char* what) const {
  if (!is_text(index)) wrong(index, what, "a text");
  std::size_t size = 0;
  const char* text = lua_tolstring(state_, index, &size);
  return {text, size};
}

std::string LuaCall::text_or(int index, const char* what, std::string fallback) const {
  return has(index) ? text(index, what) : fallback;
}

bool LuaCall::truth(int index) const { return has(index) && lua_toboolean(state_, index); }

std::string LuaCall::shown(int index) const {
  if (index > count_) return "nothing";
  std::size_t size = 0;
  const char* text = luaL_tolstring(state_, index, &size);
  std::string result(text, size);
  lua_pop(state_, 1);
  return result;
}

std::vector<NamedValue> LuaCall::fields(int index) const {
  std::vector<NamedValue> fields;
  if (!has(index)) return fields;
  if (!is_table(index)) wrong(index, "fields", "a table");
  luaL_checkstack(state_, 4, nullptr);
  lua_pushnil(state_);
  while (lua_next(state_, index) != 0) {
    if (lua_type(state_, -2) != LUA_TSTRING) wrong(index, "fields", "a table of named fields");
    fields.push_back({lua_tostring(state_, -2), value_on_top(state_)});
    lua_pop(state_, 1);
  }
  std::ranges::sort(fields, {}, &NamedValue::name);  // the same flow gets the same message every time
  return fields;
}

void LuaCall::unpack(int index, int most) {
  const int size = static_cast<int>(std::min<lua_Unsigned>(lua_rawlen(state_, index), most));
  luaL_checkstack(state_, size, nullptr);
  for (int i = 1; i <= size; ++i) {
    lua_rawgeti(state_, index + i - 1, i);
    lua_insert(state_, index + i - 1);
  }
  lua_remove(state_, index + size);
  count_ = lua_gettop(state_);
}

bool LuaCall::ask(int index, const char* what) const {
  if (!has(index) || !lua_isfunction(state_, index)) wrong(index, what, "a function");
  lua_pushvalue(state_, index);
  LuaRunner::of(state_).call(0, 1);
  const bool answer = lua_toboolean(state_, -1);
  lua_pop(state_, 1);
  return answer;
}

void LuaCall::give(double value) {
  lua_pushnumber(state_, value);
  ++given_;
}

void LuaCall::give(bool value) {
  lua_pushboolean(state_, value);
  ++given_;
}

void LuaCall::give(std::string_view value) {
  lua_pushlstring(state_, value.data(), value.size());
  ++given_;
}

void LuaCall::give_nothing() {
  lua_pushnil(state_);
  ++given_;
}

void LuaCall::give_top() { ++given_; }

void LuaCall::begin_list() {
  lua_newtable(state_);
  ++given_;
}

void LuaCall::begin_entry() { lua_newtable(state_); }

void LuaCall::field(const char* name, double value) {
  lua_pushnumber(state_, value);
  lua_setfield(state_, -2, name);
}

void LuaCall::field(const char* name, std::string_view value) {
  lua_pushlstring(state_, value.data(), value.size());
  lua_setfield(state_, -2, name);
}

void LuaCall::field(const NamedValue& field) {
  std::visit([this](const auto& value) { push(state_, value); }, field.value);
  lua_setfield(state_, -2, field.name.c_str());
}

void LuaCall::end_entry() { lua_rawseti(state_, -2, ++entries_); }

void LuaCall::append(std::string_view value) {
  lua_pushlstring(state_, value.data(), value.size());
  lua_rawseti(state_, -2, ++entries_);
}

}  // namespace host
