#include "host/gauge/lit_copies.h"

#include <gtest/gtest.h>

namespace host {
namespace {

// An icon of a bitmap at a place; the bitmap stands for all that tells elements apart.
struct Part {
  i32 bitmap, x, y;
};

/// The number of the copy that covers each part, from 1; 0 for none.
std::vector<std::size_t> covered_by(const std::vector<Part>& parts) {
  std::vector<Element> elements(parts.size() + 1);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    elements[i + 1].kind = ELEMENT_ICON;
    elements[i + 1].resource_id = parts[i].bitmap;
    elements[i + 1].position = {parts[i].x, parts[i].y};
  }
  std::vector<ElementInputs> inputs(elements.begin(), elements.end());
  std::vector<std::size_t> covers;
  for (const Covers& cover : find_covers(inputs)) {
    const std::size_t later = cover.lit < inputs.size() ? cover.lit : cover.same_place;
    covers.push_back(later == inputs.size() ? 0 : later);
  }
  covers.erase(covers.begin());
  return covers;
}

TEST(LitCopies, PairOneToOneAcrossTheMiddle) {
  const std::tuple<const char*, std::vector<Part>, std::vector<std::size_t>> cases[] = {
      {"eight pixels on both axes", {{5, 10, 10}, {5, 2, 18}}, {2, 0}},
      {"nine pixels are too many", {{5, 10, 10}, {5, 10, 19}}, {0, 0}},
      {"the far ends of the world", {{5, INT32_MIN, 0}, {5, INT32_MAX, 0}}, {0, 0}},
      {"in place", {{5, 0, 0}, {5, 0, 6}, {5, 0, 0}, {5, 0, 6}}, {3, 4, 0, 0}},
      {"lower, onto the next row", {{5, 0, 0}, {5, 0, 6}, {5, 0, 6}, {5, 0, 12}}, {3, 4, 0, 0}},
      {"higher", {{5, 0, 0}, {5, 0, 6}, {5, 0, -5}, {5, 0, 1}}, {3, 4, 0, 0}},
      {"no copies", {{5, 0, 0}, {5, 0, 6}, {6, 0, 0}, {7, 0, 0}}, {0, 0, 0, 0}},
      {"one copy", {{5, 0, 0}, {5, 0, 6}, {6, 0, 0}, {5, 0, 6}}, {0, 4, 0, 0}},
      {"an overlay first", {{5, 0, 0}, {5, 0, 6}, {6, 0, 0}, {5, 1, 0}, {5, 1, 6}}, {4, 5, 0, 0, 0}},
      {"a third set", {{5, 0, 0}, {5, 0, 0}, {5, 0, 0}}, {2, 3, 0}},
  };
  for (const auto& [what, parts, covers] : cases) EXPECT_EQ(covered_by(parts), covers) << what;
}

}  // namespace
}  // namespace host
