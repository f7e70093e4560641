/// Small pieces of text handling that the host's readers share. Letters are ASCII.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// `text` without the blanks, tabs and line ends around it.
inline std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

inline char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// `text` in small letters.
inline std::string lower(std::string_view text) {
  std::string small(text);
  for (char& c : small) c = lower(c);
  return small;
}

/// Whether two names are the same, letter case aside.
inline bool same_name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char one, char other) { return lower(one) == lower(other); });
}

/// The parts of `text` between the separators; always at least one.
inline std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t at = text.find(separator);
    parts.push_back(text.substr(0, at));
    if (at == std::string_view::npos) return parts;
    text.remove_prefix(at + 1);
  }
}

/// A number with as many digits as it takes to read the same one again.
template <typename Number>
std::string exact_number(Number number) {
  std::array<char, 40> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

}  // namespace host
