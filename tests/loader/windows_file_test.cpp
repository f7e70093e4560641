// Libraries for Windows, of both pointer sizes, looked over without Windows.
#include <gtest/gtest.h>

#include <functional>

#include "host/loader/check.h"
#include "host/loader/foreign_records.h"
#include "host/loader/gauge_module.h"
#include "host/loader/pe_file.h"
#include "tests/loader/pe_bytes.h"
#include "tests/rig/refusal.h"
#include "tests/rig/temp_folder.h"

namespace host {
namespace {

using W = WindowsLibrary;

std::string file_with(const ByteList& bytes) {
  static const TempFolder folder;
  return folder.write("W.GAU", text_of(bytes));
}

/// All that is found in a library, without the file's name.
std::vector<std::string> findings(const ByteList& bytes) {
  const std::string file = file_with(bytes);
  std::vector<std::string> all;
  for (const Finding& finding : check_module(file))
    all.push_back(finding.message.substr(file.size() + 2));
  return all;
}

TEST(WindowsFile, SoundLibrariesOfBothPointerSizesPass) {
  for (const std::size_t pointer : {4, 8}) {
    const ByteList bytes = W{.pointer = pointer}.bytes();
    EXPECT_EQ(findings(bytes), std::vector<std::string>{}) << pointer;
    const PeFile file(bytes);
    const ForeignRecords records(file);
    const GaugeHeader& gauge = *records.linkage()->gauges[0];
    EXPECT_STREQ(gauge.name, "Small");
    EXPECT_EQ(gauge.width_mm, 40u);
    const Element& icon = *gauge.element_list[0]->next[0];
    EXPECT_EQ(icon.resource_id, 20);
    EXPECT_EQ(icon.icon.image_count, 2u);
    EXPECT_EQ(icon.icon.switch_scale, 1.0);
    EXPECT_EQ(icon.gauge, &gauge);
    EXPECT_EQ(gauge.mouse_areas[1].width, 4);
    const auto bitmaps = file.bitmaps().value();
    ASSERT_EQ(bitmaps.size(), 4u);
    EXPECT_EQ(bitmaps[0].name, "IDB");
    EXPECT_EQ(bitmaps[3].id, 21u);
  }
}

TEST(WindowsFile, CanBeCheckedButNotRun) {
  const std::string said = refusal<LoadError>([] { GaugeModule module(file_with(W{}.bytes())); });
  EXPECT_TRUE(said.ends_with("which can be checked here, but not run")) << said;
}

TEST(WindowsFile, WhatIsWrongIsNamed) {
  const std::string damaged =
      "gauge 1 (Small): has no background: bitmap 10 is damaged: 7 bits a pixel";
  const std::string element = "gauge 1 (Small), element 1: the element ";
  const std::pair<std::function<void(W&)>, std::string> cases[] = {
      {[](W& w) { w.machine = 22; }, "is a library for another kind of processor (number 22)"},
      {[](W& w) { w.characteristics = 0x102; }, "is a program or an object file, not a shared library"},
      {[](W& w) { w.characteristics |= 1; },
       "is damaged: it has no relocations, and its address may be taken"},
      {[](W& w) { w.linkage_ordinal = 1; }, "Linkage has the ordinal 1, not 2"},
      {[](W& w) { w.surplus_exports = 1; }, "exports number 3 beside Linkage and ImportTable"},
      {[](W& w) { w.has_resources = false; }, "has no bitmap resources and so no bitmaps"},
      {[](W& w) { w.background_bits = 7; }, "bitmap 10 is damaged: 7 bits a pixel"},
      {[](W& w) { w.icon = 0x20000000; }, element + "points to memory that cannot be read"},
      {[](W& w) { w.icon = W::icon_at + 1; }, element + "points to an odd address"},
      {[](W& w) { w.icon = W::exports_at; }, element + "lies in memory that cannot be written"},
      {[](W& w) { w.icon = W::background_at; },
       "gauge 1 (Small), element 1: the chain comes back to an element that it has passed"},
      {[](W& w) { w.draw = W::name_at; },
       "gauge 1 (Small): the draw routine points to something that is not code"},
      {[](W& w) { w.areas = W::size - 16; },
       "gauge 1 (Small), mouse area 0: the entry points to memory that cannot be read"},
      {[](W& w) { w.data_rights = 0x40000040; },
       "ImportTable: the record lies in memory that cannot be written"},
  };
  for (const std::size_t pointer : {4, 8}) {
    for (const auto& [breaks, message] : cases) {
      W library{.pointer = pointer};
      breaks(library);
      const std::vector<std::string> found = findings(library.bytes());
      ASSERT_FALSE(found.empty()) << message;
      EXPECT_EQ(found.front(), message);
    }
  }
}

TEST(WindowsFile, AnyCutIsToldAsSuch) {
  const ByteList whole = W{}.bytes();
  for (const std::size_t size : {2, 60, 0x90, 0x100, 0x2800, 0x4FFF}) {
    ByteList cut = whole;
    cut.resize(size);
    EXPECT_EQ(findings(cut).front(), "is cut short: parts that it names lie past its end") << size;
  }
}

}  // namespace
}  // namespace host
