/// Letter case as the operating system compares names: only the 26 ASCII letters have one.
#pragma once

#include <algorithm>
#include <string_view>

namespace platform {

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Whether two names are the same but for letter case.
constexpr bool same_name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace platform
