/// The records of a made module, sound as they stand: one gauge with an element of every kind.
#pragma once

#include <cstring>

#include "interface/panel_interface.h"

namespace host {

inline double give_value(Element* e) { return e->kind == ELEMENT_ICON ? e->icon.source.value : 1; }
inline i32 press(PanelPoint, u32) { return 0; }
inline void nothing() {}
inline void nothing_of(uintptr_t) {}
inline void serve(const GaugeHeader*, u32, uintptr_t) {}

/// In one piece of memory that pointers can point about in. Its pointers lead into itself, so it stays
/// where make() found it.
struct MadeRecords {
  static constexpr int count = 7;
  LinkageRecord linkage;
  ImportTableRecord imports;
  GaugeHeader gauge;
  Element elements[count];  ///< each at the place of its kind, with a bitmap of ten times its number
  Element* lists[count][2];
  FailureEntry failures[3];
  NonlinearityPoint table[4];
  MouseArea areas[8];  ///< a group of two click areas and a tooltip
  char text[8];
  char words[8];

  void make() {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    for (int i = 0; i < count; ++i) {
      elements[i].kind = static_cast<u32>(i);
      elements[i].resource_id = i == ELEMENT_STRING ? -1 : 10 * i;
      elements[i].gauge = &gauge;
      elements[i].next = lists[i];
      if (i > 0) lists[i - 1][0] = &elements[i];
    }
    for (int i = 0; i < 4; ++i) table[i] = {{9 - 3 * i, 3 * i}, 10.0 * i};
    failures[0] = {20, FAILURE_HIDE, 0}, failures[1] = {21, FAILURE_FREEZE, 0};
    std::strcpy(text, "12345"), std::strcpy(words, "Full");
    make_parts();
    make_areas();
    make_module();
  }

 private:
  void make_parts() {
    elements[ELEMENT_ICON].failures = failures;
    elements[ELEMENT_ICON].icon = {{364, 0, 0}, give_value, 1, 2, 1};
    elements[ELEMENT_NEEDLE].needle = {{4, 4}, {100, 0, 0}, nullptr, table, 4, 0, 1};
    elements[ELEMENT_STRING].string = {{30, 10}, {}, give_value, 0, 0, 0, 400, 0, 5, words, text};
    elements[ELEMENT_SLIDER].slider = {{101, 0, 0}, nullptr, 2, {102, 0, 0}, give_value, 1};
    elements[ELEMENT_MOVING_IMAGE].moving_image = {
        60, 0, {{103, 0, 0}, nullptr, 0, 10}, {{104, 0, 0}, nullptr, -5, 5}};
    elements[ELEMENT_SPRITE].sprite = {
        {3, 3}, {{105, 0, 0}, nullptr, 1}, {{106, 0, 0}, nullptr, 1}, {{107, 0, 0}, nullptr, 1}};
  }

  void make_areas() {
    areas[0] = {MOUSE_GROUP, 1, 1, 30, 30, CURSOR_ARROW, 0, 0, 0, 0, {nullptr}, nullptr};
    areas[1] = {MOUSE_CLICK_AREA, 0, 0, 5, 5, CURSOR_INCREASE, 0, MOUSE_LEFT, 0, 0, {press}, nullptr};
    areas[2] = {MOUSE_CLICK_AREA, 5, 0, 5, 5, CURSOR_DECREASE, 0, MOUSE_LEFT, 0, 0, {press}, nullptr};
    areas[3] = {MOUSE_TOOLTIP, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {nullptr}, nullptr};
    areas[3].tooltip = words;
    areas[4] = {MOUSE_GROUP_END, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {nullptr}, nullptr};
    areas[5].kind = MOUSE_END;
  }

  void make_module() {
    gauge.header_version = GAUGE_HEADER_VERSION;
    gauge.name = words;
    gauge.element_list[0] = elements;
    gauge.query = gauge.initialize = gauge.update = gauge.draw = gauge.kill = nothing;
    gauge.install = gauge.generate = nothing_of;
    gauge.width_mm = 40;
    gauge.mouse_areas = areas;
    gauge.service = serve;
    linkage.module_id = LINKAGE_MODULE_ID;
    linkage.version = LINKAGE_VERSION;
    linkage.gauges[0] = &gauge;
    imports.entries[0].identifier = IMPORT_PANEL_SERVICES;
  }
};

}  // namespace host
