#include "resources/panels/shared/fittings.h"

#include "resources/bitmap_table.h"
#include "resources/kit/guard.h"
#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/panels/shared/switches.h"

namespace artwork {
namespace {

/// How the plate receives one kind of shared part.
struct Fitting {
  int id;
  Point hub;
  void (*fit)(const Canvas& canvas, Box picture, Point hub);
};

void fit_lever(const Canvas& canvas, Box, Point hub) {
  polish(canvas, hub, 17);
  lever_mount(canvas, hub);
}

void fit_knob(const Canvas& canvas, Box, Point hub) { knob_seat(canvas, hub, 12.4); }

void fit_guard(const Canvas& canvas, Box picture, Point) { guarded_switch_off(canvas, picture); }

constexpr Fitting fittings[] = {
    {2080, three_way_hub, fit_lever},
    {2130, toggle_hub, fit_lever},
    {2140, flow_switch_hub, fit_knob},
    {2160, {}, fit_guard},
    {2180, {}, fit_guard},
    {3280, pump_toggle_hub, fit_lever},
    {4260, light_toggle_hub, fit_lever},
};

const Fitting* fitting_of(int id) {
  for (const Fitting& fitting : fittings) {
    if (fitting.id == id) return &fitting;
  }
  return nullptr;
}

Size picture_size(int id) {
  static const std::vector<Bitmap> table = bitmap_table();
  for (const Bitmap& bitmap : table) {
    if (bitmap.id == id) return bitmap.size;
  }
  return {};
}

Box box_of(const Element& e) {
  const Size size = picture_size(e.resource_id);
  return {static_cast<double>(e.position.x), static_cast<double>(e.position.y),
          static_cast<double>(size.width), static_cast<double>(size.height)};
}

}  // namespace

Box part_box(std::string_view gauge_name, int id, int nth) { return box_of(part(gauge_name, id, nth)); }

void fit_parts(const Canvas& canvas, std::string_view gauge_name) {
  for (const Element* e : parts(gauge(gauge_name))) {
    const Fitting* fitting = fitting_of(e->resource_id);
    if (fitting == nullptr) continue;
    const Box box = box_of(*e);
    fitting->fit(canvas, box, Point{box.x, box.y} + fitting->hub);
  }
}

void plate_of(const Canvas& canvas, std::string_view gauge_name) {
  painted_plate(canvas);
  corner_screws(canvas);
  fit_parts(canvas, gauge_name);
}

Point hub_of(std::string_view gauge_name, int id, int nth) {
  const Box box = part_box(gauge_name, id, nth);
  const Fitting* fitting = fitting_of(id);
  return fitting == nullptr ? box.centre() : Point{box.x, box.y} + fitting->hub;
}

void lever_words(const Canvas& canvas, Point hub, const LeverWords& words) {
  const Anchor anchor = words.aside < 0 ? Anchor::right : Anchor::left;
  const double x = hub.x + words.aside;
  engrave(canvas, {x, hub.y - words.reach}, words.up, {}, anchor);
  engrave(canvas, {x, hub.y}, words.centre, {}, anchor);
  engrave(canvas, {x, hub.y + words.reach}, words.down, {}, anchor);
}

}  // namespace artwork
