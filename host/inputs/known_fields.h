/// Records whose fields a person names, as in fly{elevator = 0.1, gear = "up"}.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

#include "host/inputs/named_value.h"

namespace host {

/// A field by its name, and how its value gets into the record.
template <typename Record>
struct KnownField {
  std::string_view name;
  void (*take)(Record&, const NamedValue&);
};

[[noreturn]] void refuse_field(const char* call_name, const NamedValue& field,
                               const std::vector<std::string_view>& known);

/// The record with the values taken into it. Throws std::invalid_argument for a field that is not known
/// or has no proper value.
template <typename Record>
Record with_fields(Record record, const char* call_name, std::span<const NamedValue> values,
                   std::span<const KnownField<Record>> known) {
  for (const NamedValue& value : values) {
    const auto found = std::ranges::find(known, value.name, &KnownField<Record>::name);
    if (found == known.end()) {
      std::vector<std::string_view> names;
      for (const auto& each : known) names.push_back(each.name);
      refuse_field(call_name, value, names);
    }
    found->take(record, value);
  }
  return record;
}

}  // namespace host
