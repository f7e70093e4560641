/// Elements and gauges made by hand.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// A gauge of one chain; its elements stay where they are.
class MadeGauge {
 public:
  explicit MadeGauge(i32 background) { add(ELEMENT_STATIC_IMAGE, background, {0, 0}); }

  Element& add(u32 kind, i32 resource, PanelPoint position) {
    auto element = std::make_unique<Link>();
    element->element.kind = kind;
    element->element.resource_id = resource;
    element->element.position = position;
    element->element.gauge = &header;
    element->element.next = element->next;
    if (!links_.empty()) links_.back()->next[0] = &element->element;
    links_.push_back(std::move(element));
    header.element_list[0] = &links_.front()->element;
    return links_.back()->element;
  }

  Element& icon(i32 resource, PanelPoint position, u32 images, ValueRoutine value = nullptr) {
    Element& element = add(ELEMENT_ICON, resource, position);
    element.icon = {{}, value, 1, images, images - 1.0};
    return element;
  }

  Element& needle(i32 resource, PanelPoint position, PanelPoint pivot,
                  std::span<const NonlinearityPoint> table = {}) {
    Element& element = add(ELEMENT_NEEDLE, resource, position);
    element.needle = {
        pivot, {}, nullptr, table.empty() ? nullptr : table.data(), static_cast<u32>(table.size()),
        0,     0};
    return element;
  }

  Element& at(std::size_t index) { return links_[index]->element; }

  GaugeHeader header{};

 private:
  struct Link {
    Element element{};
    Element* next[2]{};
  };
  std::vector<std::unique_ptr<Link>> links_;
};

}  // namespace host
