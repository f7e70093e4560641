#include "host/panel/nearest.h"

#include <algorithm>
#include <numeric>

namespace host {
namespace {

constexpr std::size_t longest_name = 64;  // of those worth comparing
constexpr std::size_t most_names = 3;

// How many letters one must add, drop or change to make one name of the other.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t k = 0; k < b.size(); ++k) {
      const std::size_t changed = diagonal + (a[i] != b[k]);
      diagonal = row[k + 1];
      row[k + 1] = std::min({changed, diagonal + 1, row[k] + 1});
    }
  }
  return row[b.size()];
}

// The halves of a lever are as near to its name as one letter.
std::size_t strangeness(std::string_view mistaken, std::string_view name) {
  const bool goes_on = name.starts_with(mistaken) && name.substr(mistaken.size()).starts_with('_');
  return goes_on ? 1 : distance(mistaken, name);
}

}  // namespace

std::string did_you_mean(std::string_view mistaken, const std::vector<std::string_view>& names) {
  if (mistaken.empty() || mistaken.size() > longest_name) return {};
  std::size_t least = std::max<std::size_t>(2, mistaken.size() / 3);
  std::vector<std::string_view> nearest;
  for (const std::string_view name : names) {
    const std::size_t strange = strangeness(mistaken, name);
    if (strange > least) continue;
    if (strange < least) nearest.clear();
    least = strange;
    if (nearest.size() < most_names) nearest.push_back(name);
  }
  std::string text;
  for (const std::string_view name : nearest)
    text += (text.empty() ? "; did you mean " : " or ") + std::string(name);
  return text.empty() ? text : text + "?";
}

}  // namespace host
