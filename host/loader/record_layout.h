/// How the records of the interface lie in memory, for either size of pointers: a letter a field, each
/// at a multiple of its own size.
#pragma once

#include <cstddef>

#include "interface/panel_interface.h"

namespace host::layout {

/// i: a number of four bytes, d: a double, p: a pointer.
using Fields = const char*;

constexpr std::size_t bytes_of(char field, std::size_t pointer) {
  return field == 'i' ? 4 : field == 'd' ? 8 : pointer;
}

constexpr std::size_t aligned(std::size_t at, std::size_t to) { return (at + to - 1) / to * to; }

/// Where the fields end that begin at `at`, a multiple of eight.
constexpr std::size_t end_of(Fields fields, std::size_t pointer, std::size_t at = 0) {
  for (; *fields != 0; ++fields)
    at = aligned(at, bytes_of(*fields, pointer)) + bytes_of(*fields, pointer);
  return at;
}

#define SOURCE "iid"
inline constexpr Fields element =
    "ii"
    "ii"
    "p"
    "p"
    "p"
    "ii";  // its part follows
inline constexpr Fields no_part = "";
inline constexpr Fields needle = "ii" SOURCE
                                 "p"
                                 "p"
                                 "ii"
                                 "d";
inline constexpr Fields string = "ii" SOURCE SOURCE
                                 "p"
                                 "iiii"
                                 "ii"
                                 "p"
                                 "p";
inline constexpr Fields slider = SOURCE
    "p"
    "d" SOURCE
    "p"
    "d";
inline constexpr Fields icon = SOURCE
    "p"
    "ii"
    "d";
inline constexpr Fields moving_image = "ii" SOURCE
                                       "p"
                                       "dd" SOURCE
                                       "p"
                                       "dd";
inline constexpr Fields sprite = "ii" SOURCE
                                 "p"
                                 "d" SOURCE
                                 "p"
                                 "d" SOURCE
                                 "p"
                                 "d";
inline constexpr Fields mouse_area =
    "iiiii"
    "iiiii"
    "p"
    "p";
inline constexpr Fields gauge_header =
    "ii"
    "p"
    "pp"
    "ppppppp"
    "ii"
    "p"
    "p"
    "ii";
inline constexpr Fields import_entry = "ip";
inline constexpr Fields linkage =
    "ii"
    "pp"
    "iiii";  // the gauges follow
#undef SOURCE

/// By kind.
inline constexpr Fields parts[] = {no_part, needle, string, slider, icon, moving_image, sprite};

/// The part of an element stands at a multiple of eight; the largest part makes the element's size.
constexpr std::size_t part_offset(std::size_t pointer) { return aligned(end_of(element, pointer), 8); }
constexpr std::size_t element_size(std::size_t pointer) {
  return part_offset(pointer) + end_of(sprite, pointer);
}

inline constexpr std::size_t own = sizeof(void*);
static_assert(part_offset(own) == offsetof(Element, icon));
static_assert(element_size(own) == sizeof(Element) && element_size(4) == 144);
static_assert(end_of(needle, own) == sizeof(NeedlePart));
static_assert(end_of(string, own) == offsetof(StringPart, text) + sizeof(char*));
static_assert(end_of(slider, own) == sizeof(SliderPart));
static_assert(end_of(icon, own) == sizeof(IconPart));
static_assert(end_of(moving_image, own) == sizeof(MovingImagePart));
static_assert(end_of(sprite, own) == sizeof(SpritePart));
static_assert(end_of(mouse_area, own) == sizeof(MouseArea) && end_of(mouse_area, 4) == 48);
static_assert(end_of(gauge_header, own) == sizeof(GaugeHeader));
static_assert(end_of(gauge_header, 4) == 72);
static_assert(end_of(import_entry, own) == sizeof(ImportEntry));
static_assert(end_of(linkage, own) == offsetof(LinkageRecord, gauges));

}  // namespace host::layout
