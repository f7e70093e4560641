/// Switches that stand on many panels.
#include "resources/panels/shared/switches.h"

#include "resources/kit/guard.h"
#include "resources/kit/knob.h"
#include "resources/kit/lever.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr double nut = 6;

Throw two_way(int image) { return image == 0 ? Throw::down : Throw::up; }

void draw_toggle(Canvas& canvas, int image) {
  lever_nut(canvas, toggle_hub, nut);
  lever_handle(canvas, toggle_hub, 14, two_way(image));
}

void draw_three_way(Canvas& canvas, int image) {
  constexpr Throw thrown[] = {Throw::centre, Throw::up, Throw::down};
  lever_nut(canvas, three_way_hub, nut);
  lever_handle(canvas, three_way_hub, 13, thrown[image]);
}

void draw_light_toggle(Canvas& canvas, int image) {
  lever_nut(canvas, light_toggle_hub, nut);
  lever_handle(canvas, light_toggle_hub, 11, two_way(image), 3);
}

void draw_pump_toggle(Canvas& canvas, int image) {
  lever_nut(canvas, pump_toggle_hub, nut);
  lever_handle(canvas, pump_toggle_hub, 9, two_way(image), 3);
}

void draw_flow_switch(Canvas& canvas, int image) {
  flow_switch(canvas, flow_switch_hub, 11.2, image == 1);
}

void draw_guarded_switch(Canvas& canvas, int image) {
  if (image == 1) guarded_switch_on(canvas, whole(canvas.size()));
}

void draw_guard(Canvas& canvas, int image) {
  const Box frame = whole(canvas.size());
  image == 0 ? guard_closed(canvas, frame) : guard_open(canvas, frame);
}

constexpr Art art[] = {
    {2080, 3, {13, 39}, draw_three_way, "three-way lever: centre, up, down"},
    {2130, 2, {14, 41}, draw_toggle, "toggle lever: down, up"},
    {2140, 2, {26, 26}, draw_flow_switch, "push switch with flow bar: across, in line"},
    {2150, 2, {27, 64}, draw_guarded_switch, "lever under a guard: off (on the plate), on"},
    {2160, 2, {27, 64}, draw_guard, "guard: closed, open"},
    {2170, 2, {30, 66}, draw_guarded_switch, "lever under a wide guard: off (on the plate), on"},
    {2180, 2, {30, 66}, draw_guard, "wide guard: closed, open"},
    {3280, 2, {18, 30}, draw_pump_toggle, "short toggle lever: down, up"},
    {4260, 2, {14, 36}, draw_light_toggle, "light switch lever: down, up"},
};

}  // namespace

const std::span<const Art> shared_switch_art = art;

}  // namespace artwork
