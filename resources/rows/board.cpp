#include "resources/rows/board.h"

#include "resources/bitmap_table.h"
#include "resources/kit/records.h"
#include "resources/rows/draw.h"

namespace artwork {
namespace {

Size size_of(const Element& element) {
  if (element.kind == ELEMENT_STRING) {
    return {element.string.size.width, element.string.size.height};
  }
  const Bitmap* bitmap = find_bitmap(element.resource_id);
  if (bitmap == nullptr) return {};
  if (element.kind != ELEMENT_MOVING_IMAGE) return bitmap->size;
  return window_of(element);
}

Box box_of(const Element& element) {
  const Size size = size_of(element);
  const Point corner = place(element);
  return {corner.x, corner.y, static_cast<double>(size.width), static_cast<double>(size.height)};
}

/// Counted from the far edge where it is negative.
double from_edge(double at, int length) { return at < 0 ? length + at : at; }

}  // namespace

Size window_of(const Element& strip) {
  if (const Bitmap* mask = find_bitmap(strip.moving_image.mask_resource_id)) return mask->size;
  const Bitmap* picture = find_bitmap(strip.resource_id);
  return picture == nullptr ? Size{} : Size{picture->size.width, picture->size.height / 10};
}

Box part_box(const GaugeHeader& gauge, std::string_view name) {
  const Element* element = find_part(gauge, name);
  return element == nullptr ? click_box(gauge, name) : box_of(*element);
}

Point hub_of(const GaugeHeader& gauge, std::string_view name) {
  const Element* element = find_part(gauge, name);
  if (element == nullptr) return click_box(gauge, name).centre();
  if (element->kind == ELEMENT_NEEDLE || element->kind == ELEMENT_SPRITE) {
    return turning_point(*element);
  }
  const Bitmap* bitmap = find_bitmap(element->resource_id);
  const bool strip = element->kind == ELEMENT_MOVING_IMAGE;
  if (strip || bitmap == nullptr) return box_of(*element).centre();
  return place(*element) + hub_in(bitmap->art->picture, bitmap->size);
}

Point where(const Board& board, const Spot& spot) {
  const Size size = board.canvas.size();
  const double level = spot.level.empty() ? 0 : hub_of(board.gauge, spot.level).y;
  if (spot.part.empty()) {
    const double y = spot.level.empty() ? from_edge(spot.by.y, size.height) : level + spot.by.y;
    const double x = spot.middle ? size.width / 2.0 + spot.by.x : from_edge(spot.by.x, size.width);
    return {x, y};
  }
  Point at = hub_of(board.gauge, spot.part);
  if (!spot.other.empty()) {
    const Point other = hub_of(board.gauge, spot.other);
    at = {(at.x + other.x) / 2, (at.y + other.y) / 2};
  }
  if (!spot.level.empty()) at.y = level;
  return at + spot.by;
}

}  // namespace artwork
