// The kneeboard's lists, and clicks on the pages of the real cockpit.
#include <gtest/gtest.h>

#include "host/pages/pages.h"
#include "tests/rig/loaded_module.h"
#include "tests/rig/refusal.h"
#include "tests/rig/rows.h"

namespace {

using namespace host;

TEST(Checklists, AreReadWithTheirConditions) {
  const auto lists = parse_checklists(
      "# a comment\n[Taxi]\nwhen on_ground = 1\n\n"
      " Duct pressure | GREEN | Grdpsi | Bleedair lamp = 1 and apu >= -2.5 \n[Climb]\n",
      "lists");
  ASSERT_EQ(lists.size(), 2u);
  EXPECT_EQ(lists[0].title, "Taxi");
  ASSERT_EQ(lists[0].when.size(), 1u);
  ASSERT_EQ(lists[0].items.size(), 1u);
  const ChecklistItem& item = lists[0].items[0];
  EXPECT_EQ(item.what + "/" + item.wanted + "/" + item.gauge + "/" + item.control,
            "Duct pressure/GREEN/Grdpsi/");
  ASSERT_EQ(item.done.size(), 2u);
  EXPECT_EQ(item.done[0].gauge + "/" + item.done[0].name, "Bleedair/lamp");
  EXPECT_EQ(item.done[1].gauge + "/" + item.done[1].name, "/apu");
  EXPECT_TRUE(holds(item.done[1], -2.5));
  EXPECT_FALSE(holds(item.done[1], -2.6));
  EXPECT_FALSE(holds(item.done[1], NAN));
}

TEST(Checklists, AreRefusedWithTheLineThatIsWrong) {
  std::vector<Row> rows = rows_of("pages/refused_checklists.txt", 2);
  std::string many = "[A]\n";
  for (std::size_t i = 0; i <= most_items; ++i) many += "a|b|C d|e = 1\n";
  rows.push_back({many, "28: there is no room"});
  for (const Row& row : rows) {
    const std::string said = refusal<ConfigError>([&] { parse_checklists(row[0], "lists"); });
    EXPECT_TRUE(said.starts_with("lists:" + row[1])) << row[0] << said;
  }
}

class PagesInTheCockpit : public testing::Test, private InputListener {
 protected:
  PagesInTheCockpit() { inputs.tell(*this); }

  // What the page would do with a click on its first spot of that kind.
  template <typename Click>
  void click_first(Pages& pages) {
    for (const PageSpot& spot : pages.draw({420, 760}, 1).spots) {
      if (!std::holds_alternative<Click>(spot.click)) continue;
      const DrawnPage page = pages.draw({420, 760}, 1);
      return pages.take(page.at(spot.place.x + 2, spot.place.y + 2)->click);
    }
    ADD_FAILURE() << "the page has no such spot";
  }

  void frame(Pages& pages) {
    inputs.frame();
    pages.follow();
  }

  Cockpit cockpit{loaded_module(PLATFORM_AUDIO_RENDERED), read_panel_config(COCKPIT_DIR "/panel.cfg")};
  CockpitInputs inputs{cockpit};
  std::vector<Input> taken_inputs;

 private:
  void taken(std::uint64_t, const Input& input) override { taken_inputs.push_back(input); }
};

TEST_F(PagesInTheCockpit, ListsNameOnlyWhatTheCockpitHas) {
  const auto fault = [&](const std::string& text) {
    return fault_for(fitted_to(cockpit, parse_checklists(text, "lists")), cockpit);
  };
  const auto shipped = read_checklists(COCKPIT_DIR "/checklists.txt");
  EXPECT_EQ(fault_for(shipped, cockpit), "");
  EXPECT_EQ(shipped.size(), 9u);
  EXPECT_EQ(fault("[A]\na|b|Masterbat batery_switch|battery = 1\n"),
            "line 2: Masterbat has no control 'batery_switch'; did you mean battery_switch?");
  EXPECT_EQ(fault("[A]\na|b|Masterbat|Masterbat battery_lam = 1\n"),
            "line 2: Masterbat has no part 'battery_lam'; did you mean battery_lamp?");
  EXPECT_EQ(fault("[A]\na|b|Masterbat|batery = 1\n"), "line 2: there is no token 'batery'");
  EXPECT_EQ(fault("[A]\nwhen Masterbad x = 1\n"), "line 1: no window has a gauge 'Masterbad'");
}

TEST_F(PagesInTheCockpit, AClickPointsAtTheControlUntilTheItemIsDone) {
  Pages pages(inputs,
              parse_checklists("[A]\nAvionics|ON|Micsel adf_audio_button|battery = 1\n", "lists"),
              "lists");
  pages.toggle(PageKind::kneeboard);
  ASSERT_EQ(pages.shown(), PageKind::kneeboard);
  EXPECT_FALSE(cockpit.panels().shows(503));
  click_first<page_click::PointAt>(pages);
  EXPECT_TRUE(cockpit.panels().shows(503)) << "the pedestal has not opened";
  ASSERT_TRUE(pages.pointed());
  EXPECT_EQ(pages.pointed()->gauge, cockpit.find("Micsel"));
  EXPECT_EQ(pages.pointed()->box, (Box{68, 126, 24, 24}));
  frame(pages);
  EXPECT_TRUE(pages.pointed());
  cockpit.aircraft().hold_token(364, 1);
  frame(pages);
  EXPECT_FALSE(pages.pointed()) << "the item is done";
}

TEST_F(PagesInTheCockpit, TheKneeboardTurnsToTheMomentWhenItIsOpened) {
  Pages pages(inputs, parse_checklists("[A]\n[B]\nwhen battery = 1\n[C]\n", "lists"), "lists");
  const auto list_when_opened = [&](double battery) {
    cockpit.aircraft().hold_token(364, battery);
    pages.toggle(PageKind::kneeboard);
    const std::size_t list = *pages.choices().list;
    pages.close();
    return list;
  };
  EXPECT_EQ(list_when_opened(0), 0u);
  EXPECT_EQ(list_when_opened(1), 1u);
  pages.take(page_click::ShowList{2});
  EXPECT_EQ(list_when_opened(1), 2u) << "what was chosen stays";
  EXPECT_EQ(list_when_opened(0), 0u);
}

TEST_F(PagesInTheCockpit, OnePageIsShownAndTheCockpitsButtonsKnowIt) {
  Pages pages(inputs, {}, "lists");
  const simulation::ProgramWindows& windows = cockpit.aircraft().program_windows();
  cockpit.aircraft().key_event(event::map_window_toggle, 0);
  frame(pages);
  EXPECT_EQ(pages.shown(), PageKind::map);
  pages.toggle(PageKind::radio);
  EXPECT_EQ(pages.shown(), PageKind::radio);
  EXPECT_TRUE(windows.atc_shown && !windows.map_shown);
  inputs.take(input::OpenWindow{507});
  frame(pages);
  EXPECT_EQ(pages.shown(), PageKind::gps);
  EXPECT_FALSE(windows.atc_shown);
  inputs.take(input::CloseWindow{507});
  frame(pages);
  EXPECT_EQ(pages.shown(), std::nullopt);
  pages.toggle(PageKind::map);
  click_first<page_click::Close>(pages);
  EXPECT_FALSE(windows.map_shown || pages.shown());
}

TEST_F(PagesInTheCockpit, FailuresGoThroughTheInputs) {
  Pages pages(inputs, {}, "lists");
  pages.toggle(PageKind::failures);
  const std::uint32_t first = AircraftModel::failures()[0].key;
  click_first<page_click::SetFailed>(pages);
  EXPECT_TRUE(cockpit.aircraft().failed(first));
  click_first<page_click::SetFailed>(pages);
  EXPECT_FALSE(cockpit.aircraft().failed(first));
  click_first<page_click::SetFailed>(pages);
  click_first<page_click::RepairAll>(pages);
  EXPECT_FALSE(cockpit.aircraft().failed(first));
  pages.take(page_click::SetFailureRate{12});
  EXPECT_EQ(cockpit.aircraft().failure_rate(), 12);
  ASSERT_EQ(taken_inputs.size(), 5u);
  EXPECT_TRUE(std::holds_alternative<input::Fail>(taken_inputs[0]));
  EXPECT_TRUE(std::holds_alternative<input::Repair>(taken_inputs[1]));
  EXPECT_TRUE(std::holds_alternative<input::FailByChance>(taken_inputs[4]));
}

}  // namespace
