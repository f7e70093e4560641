#include "resources/tool/keys.h"

#include <cstdio>
#include <fstream>
#include <iterator>

#include "resources/kit/legend.h"
#include "resources/kit/records.h"
#include "resources/names/gauge_names.h"
#include "resources/tool/digest.h"

namespace artwork {
namespace {

namespace names = tarnvale::names;

std::uint64_t file_digest(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) wrong("cannot read " + path.string());
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  Digest digest;
  digest.add(std::string_view(bytes));
  return digest.value();
}

/// "grdpsi" of "…/air/grdpsi.cpp.o".
std::string unit_file(const std::filesystem::path& object) { return object.stem().stem().string(); }

std::map<std::string, std::uint64_t> object_digests(const std::filesystem::path& list) {
  std::map<std::string, std::uint64_t> digests;
  std::ifstream file(list);
  for (std::string path; std::getline(file, path);) {
    if (!path.empty()) digests[unit_file(path)] = file_digest(path);
  }
  return digests;
}

/// Another font, or another version of what renders it, makes other words.
void add_print(Digest& digest) {
  const Canvas canvas({400, 24}, 2, 0);
  print(canvas, {200, 6}, "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789", {});
  print(canvas, {200, 17}, ".,-+%/\u00b0\u00d7", {});
  const Pixels pixels = canvas.pixels();
  for (int y = 0; y < pixels.height; ++y) {
    digest.add(&pixels.at(0, y), sizeof(std::uint32_t) * static_cast<std::size_t>(pixels.width));
  }
}

void add_point(Digest& digest, PanelPoint point) {
  digest.add(point.x);
  digest.add(point.y);
}

void add_needle(Digest& digest, const NeedlePart& needle) {
  add_point(digest, needle.center);
  digest.add(needle.turn);
  for (u32 i = 0; needle.table != nullptr && i < needle.table_length; ++i) {
    add_point(digest, needle.table[i].point);
    digest.add(needle.table[i].value);
  }
}

void add_strip(Digest& digest, const MovingImagePart& strip) {
  digest.add(strip.mask_resource_id);
  for (const MovingAxis* axis : {&strip.x, &strip.y}) {
    digest.add(axis->minimum);
    digest.add(axis->maximum);
  }
}

void add_element(Digest& digest, const Element& element) {
  digest.add(element.kind);
  digest.add(element.resource_id);
  add_point(digest, element.position);
  if (element.kind == ELEMENT_ICON) digest.add(element.icon.image_count);
  if (element.kind == ELEMENT_NEEDLE) add_needle(digest, element.needle);
  if (element.kind == ELEMENT_MOVING_IMAGE) add_strip(digest, element.moving_image);
  if (element.kind == ELEMENT_SPRITE) add_point(digest, element.sprite.texture_center);
  if (element.kind == ELEMENT_STRING) {
    digest.add(element.string.size.width);
    digest.add(element.string.size.height);
  }
}

void add_area(Digest& digest, const names::NamedArea& named) {
  digest.add(std::string_view(named.name));
  add_point(digest, named.corner);
  digest.add(named.area->width);
  digest.add(named.area->height);
}

}  // namespace

Keys::Keys(const DrawingCode& code) {
  const std::map<std::string, std::uint64_t> objects = object_digests(code.objects);
  Digest base;
  base.add(file_digest(code.kit));
  base.add(std::string_view(cairo_version_string()));
  add_print(base);
  for (const NamedUnit& named : units()) {
    const auto object = objects.find(std::string(named.file));
    if (object == objects.end()) wrong("no object of unit " + std::string(named.file));
    units_[&named.unit] = object->second;
    if (named.unit.gauge.empty()) base.add(object->second);
  }
  base_ = base.value();
}

std::uint64_t Keys::unit_digest(const Unit* unit) const { return units_.at(unit); }

std::uint64_t Keys::gauge_digest(const GaugeHeader& gauge) const {
  Digest digest;
  digest.add(gauge.width_mm);
  for (const names::NamedPart& each : names::parts(gauge)) {
    digest.add(std::string_view(each.name));
    add_element(digest, *each.element);
    const Bitmap* bitmap = find_bitmap(each.element->resource_id);
    if (bitmap == nullptr) continue;
    digest.add(bitmap->size.width);
    digest.add(bitmap->size.height);
    digest.add(unit_digest(bitmap->unit));
  }
  for (const names::NamedArea& each : names::areas(gauge)) add_area(digest, each);
  return digest.value();
}

std::string Keys::key(const Bitmap& bitmap, int density) const {
  Digest digest;
  digest.add(base_);
  digest.add(bitmap.art->of.name);
  for (const int number :
       {bitmap.id, bitmap.image, bitmap.size.width, bitmap.size.height, bitmap.bits(), density}) {
    digest.add(number);
  }
  digest.add(unit_digest(bitmap.unit));
  const GaugeHeader* gauge = gauge_of(*bitmap.unit);
  if (gauge != nullptr) digest.add(gauge_digest(*gauge));
  char text[32];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(digest.value()));
  return text;
}

}  // namespace artwork
