#include "host/script/lua_runner.h"

#include <lua.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "host/files/read_file.h"
#include "host/files/shortened.h"

namespace host {
namespace {

constexpr std::size_t memory_limit = 256u << 20;
constexpr int steps_per_count = 10'000;
constexpr int most_counts = 10'000;  // a second or two of pure computing
constexpr const char* endless = "the flow computes without ever waiting: an endless loop?";

// Lua knows a file by this and its number, since it cuts long names; messages carry the real one.
constexpr std::string_view chunk = "flow";

// What required files have returned, by their names; `false` while they run.
constexpr const char* modules = "flow_modules";

constexpr luaL_Reg open_libraries[] = {
    {LUA_GNAME, luaopen_base},
    {LUA_TABLIBNAME, luaopen_table},
    {LUA_STRLIBNAME, luaopen_string},
    {LUA_MATHLIBNAME, luaopen_math},
};

// What reaches the disk or the loader, and what could swallow a failed expectation.
constexpr const char* closed[] = {"dofile", "loadfile", "load", "pcall", "xpcall", "collectgarbage"};

// A line of a file.
struct Place {
  std::size_t source;
  int line;
  bool operator==(const Place&) const = default;
};

// The place of a message of Lua's own, "flow0:12: text"; the text is left in `message`.
std::optional<Place> take_place(std::string& message, std::size_t sources) {
  if (!message.starts_with(chunk)) return std::nullopt;
  char* end = nullptr;
  const std::size_t source = std::strtoul(message.c_str() + chunk.size(), &end, 10);
  if (*end != ':' || source >= sources) return std::nullopt;
  const long line = std::strtol(end + 1, &end, 10);
  if (std::string_view(end).substr(0, 2) != ": ") return std::nullopt;
  message.erase(0, static_cast<std::size_t>(end + 2 - message.c_str()));
  return Place{source, static_cast<int>(line)};
}

// Where a level of the stack is; nothing for none and for functions of the host.
std::optional<Place> place_of(lua_State* state, int level) {
  lua_Debug debug{};
  if (level < 0 || !lua_getstack(state, level, &debug)) return std::nullopt;
  lua_getinfo(state, "Sl", &debug);
  if (debug.currentline <= 0) return std::nullopt;
  return Place{std::strtoul(debug.short_src + chunk.size(), nullptr, 10), debug.currentline};
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
std::optional<Place> nearest_place(lua_State* state) {
  for (int level = 0; level < 8; ++level)
    if (const auto place = place_of(state, level)) return place;
  return std::nullopt;
}

// "lib.pilot" is lib/pilot.lua: words that cannot lead out of the folder.
std::optional<std::filesystem::path> module_file(const std::string& module) {
  std::filesystem::path file;
  std::istringstream words(module + ".");
  for (std::string word; std::getline(words, word, '.');) {
    const auto plain = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; };
    if (word.empty() || !std::ranges::all_of(word, plain)) return std::nullopt;
    file /= word;
  }
  return file += ".lua";
}

std::string text_of(const std::filesystem::path& file) { return read_file(file, mebibyte); }

// Tells a watch, if there is one, where the flow's thread is: there now, and back again at the end.
template <void (ComputeWatch::*there)(), void (ComputeWatch::*back)()>
class Turn {
 public:
  explicit Turn(ComputeWatch* watch) : watch_(watch) {
    if (watch_) (watch_->*there)();
  }
  ~Turn() {
    if (watch_) (watch_->*back)();
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  ComputeWatch* watch_;
};

using HostTurn = Turn<&ComputeWatch::in_host, &ComputeWatch::in_flow>;  // in a function of the host
using FlowTurn = Turn<&ComputeWatch::in_flow, &ComputeWatch::in_host>;  // as when it asks a condition

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
  lua_getglobal(state_, "setmetatable");
  lua_pushcclosure(state_, set_metatable, 1);
  lua_setglobal(state_, "setmetatable");
  bind("require", [this](LuaCall& call) { require(call); });
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

void LuaRunner::parse(const std::filesystem::path& file) {
  start(std::filesystem::absolute(file).parent_path());
  try {
    load(text_of(file), file.string());
  } catch (const FileFault& fault) {
    throw FlowError(fault.what());
  }
}

void LuaRunner::run(const std::filesystem::path& file) {
  parse(file);
  run_loaded();
}

void LuaRunner::run(const std::string& text, const std::string& name) {
  start({});
  load(text, name);
  run_loaded();
}

void LuaRunner::run_loaded() {
  const struct Watched {
    explicit Watched(LuaRunner& flow) : runner(flow) {
      runner.watch_ = std::make_unique<ComputeWatch>([this] { runner.stuck(); });
    }
    ~Watched() { runner.watch_.reset(); }
    LuaRunner& runner;
  } watched(*this);
  call(0, 0);
}

void LuaRunner::stuck() const {
  const std::string message = sources_.front() + ": " + endless;
  if (on_stuck) return on_stuck(message);
  std::fprintf(stderr, "\n%s\n", message.c_str());
  std::_Exit(1);
}

void LuaRunner::start(const std::filesystem::path& folder) {
  folder_ = folder;
  sources_.clear();
  failure_.reset();
  steps_ = 0;
  lua_settop(state_, 0);
  lua_newtable(state_);
  lua_setfield(state_, LUA_REGISTRYINDEX, modules);
}

// Leaves the file's function on the stack.
void LuaRunner::load(const std::string& text, const std::string& name) {
  const std::string chunk_name = "=" + std::string(chunk) + std::to_string(sources_.size());
  sources_.push_back(name);
  if (luaL_loadbufferx(state_, text.data(), text.size(), chunk_name.c_str(), "t") == LUA_OK) return;
  failure_ = describe(state_, lua_tostring(state_, -1));
  fail();
}

void LuaRunner::require(LuaCall& call) {
  const std::string module = call.text(1, "module");
  luaL_checkstack(state_, 8, nullptr);
  lua_getfield(state_, LUA_REGISTRYINDEX, modules);
  if (lua_getfield(state_, -1, module.c_str()) == LUA_TNIL) {
    lua_pop(state_, 1);
    require_file(module);
  } else if (lua_isboolean(state_, -1) && !lua_toboolean(state_, -1)) {
    throw std::runtime_error("'" + module + "' requires itself");
  }
  call.give_top();
}

// Below the value that it leaves on the stack lies the table of modules.
void LuaRunner::require_file(const std::string& module) {
  const auto file = module_file(module);
  if (!file || folder_.empty() || !std::filesystem::is_regular_file(folder_ / *file))
    throw std::runtime_error("there is no file for " + in_quotes(module) + " beside the flow");
  const std::string text = text_of(folder_ / *file);
  lua_pushboolean(state_, false);
  lua_setfield(state_, -2, module.c_str());
  load(text, (std::filesystem::path(sources_.front()).parent_path() / *file).string());
  this->call(0, 1);
  if (lua_isnil(state_, -1)) {
    lua_pop(state_, 1);
    lua_pushboolean(state_, true);
  }
  lua_pushvalue(state_, -1);
  lua_setfield(state_, -3, module.c_str());
}

void LuaRunner::call(int arguments, int results) {
  const int handler = lua_gettop(state_) - arguments;
  lua_pushcfunction(state_, remember_failure);
  lua_insert(state_, handler);
  const FlowTurn turn(watch_.get());
  const int status = lua_pcall(state_, arguments, results, handler);
  lua_remove(state_, handler);
  if (status == LUA_OK) return;
  const bool too_long = watch_ && watch_->expired();
  if (!failure_)
    failure_ = describe(state_, too_long               ? endless
                                : status == LUA_ERRMEM ? "out of memory"
                                                       : "stack overflow");
  fail();
}

void LuaRunner::fail() {
  lua_settop(state_, 0);
  throw FlowError(*failure_);
}

// The place where it went wrong; for a helper function also the line of the flow that called it.
std::string LuaRunner::describe(lua_State* state, std::string message) const {
  std::optional<Place> place = take_place(message, sources_.size());
  if (!place) place = nearest_place(state);
  const auto in_file = [&](const Place& where) {
    return sources_[where.source] + ":" + std::to_string(where.line);
  };
  const auto outermost = place_of(state, deepest_level(state));
  std::string text = (place ? in_file(*place) + ": " : sources_.front() + ": ") + message;
  if (!outermost || outermost == place) return text;
  const bool same_file = place && place->source == outermost->source;
  return text + " (called from " +
         (same_file ? "line " + std::to_string(outermost->line) : in_file(*outermost)) + ")";
}

int LuaRunner::remember_failure(lua_State* state) {
  LuaRunner& runner = of(state);
  if (!runner.failure_) {
    const char* text = lua_tostring(state, 1);
    runner.failure_ = runner.describe(state, text ? text : "an error that is not a text");
  }
  return 1;
}

// This Lua is the one that is compiled for exceptions: its own errors, such as no memory for a result,
// run the destructors between here and the flow. The host's exceptions become errors of Lua.
int LuaRunner::dispatch(lua_State* state) {
  const auto* bound = static_cast<const Bound*>(lua_touserdata(state, lua_upvalueindex(1)));
  try {
    const HostTurn turn(bound->runner->watch_.get());
    LuaCall call(state);
    bound->function(call);
    return call.given();
  } catch (const std::exception& error) {
    lua_pushstring(state, error.what());
  }
  return lua_error(state);
}

void LuaRunner::count_steps(lua_State* state, lua_Debug*) {
  LuaRunner& runner = of(state);
  if (runner.end_wanted && runner.end_wanted()) luaL_error(state, "interrupted");
  const bool too_long = runner.watch_ && runner.watch_->expired();
  if (++runner.steps_ > most_counts || too_long) luaL_error(state, endless);
}

// A finalizer would run at any moment, also in the middle of a call of the host's, and no hook sees it.
int LuaRunner::set_metatable(lua_State* state) {
  if (lua_istable(state, 2)) {
    lua_pushliteral(state, "__gc");
    if (lua_rawget(state, 2) != LUA_TNIL)
      luaL_error(state, "tables of a flow have no finalizer (__gc)");
    lua_pop(state, 1);
  }
  lua_pushvalue(state, lua_upvalueindex(1));
  lua_insert(state, 1);
  lua_call(state, lua_gettop(state) - 1, 1);
  return 1;
}

LuaRunner& LuaRunner::of(lua_State* state) {
  return **static_cast<LuaRunner**>(lua_getextraspace(state));
}

void* LuaRunner::allocate(void* context, void* block, std::size_t old_size, std::size_t new_size) {
  auto* runner = static_cast<LuaRunner*>(context);
  auto& used = runner->memory_;
  if (!block) old_size = 0;  // then it tells the kind of object
  if (new_size == 0) {
    std::free(block);
    used -= old_size;
    return nullptr;
  }
  const bool grows = new_size > old_size;
  if (grows && used + (new_size - old_size) > memory_limit) return nullptr;
  if (grows && runner->watch_ && runner->watch_->expired()) return nullptr;
  void* moved = std::realloc(block, new_size);
  if (moved) used += new_size - old_size;
  return moved;
}

}  // namespace host
