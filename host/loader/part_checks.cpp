/// What each kind of element carries.
#include <cmath>

#include "host/loader/record_checks.h"

namespace host {
namespace {

constexpr u32 most_images = 1000;
constexpr u32 most_points = 1000;
constexpr u32 longest_text = 1024;
constexpr i32 greatest_box = 16384;
constexpr std::size_t longest_font_name = 63;
constexpr int most_failures = 64;

void check_source(const TokenVariable& source, const Inspector& place) {
  place.zero(source.reserved, "a source's reserved word");
}

void check_axis(const TokenVariable& source, ValueRoutine value, const std::string& axis,
                const Inspector& place) {
  check_source(source, place);
  place.callable_or_null(value, "the " + axis + " value routine");
}

bool check_count(u32 count, u32 most, const std::string& what, const Inspector& place) {
  if (count >= 1 && count <= most) return true;
  place.error(std::to_string(count) + " " + what);
  return false;
}

void check_icon(const IconPart& icon, const Inspector& place) {
  check_source(icon.source, place);
  place.callable_or_null(icon.value, "the value routine");
  check_count(icon.image_count, most_images, "images", place);
}

void check_table(const Element& element, const Inspector& place) {
  const NeedlePart& needle = element.needle;
  if (!check_count(needle.table_length, most_points, "calibration points", place)) return;
  if (!place.readable(needle.table, "the calibration table", needle.table_length)) return;
  for (u32 i = 0; i < needle.table_length; ++i) {
    const NonlinearityPoint& at = needle.table[i];
    const std::string name = "calibration point " + std::to_string(i);
    place.finite(at.value, name);
    if (at.point.x == element.position.x && at.point.y == element.position.y)
      place.warning(name + " is the needle's own position");
    if (i > 0 && at.value < needle.table[i - 1].value)
      place.warning(name + " has a smaller value than the one before");
  }
}

void check_needle(const Element& element, const Inspector& place) {
  const NeedlePart& needle = element.needle;
  check_source(needle.source, place);
  place.callable_or_null(needle.value, "the value routine");
  if (needle.turn > TURN_SHORTER_WAY)
    place.warning("a needle that turns in a way numbered " + std::to_string(needle.turn));
  if (!(needle.rate_limit >= 0 && std::isfinite(needle.rate_limit)))
    place.warning("a needle's speed of " + std::to_string(needle.rate_limit));
  if (needle.table != nullptr) check_table(element, place);
  if (needle.table == nullptr && needle.table_length != 0)
    place.error("calibration points are counted, but there is no table");
}

void check_string(const StringPart& string, const Inspector& place) {
  for (const TokenVariable& source : string.source) check_source(source, place);
  place.callable_or_null(string.value, "the value routine");
  place.text(string.font, longest_font_name, "the font's name");
  const auto sensible = [](i32 side) { return side > 0 && side <= greatest_box; };
  if (!sensible(string.size.width) || !sensible(string.size.height))
    place.error("a text box of " + std::to_string(string.size.width) + " x " +
                std::to_string(string.size.height));
  if (!check_count(string.max_characters, longest_text, "characters of text", place)) return;
  if (!place.readable(string.text, "the text", string.max_characters + 1)) return;
  if (!place.memory().text(string.text, string.max_characters))
    place.error("the text has no end within " + std::to_string(string.max_characters) + " characters");
}

void check_slider(const SliderPart& slider, const Inspector& place) {
  check_axis(slider.x_source, slider.x_value, "x", place);
  check_axis(slider.y_source, slider.y_value, "y", place);
  place.finite(slider.x_scale, "the x scale");
  place.finite(slider.y_scale, "the y scale");
}

void check_moving_image(const MovingImagePart& moving, const Inspector& place) {
  if (moving.mask_resource_id < -1)
    place.error("mask " + std::to_string(moving.mask_resource_id) + " is not a bitmap's number");
  place.zero(moving.reserved, "the moving image's reserved word");
  const auto check = [&](const MovingAxis& axis, const std::string& name) {
    check_axis(axis.source, axis.value, name, place);
    place.finite(axis.minimum, "the " + name + " minimum");
    place.finite(axis.maximum, "the " + name + " maximum");
  };
  check(moving.x, "x");
  check(moving.y, "y");
}

void check_sprite(const SpritePart& sprite, const Inspector& place) {
  const auto check = [&](const SpriteAxis& axis, const std::string& name) {
    check_axis(axis.source, axis.value, name, place);
    place.finite(axis.scale, "the " + name + " scale");
  };
  check(sprite.x, "x");
  check(sprite.y, "y");
  check(sprite.rotation, "rotation");
}

void check_failures(const FailureEntry* table, const Inspector& place) {
  if (table == nullptr) return;
  for (int i = 0; i < most_failures; ++i) {
    if (!place.readable(table + i, "the failure table")) return;
    if (table[i].key == 0) return;
    place.zero(table[i].zero, "a failure entry's third word");
    if (table[i].action < FAILURE_FREEZE || table[i].action > FAILURE_HIDE)
      place.warning("failure action " + std::to_string(table[i].action) + " is not known");
  }
  place.error("the failure table has no end");
}

void check_part(const Element& element, const Inspector& place) {
  switch (element.kind) {
    case ELEMENT_STATIC_IMAGE: return;
    case ELEMENT_NEEDLE: return check_needle(element, place);
    case ELEMENT_STRING: return check_string(element.string, place);
    case ELEMENT_SLIDER: return check_slider(element.slider, place);
    case ELEMENT_ICON: return check_icon(element.icon, place);
    case ELEMENT_MOVING_IMAGE: return check_moving_image(element.moving_image, place);
    case ELEMENT_SPRITE: return check_sprite(element.sprite, place);
  }
  place.error("kind " + std::to_string(element.kind) + " is not an element kind");
}

}  // namespace

void check_element(const Element& element, const GaugeHeader& gauge, const Inspector& place) {
  check_part(element, place);
  check_failures(element.failures, place);
  place.zero(element.reserved, "the reserved word");
  if (element.gauge != &gauge) place.warning("it names another gauge as its own");
  const bool picture = element.kind != ELEMENT_STRING;
  if (picture ? element.resource_id < 0 : element.resource_id != -1)
    place.warning("bitmap " + std::to_string(element.resource_id) + " is not a bitmap's number");
}

}  // namespace host
