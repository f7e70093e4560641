/// The records of the module's gauges, as every host relies on them.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <map>
#include <set>
#include <span>
#include <string>

#include "module/host.h"
#include "tests/rig/rig.h"

extern "C" const LinkageRecord Linkage;

namespace {

using namespace tarnvale;

std::span<const GaugeHeader* const> all_gauges() { return {Linkage.gauges, LINKAGE_GAUGE_COUNT}; }

TEST(Records, LinkageAndImportTableHoldWhatAHostLooksFor) {
  EXPECT_EQ(Linkage.module_id, 0x13u);
  EXPECT_EQ(Linkage.version, 0x900u);
  EXPECT_EQ(Linkage.flags + Linkage.priority + Linkage.reserved + Linkage.reserved2, 0u);
  EXPECT_EQ(Linkage.gauges[LINKAGE_GAUGE_COUNT], nullptr);
  Linkage.init();
  Linkage.deinit();
  EXPECT_EQ(ImportTable.entries[0].identifier, 0x0Fu);
  EXPECT_EQ(ImportTable.entries[1].identifier, 0u);
  EXPECT_EQ(ImportTable.entries[1].pointer, nullptr);
}

/// Gauges that do nothing by day or by night but show and answer.
const std::set<std::string> no_service{"Ovhtoggle", "Checktg", "Fopselect", "Pedtg",
                                       "Thrtg",     "Intro",   "Hvsnd"};

TEST(Records, AreAsManyAsTheWholeCockpitHas) {
  std::map<u32, int> elements, areas;
  for (const GaugeHeader* gauge : all_gauges()) {
    for (const Element* e : rig::chain_of(*gauge)) ++elements[e->kind];
    for (const MouseArea* a = gauge->mouse_areas; a->kind != MOUSE_END; ++a) ++areas[a->kind];
  }
  const std::map<u32, int> expected_elements{{ELEMENT_STATIC_IMAGE, 120}, {ELEMENT_NEEDLE, 186},
                                             {ELEMENT_STRING, 44},        {ELEMENT_SLIDER, 22},
                                             {ELEMENT_ICON, 839},         {ELEMENT_MOVING_IMAGE, 156},
                                             {ELEMENT_SPRITE, 12}};
  EXPECT_EQ(elements, expected_elements);
  EXPECT_EQ(areas[MOUSE_CLICK_AREA], 355);
  EXPECT_EQ(areas[MOUSE_TOOLTIP], 36);
  EXPECT_EQ(areas[MOUSE_GROUP], 156);
}

TEST(Records, HeadersAndChainsBelongTogether) {
  for (const GaugeHeader* gauge : all_gauges()) {
    SCOPED_TRACE(gauge->name);
    EXPECT_EQ(gauge->header_version, 0x320u);
    EXPECT_EQ(gauge->element_list[1], nullptr);
    EXPECT_EQ(gauge->user_data + gauge->reserved + gauge->reserved2 + gauge->reserved3, 0u);
    const std::vector<Element*> chain = rig::chain_of(*gauge);
    for (const Element* e : chain) {
      const bool root = e == chain.front();
      EXPECT_EQ(e->gauge, gauge);
      EXPECT_EQ(e->kind == ELEMENT_STATIC_IMAGE, root);
      // The altimeter's alert draws nothing: its picture lies under the lamps.
      const bool opaque = e->resource_id == 11480 && e->icon.image_count == 1;
      if (!opaque) {
        EXPECT_EQ(e->image_flags == 0x1u, root);
      }
      if (e->next) {
        EXPECT_EQ(e->next[1], nullptr) << "one child each";
      }
    }
  }
}

TEST(Records, LitCopiesShowTheSameAndFollowThePanelLights) {
  const std::set<std::pair<std::string, std::string>> dark_by_night{{"Adi", "slip_ball_tube"},
                                                                    {"Apalt", "power_flag"},
                                                                    {"Altimeter", "altitude_alert"},
                                                                    {"Pullup", "unlit_face"},
                                                                    {"Stall", "unlit_face"}};
  rig::Host host;
  for (rig::Gauge& gauge : rig::built_gauges()) {
    const std::string name = gauge.header().name;
    const std::vector<Element*> chain = rig::chain_of(gauge.header());
    if (no_service.contains(name)) continue;
    const std::size_t half = gauge.parts().size();
    ASSERT_EQ(chain.size(), 1 + 2 * half) << name;
    const u32 light = name == "Apalt" ? token::recognition_lights : token::panel_lights;
    for (const f64 night : {0.0, 1.0}) {  // so that the sources of both sets have seen the same
      host.tokens[light] = night;
      gauge.frame();
    }
    for (const rig::NamedPart& part : gauge.parts()) {
      SCOPED_TRACE(name + ' ' + part.name);
      const Element &day = *part.element, &lit = *chain[part.index + half];
      Element alike = lit;
      if (day.kind == ELEMENT_SPRITE) alike.sprite.texture_center = day.sprite.texture_center;
      constexpr std::size_t from = offsetof(Element, icon);
      EXPECT_EQ(std::memcmp(&day.icon, &alike.icon, sizeof(Element) - from), 0);
      EXPECT_EQ(day.kind, lit.kind);
      EXPECT_EQ(day.resource_id, lit.resource_id);
      // A display's glass never shines, but for the transponder's.
      const bool glass = part.name.ends_with("display_power") && name != "Transponder";
      EXPECT_EQ((lit.image_flags & 0x7u) != 0x7u, glass || dark_by_night.contains({name, part.name}));
      EXPECT_LE(std::abs(day.position.x - lit.position.x), 8);
      EXPECT_LE(std::abs(day.position.y - lit.position.y), 8);
    }
    for (const f64 value : {1.0, 0.0, 0.5, -1.0, -0.0, std::numeric_limits<f64>::quiet_NaN()}) {
      host.tokens[light] = value;
      gauge.service(SERVICE_TICK);
      const bool hidden = (chain[1 + half]->image_flags & IMAGE_HIDE_CHAIN) != 0;
      EXPECT_EQ(hidden, !(value != 0.0 && value == value)) << name << " at " << value;
      EXPECT_EQ(chain[1]->image_flags & IMAGE_HIDE_CHAIN, 0u) << name;
    }
  }
}

TEST(Records, MouseTablesNestAndEveryClickAreaHasARoutine) {
  for (const GaugeHeader* gauge : all_gauges()) {
    SCOPED_TRACE(gauge->name);
    int depth = 0;
    EXPECT_EQ(gauge->mouse_areas->kind, u32(MOUSE_GROUP));
    for (const MouseArea* area = gauge->mouse_areas; area->kind != MOUSE_END; ++area) {
      depth += area->kind == MOUSE_GROUP;
      depth -= area->kind == MOUSE_GROUP_END;
      EXPECT_GE(depth, area->kind == MOUSE_GROUP_END ? 0 : 1);
      EXPECT_EQ(area->event_id + area->reserved, 0u);
      if (area->kind == MOUSE_CLICK_AREA) {
        EXPECT_NE(area->routine, nullptr);
      }
    }
    EXPECT_EQ(depth, 0);
  }
}

const Element* element_named = nullptr;
uintptr_t argument_named = 0;
void note(const Element* root) { element_named = root; }
void note_argument(const Element* root, uintptr_t argument) { note(root), argument_named = argument; }

TEST(Records, GenericRoutinesPassTheFirstGaugeWhicheverWasNamed) {
  const PanelServices services{note, note_argument, note,    note,    note_argument, note,
                               note, nullptr,       nullptr, nullptr, nullptr,       nullptr};
  ImportTable.entries[0].pointer = &services;
  const auto named = [](auto routine, auto... argument) {
    element_named = nullptr;
    routine(argument...);
    return element_named;
  };
  const Element* first = Linkage.gauges[0]->element_list[0];
  for (const GaugeHeader* gauge : all_gauges()) {
    for (const HeaderRoutine routine :
         {gauge->query, gauge->initialize, gauge->update, gauge->draw, gauge->kill}) {
      EXPECT_EQ(named(routine), first) << gauge->name;
    }
    EXPECT_EQ(named(gauge->install, 7), first) << gauge->name;
    EXPECT_EQ(argument_named, 7u) << gauge->name;
    EXPECT_EQ(named(gauge->generate, 9), first) << gauge->name;
    EXPECT_EQ(argument_named, 9u) << gauge->name;
  }
}

}  // namespace
