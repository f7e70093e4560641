// A flow before a person's eyes: it works between the frames of another's loop, and ends when it is told.
#include "host/script/watched_flow.h"

#include <gtest/gtest.h>

#include "platform/platform_host.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;
using Wish = WatchedFlow::Wish;

// Remembers what has entered the flight.
struct Entries : InputListener {
  void taken(std::uint64_t frames, const Input& input) override {
    const std::string word(std::visit([](const auto& each) { return each.word; }, input));
    text += std::to_string(frames) + " " + word + "\n";
  }
  std::string text;
};

class Watched : public testing::Test {
 protected:
  Watched() { inputs.tell(entries); }

  std::unique_ptr<WatchedFlow> watch(const std::string& flow) {
    return std::make_unique<WatchedFlow>(inputs, folder.write("shown.lua", flow),
                                         std::vector<Checklist>{},
                                         [this](const std::string& text) { said = text; });
  }

  // As a loop that keeps the pace does, up to the end or so many frames.
  static void fly(WatchedFlow& flow, CockpitInputs& inputs, int frames) {
    for (Wish wish; frames > 0 && (wish = flow.go_on()) != Wish::nothing;)
      if (wish == Wish::frame) inputs.frame(), --frames;
  }

  TempFolder folder;
  GaugeModule module{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit{module, parse_panel_config("[Window00]\nident=500\nsize_mm=400,300\nvisible=1\n"
                                             "gauge00=Tarnvale!Masterbat, 0,0\n",
                                             "panel.cfg")};
  CockpitInputs inputs{cockpit};
  Entries entries;
  std::string said;
};

TEST_F(Watched, TellsWhatItIsAboutToWorkAndWorksItBetweenTwoFrames) {
  const auto flow = watch("say('battery') wait(0.1) click('Masterbat', 'battery_switch')");
  EXPECT_EQ(flow->go_on(), Wish::frame);
  EXPECT_EQ(said, "") << "the cockpit stands first";
  inputs.frame();
  Wish wish = Wish::frame;
  while ((wish = flow->go_on()) == Wish::frame) inputs.frame();
  EXPECT_EQ(said, "battery");
  ASSERT_EQ(wish, Wish::gesture);
  EXPECT_EQ(flow->about_to_work().control, "battery_switch");
  EXPECT_EQ(entries.text, "");
  fly(*flow, inputs, 100);
  EXPECT_EQ(entries.text, "3 press\n4 release\n");
  EXPECT_EQ(flow->failure(), "");
}

TEST_F(Watched, WhenItIsTakenOverItLetsGoOfEverything) {
  auto flow = watch("set_token('battery', 1) hold('Masterbat', 'battery_switch', 60) fail('battery')");
  fly(*flow, inputs, 20);
  EXPECT_TRUE(inputs.holding());
  flow.reset();
  EXPECT_FALSE(inputs.holding());
  EXPECT_TRUE(cockpit.aircraft().held_tokens().empty());
  EXPECT_EQ(entries.text, "1 set_token\n1 press\n20 release\n20 release_token\n");
  watch("click('Masterbat', 'battery_switch')").reset();
  EXPECT_EQ(entries.text.find("press", 20), std::string::npos) << "one that was never let do anything";
}

TEST_F(Watched, TellsWhyItHasFailed) {
  const auto flow = watch("wait(0.1)\nexpect(sound_level(1) ~= nil, 'it is not measured here')");
  fly(*flow, inputs, 100);
  EXPECT_EQ(flow->go_on(), Wish::nothing);
  EXPECT_EQ(flow->failure(), folder / "shown.lua:2: it is not measured here");
}

}  // namespace
