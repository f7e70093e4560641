// What parts and controls are called: the file beside a module, and the hints made of it.
#include "host/panel/name_book.h"

#include <gtest/gtest.h>

#include "host/panel/hints.h"

namespace {

using namespace host;

MouseArea entry(u32 kind, i32 x = 0, i32 y = 0, u32 flags = 0, const char* tooltip = nullptr) {
  MouseArea row{};
  row.kind = kind, row.x = x, row.y = y, row.width = row.height = 20;
  row.cursor = CURSOR_HAND, row.mouse_flags = flags, row.tooltip = tooltip;
  return row;
}

// A gauge with two parts and these areas, 20 x 20 each:
//   at 10,10   one for the left button and one for the right     at 60,10   with a text of its own
//   at 110,10  for both buttons     at 160,10  for the right one     at 210,10  to drag
const std::vector<MouseArea> areas = {
    entry(MOUSE_GROUP),
    entry(MOUSE_CLICK_AREA, 10, 10, MOUSE_LEFT),
    entry(MOUSE_CLICK_AREA, 10, 10, MOUSE_RIGHT),
    entry(MOUSE_GROUP, 60, 10),
    entry(MOUSE_TOOLTIP, 0, 0, 0, "Own text"),
    entry(MOUSE_CLICK_AREA, 0, 0, MOUSE_LEFT),
    entry(MOUSE_GROUP_END),
    entry(MOUSE_CLICK_AREA, 110, 10, MOUSE_LEFT | MOUSE_RIGHT),
    entry(MOUSE_CLICK_AREA, 160, 10, MOUSE_RIGHT),
    entry(MOUSE_CLICK_AREA, 210, 10, MOUSE_LEFT | MOUSE_DRAG),
    entry(MOUSE_GROUP_END),
    entry(MOUSE_END),
};

class NoBitmaps final : public BitmapStore {
 public:
  PanelSize size(std::uint32_t) const override { return {0, 0}; }
  bool has(std::uint32_t, int) const override { return false; }
  std::shared_ptr<const Bitmap> find(std::uint32_t, BitmapUse, int) const override { return nullptr; }
  std::vector<int> densities() const override { return {1}; }
};

class NamesFile : public testing::Test {
 protected:
  NamesFile() {
    background.next = chain;
    lamp.next = chain + 2;
    gauge.name = "Panel";
    gauge.element_list[0] = &background;
    gauge.mouse_areas = areas.data();
  }

  NameBook book(const std::string& text) { return parse_names(text, "a.names", {&known, 1}); }

  Element background{}, lamp{}, needle{};
  Element* chain[4] = {&lamp, nullptr, &needle, nullptr};
  GaugeHeader gauge{};
  const GaugeHeader* known = &gauge;
};

TEST_F(NamesFile, LinesAreReadWithCommentsBlanksAndEveryLineEnd) {
  const NameBook read = book(
      "\xEF\xBB\xBF# gauge\tname\tplace\twords\r\n\r\n"
      "Panel\tlamp\telement 1\tBattery lamp\r\n"
      "PANEL\tswitch\tbox 10,10,20,20\tBattery switch\n"
      "Panel\ttest\tbox 10, 10, 20, 20\tLamp test\n"
      "Panel\tlamp\tbox 60,10,20,20\tBattery lamp");
  EXPECT_EQ(read.notes, std::vector<std::string>());
  EXPECT_EQ(read.missing, "");
  const GaugeNames& names = read.of(gauge);
  EXPECT_EQ(names.part("lamp")->index, 1u);
  EXPECT_EQ(names.part("switch"), nullptr);
  EXPECT_EQ(names.area("switch")->index, 0u);
  EXPECT_EQ(names.area("test")->index, 1u) << "areas with one box are named in their order";
  EXPECT_EQ(names.area_words(2), "Battery lamp");
  EXPECT_EQ(names.area_words(3), "");
}

TEST_F(NamesFile, AWrongLineIsToldWithItsNumberAndLeftOut) {
  const std::string fine = "Panel\tlamp\telement 1\tLamp\n";
  const std::string many(65, 'x');
  const std::pair<std::string, std::string> cases[] = {
      {"Panel lamp element 1 Lamp", "expected gauge, name, place and words with tabs between them"},
      {"Pannel\tx\telement 1\tX", "the module has no gauge 'Pannel'"},
      {"Panel\tBig one\telement 1\tX",
       "'Big one' is no name: small letters, digits and underscores, at most 64"},
      {"Panel\t" + many + "\telement 1\tX",
       "'" + many + "' is no name: small letters, digits and underscores, at most 64"},
      {"Panel\tx\telement 1\t\x01\x80",
       "'?"
       "?' are no words: 1 to 80 characters that can be printed"},
      {"Panel\tx\telement\tX", "'element' is no place: element N or box X,Y,WIDTH,HEIGHT"},
      {"Panel\tx\telement 3\tX", "the gauge has no element 3"},
      {"Panel\tx\telement 1e9\tX", "'1e9' is not a whole number"},
      {"Panel\tx\tbox 10,10,20\tX", "needs 4 numbers separated by commas"},
      {"Panel\tx\tbox 10,10,20,21\tX", "the gauge has no other click area with the box '10,10,20,21'"},
      {"Panel\tlamp\telement 2\tX", "a second part lamp"},
      {"Panel\t" + std::string(5000, 'y') + "\telement 1\tX", "'" + std::string(159, 'y') + "..."},
  };
  for (const auto& [line, note] : cases) {
    const NameBook read = book(fine + line + "\nPanel\tneedle\telement 2\tNeedle\n");
    EXPECT_EQ(read.notes, std::vector<std::string>{"a.names:2: " + note});
    EXPECT_EQ(read.of(gauge).parts.size(), 2u) << line << ": the lines around it stay";
  }
}

TEST_F(NamesFile, HintsSayWhatAControlIsAndWhichClickItTakes) {
  const GaugeWords unsaid;
  const NameBook names = book(
      "Panel\tswitch\tbox 10,10,20,20\tSwitch\nPanel\ttest\tbox 10,10,20,20\tLamp test\n"
      "Panel\tlabelled\tbox 60,10,20,20\tNot shown\nPanel\tknob\tbox 110,10,20,20\tKnob\n"
      "Panel\tlight_test\tbox 160,10,20,20\tLight test\n");
  const CockpitGauge panel(gauge, {300, 100}, names.of(gauge), unsaid);
  const std::pair<i32, Hint> cases[] = {
      {15, {"Switch", "Right click: Lamp test"}},
      {65, {"Own text", ""}},
      {115, {"Knob", "Left and right click"}},
      {165, {"Light test", "Right click"}},
      {215, {"", ""}},  // nobody has named it
      {280, {"", ""}},
  };
  for (const auto& [x, expected] : cases) {
    const Hint hint = hint_at(panel, NoBitmaps(), {x, 15});
    EXPECT_EQ(hint.words, expected.words) << x;
    EXPECT_EQ(hint.how, expected.how) << x;
  }
}

}  // namespace
