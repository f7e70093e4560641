#include "host/gauge/lit_copies.h"

#include <algorithm>
#include <cstdlib>

namespace host {
namespace {

// Numbers of elements in chain order.
using Numbers = std::vector<std::size_t>;

// How well two sets go together; distances are squared, in pixels.
struct Fit {
  int pairs = 0;
  int distance = 0;
  bool better_than(const Fit& other) const {
    return pairs != other.pairs ? pairs > other.pairs : distance < other.distance;
  }
};

// The elements that show one thing, on both sides of the middle, and the best way to pair them.
class Pairing {
 public:
  Pairing(std::span<const ElementInputs> elements, Numbers first, Numbers later)
      : elements_(elements), first_(std::move(first)), later_(std::move(later)) {
    const std::size_t columns = later_.size() + 1;
    best_.assign((first_.size() + 1) * columns, {});
    for (std::size_t i = first_.size(); i-- > 0;)
      for (std::size_t k = later_.size(); k-- > 0;) {
        best(i, k) = best(i, k + 1).better_than(best(i + 1, k)) ? best(i, k + 1) : best(i + 1, k);
        if (const Fit pair = paired(i, k); pair.better_than(best(i, k))) best(i, k) = pair;
      }
  }

  void put(std::vector<Covers>& covers) {
    std::size_t i = 0, k = 0;
    while (i < first_.size() && k < later_.size()) {
      const Fit& here = best(i, k);
      if (!here.better_than(best(i + 1, k))) {
        ++i;
      } else if (!here.better_than(best(i, k + 1))) {
        ++k;
      } else {
        covers[first_[i++]].lit = later_[k++];
      }
    }
  }

 private:
  Fit& best(std::size_t i, std::size_t k) { return best_[i * (later_.size() + 1) + k]; }

  // With these two paired, if they stand near enough.
  Fit paired(std::size_t i, std::size_t k) {
    const PanelPoint a = elements_[first_[i]].element().position;
    const PanelPoint b = elements_[later_[k]].element().position;
    const std::int64_t x = std::int64_t{a.x} - b.x, y = std::int64_t{a.y} - b.y;
    if (std::abs(x) > farthest_copy || std::abs(y) > farthest_copy) return {};
    const Fit& rest = best(i + 1, k + 1);
    return {rest.pairs + 1, rest.distance + static_cast<int>(x * x + y * y)};
  }

  std::span<const ElementInputs> elements_;
  Numbers first_;
  Numbers later_;
  std::vector<Fit> best_;  // of what is left from the i-th of the first half and the k-th of the later
};

bool same_place(const ElementInputs& a, const ElementInputs& b) {
  const PanelPoint one = a.element().position, other = b.element().position;
  return one.x == other.x && one.y == other.y;
}

// The elements grouped by what they show, without the background.
std::vector<Numbers> kinds_of(std::span<const ElementInputs> elements) {
  std::vector<Numbers> kinds;
  for (std::size_t i = 1; i < elements.size(); ++i) {
    std::size_t kind = 0;
    while (kind < kinds.size() && !elements[kinds[kind].front()].same_as(elements[i])) ++kind;
    if (kind == kinds.size()) kinds.emplace_back();
    kinds[kind].push_back(i);
  }
  return kinds;
}

}  // namespace

std::vector<Covers> find_covers(std::span<const ElementInputs> elements) {
  const std::size_t none = elements.size(), middle = none / 2;
  std::vector<Covers> covers(elements.size(), {none, none});
  for (const Numbers& kind : kinds_of(elements)) {
    for (std::size_t i = 0; i < kind.size(); ++i)
      for (std::size_t k = i + 1; k < kind.size() && covers[kind[i]].same_place == none; ++k)
        if (same_place(elements[kind[i]], elements[kind[k]])) covers[kind[i]].same_place = kind[k];
    const auto split = std::ranges::upper_bound(kind, middle);
    Pairing(elements, {kind.begin(), split}, {split, kind.end()}).put(covers);
  }
  return covers;
}

}  // namespace host
