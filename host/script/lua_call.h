/// One call of a host function by a flow: its arguments and its results.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/inputs/named_value.h"

struct lua_State;

namespace host {

/// Arguments are numbered from 1. The readers throw std::invalid_argument with a message that
/// names the argument when it is missing or of another kind.
class LuaCall {
 public:
  explicit LuaCall(lua_State* state);

  int count() const { return count_; }
  bool has(int index) const;
  bool is_number(int index) const;
  bool is_table(int index) const;
  bool is_text(int index) const;

  double number(int index, const char* what) const;
  double number_or(int index, const char* what, double fallback) const;
  int whole(int index, const char* what) const;
  int whole_or(int index, const char* what, int fallback) const;
  std::uint32_t key(int index, const char* what) const;  ///< 0 to 2^32 - 1
  std::string text(int index, const char* what) const;
  std::string text_or(int index, const char* what, std::string fallback) const;
  bool truth(int index) const;         ///< false for nil, false and nothing
  std::string shown(int index) const;  ///< any value as a person reads it

  /// The fields of the table at `index`, in the order of their names; none without an argument there.
  std::vector<NamedValue> fields(int index) const;

  /// Replaces the table at `index` by its fields, at most `most`, so that control = {"Name", x, y} can
  /// stand for its parts.
  void unpack(int index, int most);

  /// Calls the function at `index` without arguments and returns whether it gave something true.
  bool ask(int index, const char* what) const;

  void give(double value);
  void give(bool value);
  void give(std::string_view value);
  void give_nothing();
  void give_top();  ///< what already lies on top of Lua's stack

  /// Gives a list of tables: begin_list, then per entry begin_entry, field..., end_entry.
  void begin_list();
  void begin_entry();
  void field(const char* name, double value);
  void field(const char* name, std::string_view value);
  void field(const NamedValue& field);
  void end_entry();
  void append(std::string_view value);

  int given() const { return given_; }

 private:
  lua_State* state_;
  int count_;
  int given_ = 0;
  int entries_ = 0;
};

}  // namespace host
