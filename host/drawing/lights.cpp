#include "host/drawing/lights.h"

#include <algorithm>

#include "host/gauge/lit_copies.h"

namespace host {
namespace {

// The image flag of lamps and of everything in a lit copy.
constexpr u32 shines_by_itself = 0x4;

bool shines(const Element& element) { return (element.image_flags & shines_by_itself) != 0; }

struct Box {
  std::int64_t x, y, width, height;
};

bool meet(const Box& a, const Box& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

// Where a gauge takes clicks, in pixels of its background.
std::vector<Box> click_boxes(const GaugeHeader& gauge) {
  std::vector<Box> groups{{0, 0, 0, 0}}, boxes;
  for (const MouseArea* area = gauge.mouse_areas; area && area->kind != MOUSE_END; ++area) {
    const Box& group = groups.back();
    const Box box{group.x + area->x, group.y + area->y, area->width, area->height};
    if (area->kind == MOUSE_CLICK_AREA) boxes.push_back(box);
    if (area->kind == MOUSE_GROUP) groups.push_back(box);
    if (area->kind == MOUSE_GROUP_END && groups.size() > 1) groups.pop_back();
  }
  return boxes;
}

}  // namespace

std::vector<Light> lights_at_night(const GaugeHeader& gauge, const std::vector<ChainLink>& chain,
                                   const Pictures& pictures) {
  const std::vector<Box> clicks = click_boxes(gauge);
  std::vector<ElementInputs> inputs;
  std::vector<Light> lights;
  for (const ChainLink& link : chain) {
    inputs.emplace_back(*link.element);
    lights.push_back(shines(*link.element) ? Light::day : Light::night);
  }
  const PanelSize face = pictures.size(chain.front().element->resource_id);
  // What is as large as its face is the lighting itself.
  const auto worked = [&](const Element& element) {
    const PanelSize size = pictures.size(element.resource_id);
    const Box box{element.position.x, element.position.y, size.width, size.height};
    return element.kind == ELEMENT_ICON && (size.width != face.width || size.height != face.height) &&
           std::ranges::any_of(clicks, [&](const Box& click) { return meet(click, box); });
  };
  const std::vector<Covers> covers = find_covers(inputs);
  for (std::size_t i = 0; i < chain.size(); ++i) {
    const std::size_t lit = covers[i].lit;
    if (lit < chain.size() && !shines(*chain[i].element) && worked(*chain[i].element))
      lights[lit] = Light::among_parts;
  }
  return lights;
}

}  // namespace host
