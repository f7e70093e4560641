#include <vector>

#include "host/loader/element_chain.h"
#include "host/loader/record_checks.h"

namespace host {
namespace {

// "2130" or "2130, 2133": the numbers that the module lacks.
std::string missing_images(u32 first, u32 count, const ModuleBitmaps& bitmaps) {
  std::string missing;
  for (u32 id = first; id < first + count; ++id)
    if (bitmaps.own(id) == nullptr) missing += (missing.empty() ? "" : ", ") + std::to_string(id);
  return missing;
}

void check_images(const Element& element, const ModuleBitmaps& bitmaps, const Inspector& place) {
  if (element.kind == ELEMENT_STRING || element.resource_id < 0) return;
  const u32 count = element.kind == ELEMENT_ICON ? element.icon.image_count : 1;
  const std::string missing = missing_images(static_cast<u32>(element.resource_id), count, bitmaps);
  if (!missing.empty()) place.warning("there is no bitmap " + missing);
  if (element.kind != ELEMENT_MOVING_IMAGE) return;
  const i32 mask = element.moving_image.mask_resource_id;
  if (mask >= 0 && bitmaps.own(static_cast<u32>(mask)) == nullptr)
    place.warning("there is no mask bitmap " + std::to_string(mask));
}

// Where a group stands in the gauge; wide enough for any sum of positions.
struct Corner {
  std::int64_t x;
  std::int64_t y;
};

Corner corner_of(const MouseArea& area, Corner group) { return {group.x + area.x, group.y + area.y}; }

bool inside(const MouseArea& area, Corner group, const Dib& background) {
  const Corner corner = corner_of(area, group);
  return corner.x >= 0 && corner.y >= 0 && corner.x + area.width <= background.width &&
         corner.y + area.height <= background.height;
}

void check_boxes(const MouseArea* areas, const Dib& background, const Inspector& place) {
  std::vector<Corner> groups{{0, 0}};
  for (int i = 0; areas[i].kind != MOUSE_END; ++i) {
    const MouseArea& area = areas[i];
    if (area.kind == MOUSE_GROUP_END && groups.size() > 1) groups.pop_back();
    const bool box = area.kind == MOUSE_GROUP || area.kind == MOUSE_CLICK_AREA;
    if (box && !inside(area, groups.back(), background))
      place.part("mouse area " + std::to_string(i)).warning("its box reaches outside the background");
    if (area.kind == MOUSE_GROUP) groups.push_back(corner_of(area, groups.back()));
  }
}

}  // namespace

void check_artwork(const GaugeHeader& gauge, const ModuleBitmaps& bitmaps, const Inspector& place) {
  const std::vector<ChainLink> chain = element_chain(gauge);
  for (std::size_t i = 0; i < chain.size(); ++i)
    check_images(*chain[i].element, bitmaps, place.part("element " + std::to_string(i)));
  const i32 background = gauge.element_list[0]->resource_id;
  const Dib* face = bitmaps.own(static_cast<u32>(background));
  if (face == nullptr)
    place.error("has no background: " + bitmaps.why_missing(static_cast<u32>(background)));
  if (face != nullptr) check_boxes(gauge.mouse_areas, *face, place);
}

}  // namespace host
