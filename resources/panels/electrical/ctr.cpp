/// Generator control: a lever and a light for each generator, and the guarded bus transfer.
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Ctr";

/// A line of the bus diagram from a generator's light to its lever.
void draw_feeders(Canvas& canvas, Point left, Point right) {
  const double y = canvas.snapped(left.y) + 0.5;
  engraved_line(canvas, {part_box(panel, 2120).right() - 1, y}, {left.x - 12, y});
  engraved_line(canvas, {right.x + 12, y}, {part_box(panel, 2120, 1).x + 2, y});
}

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  const Point left = hub_of(panel, 2080), right = hub_of(panel, 2080, 1);
  const Box guard = part_box(panel, 2180);
  engrave(canvas, {left.x - 2, left.y - 29}, "GEN 1");
  engrave(canvas, {right.x + 2, right.y - 29}, "GEN 2");
  const double middle = (left.x + right.x) / 2;
  engrave(canvas, {middle, left.y - 13}, "ON");
  engrave(canvas, {middle, left.y}, "OFF");
  engrave(canvas, {middle, left.y + 13}, "RST");
  draw_feeders(canvas, left, right);
  engrave(canvas, {guard.x - 8, guard.y + 35}, "AC BUS\nXFER", {.size = heading_size}, Anchor::right);
  engrave(canvas, {guard.right() + 6, guard.y + 31}, "MANUAL", {}, Anchor::left);
  engrave(canvas, {guard.right() + 6, guard.y + 55}, "AUTO", {}, Anchor::left);
}

constexpr Art art[] = {background(120, draw_plate, "generator control panel")};

}  // namespace

const std::span<const Art> ctr_art = art;

}  // namespace artwork
