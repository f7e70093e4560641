#include <vector>

#include "host/loader/element_chain.h"
#include "host/loader/record_checks.h"

#include <set>

namespace host {
namespace {

// A null-terminated list of children, as far as it can be read.
std::vector<const Element*> children_of(const Element& element, const Inspector& place) {
  std::vector<const Element*> children;
  if (element.next == nullptr) return children;
  for (std::size_t i = 0; i < longest_chain; ++i) {
    if (!place.readable(element.next + i, "the list of next elements")) return {};
    if (element.next[i] == nullptr) return children;
    children.push_back(element.next[i]);
  }
  place.error("the list of next elements has no end");
  return {};
}

void check_root(const GaugeHeader& gauge, const Inspector& place) {
  if (gauge.element_list[1] != nullptr) place.error("the element list has more than one root");
  const Element* root = gauge.element_list[0];
  const bool legible = reinterpret_cast<std::uintptr_t>(root) % alignof(Element) == 0 &&
                       place.memory().readable(root, sizeof(Element));
  if (legible && root->kind != ELEMENT_STATIC_IMAGE)
    place.error("the first element is not a background but of kind " + std::to_string(root->kind));
}

struct Walk {
  const GaugeHeader& gauge;
  const Inspector& place;
  std::set<const Element*> seen{};
  std::vector<const Element*> pending{};

  // Whether the walk can go on.
  bool visit(const Element* element) {
    const Inspector here = place.part("element " + std::to_string(seen.size()));
    if (!seen.insert(element).second) {
      here.error("the chain comes back to an element that it has passed");
      return false;
    }
    if (seen.size() > longest_chain) {
      here.error("the chain has no end");
      return false;
    }
    if (!here.writable(element, "the element")) return false;
    check_element(*element, gauge, here);
    const auto children = children_of(*element, here);
    pending.insert(pending.end(), children.rbegin(), children.rend());
    return true;
  }
};

}  // namespace

void check_elements(const GaugeHeader& gauge, const Inspector& place) {
  check_root(gauge, place);
  Walk walk{.gauge = gauge, .place = place};
  walk.pending = {gauge.element_list[0]};
  while (!walk.pending.empty()) {
    const Element* element = walk.pending.back();
    walk.pending.pop_back();
    if (!walk.visit(element)) return;
  }
}

}  // namespace host
