#include "host/script/lua_runner.h"

#include <lua.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace host {
namespace {

constexpr std::size_t memory_limit = 256u << 20;
constexpr int steps_per_count = 100'000;
constexpr int most_counts = 1'000;  // a second or two of pure computing

// Lua knows the script by this short name, since it cuts long ones; messages carry the real one.
constexpr const char* chunk = "=flow";
constexpr std::string_view chunk_prefix = "flow:";

constexpr luaL_Reg open_libraries[] = {
    {LUA_GNAME, luaopen_base},
    {LUA_TABLIBNAME, luaopen_table},
    {LUA_STRLIBNAME, luaopen_string},
    {LUA_MATHLIBNAME, luaopen_math},
};

// What reaches the disk or the loader, and what could swallow a failed expectation.
constexpr const char* closed[] = {"dofile", "loadfile", "load", "pcall", "xpcall", "collectgarbage"};

// The line of a message of Lua's own, "flow:12: text"; the text is left in `message`.
std::optional<int> take_line(std::string& message) {
  if (!message.starts_with(chunk_prefix)) return std::nullopt;
  char* end = nullptr;
  const long line = std::strtol(message.c_str() + chunk_prefix.size(), &end, 10);
  if (std::string_view(end).substr(0, 2) != ": ") return std::nullopt;
  message.erase(0, static_cast<std::size_t>(end + 2 - message.c_str()));
  return static_cast<int>(line);
}

// The line that a level of the stack is at; 0 for none and for functions of the host.
int line_of(lua_State* state, int level) {
  lua_Debug debug{};
  if (level < 0 || !lua_getstack(state, level, &debug)) return 0;
  lua_getinfo(state, "l", &debug);
  return std::max(debug.currentline, 0);
}

// The flow itself, under whatever it has called. Lua walks the stack to reach a level, so a stack that
// has overflowed is halved, not walked down level by level.
int deepest_level(lua_State* state) {
  lua_Debug debug{};
  int present = -1, absent = 1;
  while (lua_getstack(state, absent, &debug)) absent *= 2;
  while (absent - present > 1) {
    const int middle = present + (absent - present) / 2;
    (lua_getstack(state, middle, &debug) ? present : absent) = middle;
  }
  return present;
}

// Of the functions of the flow the one that runs, or waits for the host.
std::optional<int> nearest_line(lua_State* state) {
  for (int level = 0; level < 8; ++level)
    if (const int line = line_of(state, level)) return line;
  return std::nullopt;
}

}  // namespace

LuaRunner::LuaRunner() : state_(lua_newstate(allocate, this)) {
  if (!state_) throw FlowError("no memory for a Lua state");
  *static_cast<LuaRunner**>(lua_getextraspace(state_)) = this;
  for (const luaL_Reg& library : open_libraries) {
    luaL_requiref(state_, library.name, library.func, 1);
    lua_pop(state_, 1);
  }
  for (const char* name : closed) {
    lua_pushnil(state_);
    lua_setglobal(state_, name);
  }
  luaL_dostring(state_, "math.randomseed(1)");  // the same flow flies the same every time
  lua_sethook(state_, count_steps, LUA_MASKCOUNT, steps_per_count);
}

LuaRunner::~LuaRunner() { lua_close(state_); }

void LuaRunner::bind(const char* name, FlowFunction function) {
  functions_.push_back({this, std::move(function)});
  lua_pushlightuserdata(state_, &functions_.back());
  lua_pushcclosure(state_, dispatch, 1);
  lua_setglobal(state_, name);
}

void LuaRunner::run(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file))
    throw FlowError(file.string() + ": the flow cannot be read");
  run(std::string(std::istreambuf_iterator<char>(stream), {}), file.string());
}

void LuaRunner::run(const std::string& text, const std::string& name) {
  name_ = name;
  failure_.reset();
  steps_ = 0;
  if (luaL_loadbufferx(state_, text.data(), text.size(), chunk, "t") != LUA_OK) {
    failure_ = describe(state_, lua_tostring(state_, -1));
    fail();
  }
  call(0, 0);
}

void LuaRunner::call(int arguments, int results) {
  const int handler = lua_gettop(state_) - arguments;
  lua_pushcfunction(state_, remember_failure);
  lua_insert(state_, handler);
  const int status = lua_pcall(state_, arguments, results, handler);
  lua_remove(state_, handler);
  if (status == LUA_OK) return;
  if (!failure_) failure_ = describe(state_, status == LUA_ERRMEM ? "out of memory" : "stack overflow");
  fail();
}

void LuaRunner::fail() {
  lua_settop(state_, 0);
  throw FlowError(*failure_);
}

// The place where it went wrong; for a helper function of the flow also the line that called it.
std::string LuaRunner::describe(lua_State* state, std::string message) const {
  std::optional<int> line = take_line(message);
  if (!line) line = nearest_line(state);
  const int outermost = line_of(state, deepest_level(state));
  std::string text = name_ + ":" + (line ? std::to_string(*line) + ": " : " ") + message;
  if (outermost > 0 && outermost != line)
    text += " (called from line " + std::to_string(outermost) + ")";
  return text;
}

int LuaRunner::remember_failure(lua_State* state) {
  LuaRunner& runner = of(state);
  if (!runner.failure_) {
    const char* text = lua_tostring(state, 1);
    runner.failure_ = runner.describe(state, text ? text : "an error that is not a text");
  }
  return 1;
}

// Lua leaves an erroring function by a jump, past destructors: so the exception is caught, its text
// put on Lua's stack and everything of C++ gone before the jump.
int LuaRunner::dispatch(lua_State* state) {
  const auto* bound = static_cast<const Bound*>(lua_touserdata(state, lua_upvalueindex(1)));
  try {
    LuaCall call(state);
    bound->function(call);
    return call.given();
  } catch (const std::exception& error) {
    lua_pushstring(state, error.what());
  }
  return lua_error(state);
}

void LuaRunner::count_steps(lua_State* state, lua_Debug*) {
  if (++of(state).steps_ > most_counts)
    luaL_error(state, "the flow computes without ever waiting: an endless loop?");
}

LuaRunner& LuaRunner::of(lua_State* state) {
  return **static_cast<LuaRunner**>(lua_getextraspace(state));
}

void* LuaRunner::allocate(void* context, void* block, std::size_t old_size, std::size_t new_size) {
  auto& used = static_cast<LuaRunner*>(context)->memory_;
  if (!block) old_size = 0;  // then it tells the kind of object
  if (new_size == 0) {
    std::free(block);
    used -= old_size;
    return nullptr;
  }
  if (new_size > old_size && used + (new_size - old_size) > memory_limit) return nullptr;
  void* moved = std::realloc(block, new_size);
  if (moved) used += new_size - old_size;
  return moved;
}

}  // namespace host
