/// Ram air: the guarded ventilation inlet and the guarded emergency outlet.
#include "resources/kit/guard.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Ramair";

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  screw(canvas, {7.5, plate.height - 7.5}, 3.2, 33);
  screw(canvas, {62, 7.5}, 3.2, 60);
  const Box inlet = part_box(panel, 1320), outlet = part_box(panel, 1340);
  guarded_switch_off(canvas, inlet);
  guarded_rotary(canvas, outlet, 0);
  engrave(canvas, {inlet.centre().x, inlet.bottom() + 6}, "INLET");
  engrave(canvas, {outlet.centre().x + 2, inlet.bottom() + 6}, "OUTLET");
  const Point light = part_box(panel, 2110).centre();
  engrave(canvas, {light.x, light.y + 17}, "TEST");
  engrave(canvas, {38, 58}, "RAM AIR", {.size = heading_size + 1});
}

void draw_guard(Canvas& canvas, int image) {
  const Box frame = whole(canvas.size());
  image == 0 ? guard_closed(canvas, frame) : guard_open(canvas, frame);
}

void draw_inlet(Canvas& canvas, int image) {
  if (image == 1) guarded_switch_on(canvas, whole(canvas.size()));
}

void draw_outlet(Canvas& canvas, int image) {
  if (image > 0) guarded_rotary(canvas, whole(canvas.size()), image);
}

constexpr Art art[] = {
    background(1310, draw_plate, "ram air panel"),
    {1320, 2, {28, 62}, draw_guard, "inlet guard: closed, open"},
    {1330, 2, {28, 62}, draw_inlet, "inlet lever: off (on the plate), on"},
    {1340, 2, {26, 60}, draw_guard, "outlet guard: closed, open"},
    {1350, 4, {26, 60}, draw_outlet, "outlet knob: off (on the plate), three positions"},
};

}  // namespace

const std::span<const Art> ramair_art = art;

}  // namespace artwork
