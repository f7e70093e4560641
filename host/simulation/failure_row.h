/// What can fail, as the rest of the host names it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace host {

/// A system that a person, a flow or chance can fail.
struct FailureRow {
  std::uint32_t key;       ///< by which instruments know it; from 101 on no instrument asks
  std::string_view name;   ///< lower_snake_case, unique
  std::string_view words;  ///< for a page: "Generator of engine 1"
};

}  // namespace host
