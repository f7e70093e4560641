/// The hydraulic system of the flight controls.
#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/panels/controls/hydraulic_dials.h"

namespace artwork::panels::foflt {

constexpr auto items = hydraulic_items("FLIGHT");

/// A knob for the brightness of the dials, on a label of its own.
void draw_brightness(const Canvas& canvas, int) {
  const Box label = whole(canvas.size()).grown(-1);
  const Point hub{label.centre().x, 33};
  sunk_field(canvas, label, 4, palette::mould_dark);
  print(canvas, {hub.x, 9}, "DISPLAY", {.size = 7});
  print(canvas, {label.right() - 12, 52}, "BRT", {.size = 6.5});
  print(canvas, {label.x + 12, 52}, "DIM", {.size = 6.5});
  for (int step = 0; step <= 6; ++step) {
    fill(canvas, circle(polar(hub, 17, 135 + 45.0 * step), 0.6 + 0.18 * step), palette::legend);
  }
  knob_seat(canvas, hub, 12.5);
  pointer_knob(canvas, hub, 11.2, 135);
}

constexpr Art art[] = {
    plate(72, items),
    named_art("IDB_FOFLT_DISPLAY_BRT", {60, 60}, draw_brightness),
};

constinit Unit unit{"Foflt", art};

}  // namespace artwork::panels::foflt
