#include "tests/module/sides.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace sides {
namespace {

/// What a name says of sides: of "system_2_engine_1_pump" {"system", 2} and {"engine", 1}. Left and A
/// are 1, right and B are 2.
std::map<std::string, int> sides_of(const std::string& name) {
  std::map<std::string, int> sides;
  std::istringstream words(name);
  std::string word, before = "side";
  while (std::getline(words, word, '_')) {
    const std::string one_two[] = {"1", "left", "a", "2", "right", "b"};
    const auto found = std::ranges::find(one_two, word);
    if (found != std::end(one_two)) sides[before] = found - one_two < 3 ? 1 : 2;
    before = word == "left" || word == "right" ? before : word;
  }
  return sides;
}

}  // namespace

std::string mirrored(const std::string& name) {
  if (sides_of(name).size() != 1) return "";
  constexpr std::pair<const char*, const char*> pairs[] = {
      {"1", "2"}, {"2", "1"}, {"left", "right"}, {"right", "left"}, {"a", "b"}, {"b", "a"}};
  std::istringstream words(name);
  std::string word, other;
  while (std::getline(words, word, '_')) {
    for (const auto& [one, two] : pairs) {
      if (word == one) {
        word = two;
        break;
      }
    }
    other += (other.empty() ? "" : "_") + word;
  }
  return other;
}

bool opposite(const std::string& one, const std::string& two) {
  const std::map<std::string, int> a = sides_of(one), b = sides_of(two);
  if (a.size() == 1 && b.size() == 1) return a.begin()->second != b.begin()->second;
  return std::ranges::any_of(a, [&](const auto& side) {
    const auto same = b.find(side.first);
    return same != b.end() && same->second != side.second;
  });
}

}  // namespace sides
