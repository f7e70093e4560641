/// What holds for every gauge of the module: one test a property.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "module/catalogue.h"
#include "module/host.h"
#include "tests/rig/rig.h"

extern "C" const LinkageRecord Linkage;

namespace {

using namespace tarnvale;

std::vector<const GaugeHeader*> all_gauges() {
  return {Linkage.gauges, Linkage.gauges + LINKAGE_GAUGE_COUNT};
}

std::vector<Element*> chain_of(const GaugeHeader& gauge) {
  std::vector<Element*> chain;
  for (Element* e = gauge.element_list[0]; e; e = e->next ? e->next[0] : nullptr) chain.push_back(e);
  return chain;
}

TEST(Registry, LinkageAndImportTableHoldWhatAHostLooksFor) {
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

TEST(Registry, HeadersAreCompleteAndNamedOnce) {
  std::set<std::string> names;
  for (const GaugeHeader* gauge : all_gauges()) {
    ASSERT_NE(gauge, nullptr);
    EXPECT_TRUE(names.insert(gauge->name).second) << gauge->name << " stands twice";
    EXPECT_EQ(gauge->header_version, 0x320u) << gauge->name;
    EXPECT_GT(gauge->width_mm, 0u) << gauge->name;
    EXPECT_EQ(gauge->element_list[1], nullptr) << gauge->name;
    EXPECT_NE(gauge->mouse_areas, nullptr) << gauge->name;
    EXPECT_EQ(gauge->user_data + gauge->reserved + gauge->reserved2 + gauge->reserved3, 0u);
  }
  EXPECT_EQ(std::string(Linkage.gauges[0]->name), "Msnd") << "the generic routines build on it";
}

TEST(Registry, ChainsRunFromTheBackgroundAndBelongToTheirGauge) {
  for (const GaugeHeader* gauge : all_gauges()) {
    const std::vector<Element*> chain = chain_of(*gauge);
    for (const Element* e : chain) {
      const bool root = e == chain.front();
      EXPECT_EQ(e->gauge, gauge) << gauge->name;
      EXPECT_EQ(e->kind == ELEMENT_STATIC_IMAGE, root) << gauge->name;
      EXPECT_EQ(e->image_flags == 0x1u, root) << gauge->name;
      if (e->next) {
        EXPECT_EQ(e->next[1], nullptr) << gauge->name << ": one child each";
      }
    }
  }
}

/// Gauges without a service routine when the module is complete.
const std::set<std::string> no_service{"Ovhtoggle", "Checktg", "Fopselect", "Pedtg",
                                       "Thrtg",     "Intro",   "Hvsnd"};

TEST(Registry, LitCopiesRepeatTheFirstSetAndFollowThePanelLights) {
  rig::Host host;
  for (const GaugeHeader* header : all_gauges()) {
    const std::vector<Element*> chain = chain_of(*header);
    if (header->service == nullptr || chain.size() < 3 || std::strcmp(header->name, "Msnd") == 0) {
      continue;
    }
    ASSERT_EQ(chain.size() % 2, 1u) << header->name;
    const std::size_t half = (chain.size() - 1) / 2;
    for (std::size_t i = 1; i <= half; ++i) {
      const Element &day = *chain[i], &lit = *chain[i + half];
      EXPECT_EQ(day.kind, lit.kind) << header->name << " element " << i;
      EXPECT_EQ(day.resource_id, lit.resource_id) << header->name << " element " << i;
      EXPECT_EQ(std::memcmp(&day.icon, &lit.icon, sizeof(Element) - offsetof(Element, icon)), 0)
          << header->name << " element " << i;
      EXPECT_EQ(lit.image_flags & 0x7u, 0x7u) << header->name << " element " << i;
    }
    const u32 light = std::strcmp(header->name, "Apalt") == 0 ? 620 : token::panel_lights;
    rig::Gauge gauge(header->name);
    for (const f64 value : {1.0, 0.0, 0.5, -1.0, -0.0, std::numeric_limits<f64>::quiet_NaN()}) {
      host.tokens[light] = value;
      gauge.service(SERVICE_TICK);
      const bool hidden = (chain[1 + half]->image_flags & 0x2000000u) != 0;
      EXPECT_EQ(hidden, !(value != 0.0 && value == value)) << header->name << " at " << value;
      EXPECT_EQ(chain[1]->image_flags & 0x2000000u, 0u) << header->name;
    }
  }
}

TEST(Registry, MouseTablesNestAndEveryClickAreaHasARoutine) {
  for (const GaugeHeader* gauge : all_gauges()) {
    int depth = 0;
    EXPECT_EQ(gauge->mouse_areas->kind, u32(MOUSE_GROUP)) << gauge->name;
    for (const MouseArea* area = gauge->mouse_areas; area->kind != MOUSE_END; ++area) {
      depth += area->kind == MOUSE_GROUP;
      depth -= area->kind == MOUSE_GROUP_END;
      EXPECT_GE(depth, area->kind == MOUSE_GROUP_END ? 0 : 1) << gauge->name;
      EXPECT_EQ(area->event_id + area->reserved, 0u) << gauge->name;
      if (area->kind == MOUSE_CLICK_AREA) {
        EXPECT_NE(area->routine, nullptr) << gauge->name;
        EXPECT_GT(area->width * area->height, 0) << gauge->name;
      }
    }
    EXPECT_EQ(depth, 0) << gauge->name;
  }
}

const Element* element_named = nullptr;
uintptr_t argument_named = 0;
int calls = 0;
void note(const Element* root) { element_named = root, ++calls; }
void note_argument(const Element* root, uintptr_t argument) {
  note(root);
  argument_named = argument;
}

TEST(Registry, GenericRoutinesPassTheFirstGaugeWhicheverWasNamed) {
  const PanelServices services{note, note_argument, note,    note,    note_argument, note,
                               note, nullptr,       nullptr, nullptr, nullptr,       nullptr};
  ImportTable.entries[0].pointer = &services;
  const Element* first = Linkage.gauges[0]->element_list[0];
  for (const GaugeHeader* gauge : all_gauges()) {
    calls = 0;
    for (const HeaderRoutine routine :
         {gauge->query, gauge->initialize, gauge->update, gauge->draw, gauge->kill}) {
      element_named = nullptr;
      routine();
      EXPECT_EQ(element_named, first) << gauge->name;
    }
    gauge->install(7);
    EXPECT_EQ(argument_named, 7u) << gauge->name;
    gauge->generate(9);
    EXPECT_EQ(argument_named, 9u) << gauge->name;
    EXPECT_EQ(calls, 7) << gauge->name;
  }
}

TEST(Registry, AnyTokenValueAndAnyClickAreHarmless) {
  rig::Host host;
  std::mt19937_64 bits(1);
  const f64 extremes[] = {0.0,
                          -0.0,
                          1e308,
                          -1e308,
                          5e-324,
                          std::numeric_limits<f64>::infinity(),
                          -std::numeric_limits<f64>::infinity(),
                          std::numeric_limits<f64>::quiet_NaN(),
                          4294967296.0,
                          -2147483649.0};
  for (int round = 0; round < 60; ++round) {
    for (u32 token = 1; token < 1000; ++token) {
      const bool extreme = bits() % 4 == 0;
      host.tokens[token] =
          extreme ? extremes[bits() % std::size(extremes)] : std::bit_cast<f64>(bits());
    }
    for (const GaugeHeader* header : all_gauges()) {
      if (std::strcmp(header->name, "Msnd") == 0) continue;  // it would ask for a sound device
      rig::Gauge gauge(header->name);
      gauge.service(SERVICE_START);
      gauge.service(SERVICE_SET_UP);
      gauge.frame(2);
      for (const MouseArea* area = header->mouse_areas; area->kind != MOUSE_END; ++area) {
        if (area->kind != MOUSE_CLICK_AREA) continue;
        const PanelPoint point{i32(bits() % 100) - 20, i32(bits() % 100) - 20};
        area->routine(point, bits() % 2 ? MOUSE_LEFT : MOUSE_RIGHT);
      }
      gauge.frame();
      gauge.service(SERVICE_END);
    }
  }
}

TEST(Registry, RunningTotalsBesideTheCompleteCockpits) {
  constexpr std::array<const char*, 7> kinds{"static images", "needles",       "strings", "sliders",
                                             "icons",         "moving images", "sprites"};
  constexpr std::array<int, 7> complete{120, 186, 44, 22, 839, 156, 12};
  std::array<int, 7> now{};
  int elements = 0, clicks = 0, tooltips = 0, groups = 0;
  for (const GaugeHeader* gauge : all_gauges()) {
    for (const Element* e : chain_of(*gauge)) ++elements, ++now.at(e->kind);
    for (const MouseArea* area = gauge->mouse_areas; area->kind != MOUSE_END; ++area) {
      clicks += area->kind == MOUSE_CLICK_AREA;
      tooltips += area->kind == MOUSE_TOOLTIP;
      groups += area->kind == MOUSE_GROUP;
    }
  }
  const auto compare = [](const char* what, int have, int want) {
    std::printf("  %-14s %4d of %4d\n", what, have, want);
    EXPECT_LE(have, want) << what;
  };
  compare("elements", elements, 1379);
  for (std::size_t i = 0; i < kinds.size(); ++i) compare(kinds[i], now[i], complete[i]);
  compare("click areas", clicks, 355);
  compare("tooltips", tooltips, 36);
  compare("groups", groups, 156);
  EXPECT_EQ(now[0], 120) << "every gauge has its background";
}

/// Gauges that show their plate alone so far. The list shrinks until it is gone.
const std::set<std::string> not_built{
#include "tests/module/not_built.inc"
};

TEST(Registry, GaugesStillToBuildAreKnown) {
  for (const GaugeHeader* gauge : all_gauges()) {
    const bool plain = chain_of(*gauge).size() == 1 && gauge->mouse_areas[1].kind == MOUSE_GROUP_END &&
                       gauge->service == nullptr;
    EXPECT_EQ(plain, not_built.contains(gauge->name)) << gauge->name;
    if (!plain) {
      EXPECT_EQ(gauge->service == nullptr, no_service.contains(gauge->name)) << gauge->name;
    }
  }
}

}  // namespace
