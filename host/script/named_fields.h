/// Tables whose fields have names, as in fly{elevator = 0.1, gear = "up"}.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "host/script/lua_call.h"
#include "host/script/nearest.h"

namespace host {

/// One that a call knows: how its value gets into the record.
template <typename Record>
struct KnownField {
  std::string_view name;
  void (*take)(Record&, const LuaField&);
};

[[noreturn]] void refuse_field(const char* call_name, const LuaField& field,
                               const std::vector<std::string_view>& known);

/// The record with the fields of the call's table taken into it; a call without a table changes nothing.
/// Throws std::invalid_argument for a field that is not known or has no proper value.
template <typename Record>
Record with_fields(Record record, const char* call_name, const LuaCall& call,
                   std::span<const KnownField<Record>> known) {
  for (const LuaField& field : call.fields(1)) {
    const auto found = std::ranges::find(known, field.name, &KnownField<Record>::name);
    if (found == known.end()) {
      std::vector<std::string_view> names;
      for (const auto& each : known) names.push_back(each.name);
      refuse_field(call_name, field, names);
    }
    found->take(record, field);
  }
  return record;
}

}  // namespace host
