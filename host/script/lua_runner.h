/// Runs one flow: a Lua script in a closed room, with the functions that the host gives it.
#pragma once

#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/script/compute_watch.h"
#include "host/script/lua_call.h"

struct lua_State;
struct lua_Debug;

namespace host {

/// A flow that failed; what() is "file:line: what is wrong".
struct FlowError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A function that flows can call. It takes its arguments from the call, gives its results to it
/// and returns nothing; an exception it throws stops the flow at the line that called it.
using FlowFunction = std::function<void(LuaCall&)>;

/// A Lua state with strings, tables and mathematics, and no way to the disk, to other programs or
/// around a failed expectation.
class LuaRunner {
 public:
  LuaRunner();
  ~LuaRunner();
  LuaRunner(const LuaRunner&) = delete;
  LuaRunner& operator=(const LuaRunner&) = delete;

  void bind(const char* name, FlowFunction function);

  /// Reads a flow file without running it. Throws FlowError when it cannot be read or is no Lua.
  void parse(const std::filesystem::path& file);

  /// Runs a flow file to its end. Throws FlowError. The flow may require() files beside it and in
  /// folders below, by names like "lib.pilot"; each runs once.
  void run(const std::filesystem::path& file);

  /// Runs a flow from memory; `name` stands for the file in messages. No files lie beside it.
  void run(const std::string& text, const std::string& name);

  /// Says that time has moved on: a flow that never lets it is stopped as an endless loop.
  void alive() { steps_ = 0; }

  /// Asked while the flow computes: whether it is to end, as after Ctrl-C.
  std::function<bool()> end_wanted;

  /// Called on another thread with the message of a flow that does not return from one call of Lua's
  /// library and cannot be stopped. Unless set the program ends.
  std::function<void(const std::string&)> on_stuck;

 private:
  static void* allocate(void* context, void* block, std::size_t old_size, std::size_t new_size);
  static int dispatch(lua_State* state);
  static int remember_failure(lua_State* state);
  static void count_steps(lua_State* state, lua_Debug* debug);
  static int set_metatable(lua_State* state);
  static LuaRunner& of(lua_State* state);

  friend class LuaCall;
  void call(int arguments, int results);
  void run_loaded();
  void stuck() const;
  void start(const std::filesystem::path& folder);
  void load(const std::string& text, const std::string& name);
  void require(LuaCall& call);
  void require_file(const std::string& module);
  std::string describe(lua_State* state, std::string message) const;
  [[noreturn]] void fail();

  struct Bound {
    LuaRunner* runner;
    FlowFunction function;
  };

  std::deque<Bound> functions_;
  std::filesystem::path folder_;  ///< where required files lie; empty: nowhere
  std::vector<std::string>
      sources_;  ///< the names of the files by their number; the flow's is the first
  std::optional<std::string> failure_;
  std::unique_ptr<ComputeWatch> watch_;  ///< while a flow runs
  std::size_t memory_ = 0;
  int steps_ = 0;  ///< in units of the hook's count
  lua_State* state_;
};

}  // namespace host
