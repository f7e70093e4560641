#include "resources/kit/records.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "resources/names/gauge_names.h"

extern "C" const LinkageRecord Linkage;

namespace artwork {
namespace names = tarnvale::names;
namespace {

double turned_to(const Element& needle, const NonlinearityPoint& entry) {
  const double degrees =
      std::atan2(entry.point.y - needle.position.y, entry.point.x - needle.position.x) * 180 /
      3.14159265358979;
  return degrees < 0 ? degrees + 360 : degrees;
}

Box box_of(const names::NamedArea& named) {
  return {static_cast<double>(named.corner.x), static_cast<double>(named.corner.y),
          static_cast<double>(named.area->width), static_cast<double>(named.area->height)};
}

/// From one entry of a needle's table to the next, as its record says.
double sweep_between(const Element& needle, const NonlinearityPoint& from,
                     const NonlinearityPoint& to) {
  const double sweep = turned_to(needle, to) - turned_to(needle, from);
  if (needle.needle.turn == TURN_SHORTER_WAY) return std::remainder(sweep, 360.0);
  return sweep < 0 ? sweep + 360 : sweep;
}

}  // namespace

std::vector<const GaugeHeader*> gauges() {
  std::vector<const GaugeHeader*> all;
  for (const GaugeHeader* each : Linkage.gauges) {
    if (each != nullptr) all.push_back(each);
  }
  return all;
}

const GaugeHeader& gauge(std::string_view name) {
  for (const GaugeHeader* each : gauges()) {
    if (name == each->name) return *each;
  }
  wrong("the module has no gauge " + std::string(name));
}

void wrong(const std::string& what) {
  std::fprintf(stderr, "artwork: %s\n", what.c_str());
  std::exit(1);
}

std::vector<const Element*> parts(const GaugeHeader& of) {
  std::vector<const Element*> all;
  for (const names::NamedPart& each : names::parts(of)) all.push_back(each.element);
  return all;
}

const Element* find_part(const GaugeHeader& of, std::string_view name) {
  for (const names::NamedPart& each : names::parts(of)) {
    if (each.name == name) return each.element;
  }
  return nullptr;
}

const Element& part(const GaugeHeader& of, std::string_view name) {
  if (const Element* found = find_part(of, name)) return *found;
  wrong(std::string(of.name) + " has no part " + std::string(name));
}

Box click_box(const GaugeHeader& of, std::string_view name) {
  for (const names::NamedArea& each : names::areas(of)) {
    if (each.name == name) return box_of(each);
  }
  wrong(std::string(of.name) + " has no part or click area " + std::string(name));
}

std::vector<Box> click_boxes(const GaugeHeader& of) {
  std::vector<Box> boxes;
  for (const names::NamedArea& each : names::areas(of)) boxes.push_back(box_of(each));
  return boxes;
}

double needle_angle(const Element& needle, double value) {
  const NonlinearityPoint* table = needle.needle.table;
  const u32 length = needle.needle.table_length;
  if (table == nullptr || length == 0) return value;
  double angle = turned_to(needle, table[0]);
  for (u32 i = 0; i + 1 < length; ++i) {
    const double from = table[i].value, to = table[i + 1].value;
    const double sweep = sweep_between(needle, table[i], table[i + 1]);
    const double share = to == from ? 0 : (value - from) / (to - from);
    if (share <= 0) return angle;
    if (share <= 1 || (i + 2 == length)) return angle + sweep * std::min(share, 1.0);
    angle += sweep;
  }
  return angle;
}

}  // namespace artwork
