#include "host/loader/element_chain.h"

namespace host {
namespace {

// An element still to be taken, or (null) the place where the link numbered `owner` ends.
struct Step {
  Element* element;
  std::size_t owner;
};

void push_children(const Element& element, std::vector<Step>& steps) {
  if (element.next == nullptr) return;
  std::size_t count = 0;
  while (count < longest_chain && element.next[count] != nullptr) ++count;
  while (count-- > 0) steps.push_back({element.next[count], 0});
}

}  // namespace

std::vector<ChainLink> element_chain(const GaugeHeader& gauge) {
  std::vector<ChainLink> chain;
  std::vector<Step> steps;
  if (gauge.element_list[0] != nullptr) steps.push_back({gauge.element_list[0], 0});
  while (!steps.empty()) {
    const Step step = steps.back();
    steps.pop_back();
    if (step.element == nullptr) {
      chain[step.owner].end = chain.size();
    } else if (chain.size() < longest_chain) {
      steps.push_back({nullptr, chain.size()});
      chain.push_back({step.element, 0});
      push_children(*step.element, steps);
    }
  }
  return chain;
}

}  // namespace host
