#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "host/loader/record_checks.h"
#include "tests/loader/made_records.h"
#include "tests/loader/resource_bytes.h"

namespace host {
namespace {

template <typename Pointer>
Pointer wild(std::uintptr_t address = 4096) {
  return reinterpret_cast<Pointer>(address);
}

/// Tests break one thing about them and look at the findings.
struct Records : MadeRecords {
  Element &needle = elements[ELEMENT_NEEDLE], &string = elements[ELEMENT_STRING],
          &icon = elements[ELEMENT_ICON];

  Records() { make(); }

  std::vector<Finding> findings() const {
    std::vector<Finding> found;
    const MemoryMap memory;
    check_records(linkage, imports, Inspector(memory, found, "T.GAU"));
    return found;
  }
};

using R = Records;

struct Case {
  std::function<void(Records&)> breaks;
  std::string message;
};

void expect_findings(const std::vector<Case>& cases, Finding::Severity severity) {
  for (const Case& c : cases) {
    Records records;
    c.breaks(records);
    const std::vector<Finding> found = records.findings();
    ASSERT_EQ(found.size(), 1u) << c.message << (found.empty() ? "" : " | " + found[0].message);
    EXPECT_EQ(found[0].message, "T.GAU: " + c.message);
    EXPECT_EQ(found[0].severity, severity) << c.message;
  }
}

TEST(RecordChecks, SoundRecordsPass) {
  Records records;
  EXPECT_TRUE(records.findings().empty());
  records.table[1].value = records.table[0].value;  // a scale may jump
  EXPECT_TRUE(records.findings().empty());
}

const std::string unreadable = " points to memory that cannot be read", g = "gauge 1 (Full), ";
const std::string needle = g + "element 1: ", string = g + "element 2: ", icon = g + "element 4: ";

TEST(RecordChecks, UnsafeElementsAreErrors) {
  const std::vector<Case> cases = {
      {[](R& r) { r.icon.kind = 7; }, icon + "kind 7 is not an element kind"},
      {[](R& r) { r.icon.icon.image_count = ~0u; }, icon + "4294967295 images"},
      {[](R& r) { r.icon.icon.value = reinterpret_cast<ValueRoutine>(&r.gauge); },
       icon + "the value routine points to something that is not code"},
      {[](R& r) { r.icon.failures = wild<FailureEntry*>(); }, icon + "the failure table" + unreadable},
      {[](R& r) { r.icon.next = wild<Element**>(); }, icon + "the list of next elements" + unreadable},
      {[](R& r) { r.lists[3][0] = wild<Element*>(4097); },
       icon + "the element points to an odd address"},
      {[](R& r) { r.lists[6][0] = &r.string; },
       g + "element 7: the chain comes back to an element that it has passed"},
      {[](R& r) { r.needle.needle.table = wild<NonlinearityPoint*>(); },
       needle + "the calibration table" + unreadable},
      {[](R& r) { r.needle.needle.table_length = 0; }, needle + "0 calibration points"},
      {[](R& r) { r.needle.needle.table = nullptr; },
       needle + "calibration points are counted, but there is no table"},
      {[](R& r) { r.text[5] = '6'; }, string + "the text has no end within 5 characters"},
      {[](R& r) { r.string.string.text = wild<char*>(); }, string + "the text" + unreadable},
      {[](R& r) { r.string.string.font = "A\tB"; },
       string + "the font's name holds characters that cannot be printed"},
      {[](R& r) { r.string.string.max_characters = 1 << 20; }, string + "1048576 characters of text"},
      {[](R& r) { r.string.string.size.width = 0; }, string + "a text box of 0 x 10"},
      {[](R& r) { r.elements[5].moving_image.mask_resource_id = -2; },
       g + "element 5: mask -2 is not a bitmap's number"},
  };
  expect_findings(cases, Finding::Severity::error);
}

TEST(RecordChecks, UnsafeGaugesAreErrors) {
  const std::vector<Case> cases = {
      {[](R& r) { r.gauge.header_version = 0x321; },
       "gauge 1: header version 0x321 is not known; this host reads 0x320"},
      {[](R& r) { r.gauge.name = nullptr; }, "gauge 1: the name is null"},
      {[](R& r) { r.gauge.element_list[0] = nullptr; }, g + "element 0: the element is null"},
      {[](R& r) { r.gauge.element_list[1] = r.elements; },
       "gauge 1 (Full): the element list has more than one root"},
      {[](R& r) { r.gauge.element_list[0] = r.elements + 1; },
       "gauge 1 (Full): the first element is not a background but of kind 1"},
      {[](R& r) { r.gauge.draw = nullptr; }, "gauge 1 (Full): the draw routine is null"},
      {[](R& r) { r.gauge.service = wild<ServiceRoutine>(); },
       "gauge 1 (Full): the service routine points to something that is not code"},
      {[](R& r) { r.gauge.mouse_areas = nullptr; }, g + "mouse area 0: the entry is null"},
      {[](R& r) { r.areas[1].kind = 5; }, g + "mouse area 1: kind 5 is not a mouse area kind"},
      {[](R& r) { r.areas[1].routine = nullptr; }, g + "mouse area 1: the mouse routine is null"},
      {[](R& r) { r.areas[3].tooltip = wild<char*>(); }, g + "mouse area 3: the tooltip" + unreadable},
      {[](R& r) { r.areas[4].kind = MOUSE_END; }, g + "mouse area 4: the table ends inside a group"},
      {[](R& r) { r.areas[3].kind = MOUSE_GROUP_END; },
       g + "mouse area 4: it closes a group that is not open"},
      {[](R& r) { r.linkage.module_id = 1; }, "Linkage: the module identifier is 0x1, not 0x13"},
      {[](R& r) { r.linkage.version = 0x901; },
       "Linkage: version 0x901 is not known; this host reads 0x900"},
      {[](R& r) { r.linkage.gauges[0] = nullptr; }, "Linkage: it lists no gauge"},
      {[](R& r) { r.linkage.gauges[1] = wild<GaugeHeader*>(); },
       "gauge 2: the header points to memory that cannot be read"},
      {[](R& r) { r.linkage.gauges[LINKAGE_GAUGE_COUNT] = &r.gauge; },
       "Linkage: the gauge table has no end"},
      {[](R& r) { r.imports.entries[0].identifier = 1; },
       "ImportTable: the first entry has identifier 0x1, not 0xF"},
      {[](R& r) { r.imports.entries[1].identifier = 1; }, "ImportTable: the table has no end"},
  };
  expect_findings(cases, Finding::Severity::error);
}

TEST(RecordChecks, OdditiesAreWarnings) {
  const std::vector<Case> cases = {
      {[](R& r) { r.icon.gauge = nullptr; }, icon + "it names another gauge as its own"},
      {[](R& r) { r.icon.reserved = 3; }, icon + "the reserved word is 0x3, not 0"},
      {[](R& r) { r.failures[0].action = 9; }, icon + "failure action 9 is not known"},
      {[](R& r) { r.table[1].value = -1; },
       needle + "calibration point 1 has a smaller value than the one before"},
      {[](R& r) {
         r.table[1].point = {0, 0};
       },
       needle + "calibration point 1 is the needle's own position"},
      {[](R& r) { r.elements[6].sprite.x.scale = std::nan(""); },
       g + "element 6: the x scale is not a number"},
      {[](R& r) { r.string.resource_id = 5; }, string + "bitmap 5 is not a bitmap's number"},
      {[](R& r) { r.areas[1].mouse_flags = 0; }, g + "mouse area 1: no click reaches it"},
      {[](R& r) { r.areas[1].cursor = 77; }, g + "mouse area 1: cursor 77 is not known"},
      {[](R& r) { r.linkage.gauges[1] = &r.gauge; },
       "gauge 2 (Full): an earlier gauge has the same name"},
  };
  expect_findings(cases, Finding::Severity::warning);
}

/// What is found in a gauge with bitmaps of 9 x 9 pixels on a background of 32 x 32.
std::vector<std::string> artwork_findings(const Records& records) {
  std::vector<NumberedDib> dibs;
  for (const std::uint32_t id : {0, 10, 30, 40, 50, 60}) {
    const int side = id == 0 ? 32 : 9;
    dibs.push_back({id, plain_dib(side, side, 1)});
  }
  const ByteList section = section_bytes(dibs);
  const ModuleBitmaps bitmaps(section, "none.GAU");
  std::vector<Finding> found;
  const MemoryMap memory;
  check_artwork(records.gauge, bitmaps, Inspector(memory, found, "T.GAU"));
  std::vector<std::string> messages;
  for (const Finding& finding : found) messages.push_back(finding.message);
  return messages;
}

TEST(RecordChecks, EveryImageIsThereAndEveryBoxLiesInTheBackground) {
  Records records;
  records.elements[5].moving_image.mask_resource_id = 51;
  EXPECT_EQ(artwork_findings(records),
            (std::vector<std::string>{"T.GAU, element 4: there is no bitmap 41",
                                      "T.GAU, element 5: there is no mask bitmap 51"}));
  for (const auto& [x, inside] : {std::pair{26, true}, {27, false}, {-2, false}, {INT32_MAX, false}}) {
    records.areas[1].x = x;
    EXPECT_EQ(artwork_findings(records).size(), inside ? 2u : 3u) << x;
  }
}

}  // namespace
}  // namespace host
