// The controls and panels of the cockpit in its window.
#include <gtest/gtest.h>

#include "tests/window/in_a_window.h"

namespace {

using namespace in_a_window;

constexpr const char* picture_end = "IEND\xAE\x42\x60\x82";

TEST_F(InAWindow, TheBatteryComesOnWithAClickAndTheRecordFliesAgain) {
  const unsigned dark = look(20, 52);  // beside the legend of the battery lamp
  click(47, 99);
  ASSERT_TRUE(recorded("click(\"Masterbat\", 47, 99)")) << file_text(record);
  EXPECT_TRUE(becomes({20, 52}, [&](unsigned lit) { return green(lit) > green(dark) + 60; }));
  EXPECT_EQ(leave(), 0);

  std::ofstream(record, std::ios::app)
      << "wait(0.1)\nexpect(image('Masterbat', 40) == 1, 'the lamp is dark')\n";
  const Outcome again = without_window("run " + record);
  EXPECT_EQ(again.exit_code, 0) << again.output << file_text(record);
}

TEST_F(InAWindow, ARestOnAControlSaysWhatItIs) {
  const PanelPoint hint{62, 132};  // the paper of the hint beside its words, bare plate without it
  const int plate = green(look(hint.x, hint.y));
  screen->hands(move_to(45, 97) + "sleep 0.05 " + move_to(47, 99));
  EXPECT_TRUE(becomes(hint, [&](unsigned color) { return green(color) < plate / 2; })) << "no hint";
  screen->hands(move_to(385, 85));
  EXPECT_TRUE(becomes(hint, [&](unsigned color) { return green(color) == plate; })) << "it stays";
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, ARefusedClickSaysAtOnceWhatItLacked) {
  const PanelPoint paper{132, 124};  // of the words beside the pointer
  const int plate = green(look(paper.x, paper.y));
  click(117, 93);  // external power, with no ground unit there
  EXPECT_TRUE(becomes(paper, [&](unsigned color) { return green(color) < plate / 2; }))
      << "nothing is said";
  screen->hands(move_to(385, 85));
  EXPECT_TRUE(becomes(paper, [&](unsigned color) { return green(color) == plate; })) << "it stays";
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, TheWheelTurnsASelectorAndLeavesASwitchAlone) {
  click(47, 99, 4);   // the wheel over the battery switch
  click(240, 35, 4);  // and over the DC selector
  EXPECT_TRUE(recorded("wheel(\"Acdcsw\", 40, 35, 1)"));
  EXPECT_EQ(file_text(record).find("Masterbat"), std::string::npos);
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, ThePanelLightsComeOnAndTheHelpLiesOverThePanel) {
  const PanelPoint plate{385, 85};
  const unsigned day = look(plate.x, plate.y);
  screen->hands("key h");
  EXPECT_TRUE(becomes(plate, [&](unsigned color) { return color != day; })) << "no help page";
  screen->hands("key Escape");
  EXPECT_TRUE(becomes(plate, [&](unsigned color) { return color == day; })) << "the help page stays";
  screen->hands("key d");
  EXPECT_TRUE(recorded("event(\"panel_lights_toggle\")"));
  EXPECT_EQ(leave(), 0);
}

// A held key writes one picture, and what the program lays over the panel is not in it.
TEST_F(InAWindow, APictureShowsThePanelAndNotTheHelpOverIt) {
  const unsigned plate = look(385, 85);
  screen->hands("key h sleep 0.3 keydown s sleep 1 keyup s");
  EXPECT_NE(look(385, 85), plate) << "no help page";
  const std::string file = folder / "tarnvale-001.png";
  ASSERT_TRUE(eventually([&] { return file_text(file).ends_with(picture_end); }));
  EXPECT_EQ(pixel(file, place.x + 385, place.y + 85), plate);
  EXPECT_FALSE(std::filesystem::exists(folder / "tarnvale-002.png"));
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, APauseLetsNobodyWorkAControl) {
  screen->hands("key p");
  click(47, 99);
  screen->hands("key p");
  click(240, 35, 4);  // the wheel over the DC selector, after the pause
  EXPECT_TRUE(recorded("Acdcsw"));
  EXPECT_EQ(file_text(record).find("Masterbat"), std::string::npos);
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, ARightClickOnBareMetalOpensTheMenuAndOneOnAControlDoesNot) {
  const unsigned plate = look(395, 95), low = look(55, 110);
  click(385, 85, 3);
  EXPECT_TRUE(becomes({395, 95}, [&](unsigned color) { return color != plate; })) << "no menu";
  screen->hands("key Down Right sleep 0.1 key Escape Escape");  // to the panels, back, out
  EXPECT_TRUE(becomes({395, 95}, [&](unsigned color) { return color == plate; })) << "the menu stays";
  click(47, 99, 3);
  EXPECT_EQ(look(55, 110), low);
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, TheMenuMovesTheClockByHalfHours) {
  screen->hands("key F10 Down Down Down Down Down Down Right Down Down Left Left Escape Escape");
  EXPECT_TRUE(recorded("set_time_of_day(9.5)") && recorded("set_time_of_day(9)")) << file_text(record);
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, PanelsOpenWithKeysAndTearOff) {
  screen->hands("key 6");
  EXPECT_TRUE(recorded("open_window(505)"));
  screen->hands("key 6");
  EXPECT_TRUE(recorded("close_window(505)"));
  screen->hands(move_to(300, 90) + "sleep 0.1 key t");
  EXPECT_TRUE(eventually([&] { return windows("Overhead") == 1; }));
  EXPECT_EQ(windows("Tarnvale"), 1) << "the main window stays";
  // The torn-off window stands in the middle of the screen: the key puts it back from there.
  screen->hands("mousemove 640 400 sleep 0.1 key t");
  EXPECT_TRUE(eventually([&] { return windows("Overhead") == 0; }));
  EXPECT_EQ(leave(), 0);
}

// The test's screen has no window manager.
TEST_F(InAWindow, TheFullScreenIsFilledToItsEdgesAndLeftAgain) {
  const PanelPoint before = corner;
  const PanelSize size = window;
  const auto stands = [&](PanelPoint at, PanelSize wanted) {
    return eventually([&] {
      take_geometry();
      return corner.x == at.x && corner.y == at.y && window.width == wanted.width &&
             window.height == wanted.height;
    });
  };
  screen->hands("key F11");
  EXPECT_TRUE(stands({0, 0}, {1280, 800})) << corner.x << "," << corner.y;
  screen->hands("key F11");
  EXPECT_TRUE(stands(before, size)) << corner.x << "," << corner.y;
  EXPECT_EQ(leave(), 0);
}

// The page stands at the right end, at most as wide as the panels leave it.
TEST_F(InAWindow, AnItemOfTheKneeboardOpensThePanelWithItsControl) {
  screen->hands("key k");
  ASSERT_TRUE(recorded("kneeboard_toggle")) << file_text(record);
  const double unit = std::min({1.0, window.width * 0.45 / 420, window.height / 760.0});
  constexpr double second_item =
      62 + 3 * 30 + 10 + 1.5 * 26;  // behind the battery: the avionics master
  std::ostringstream words;
  words << "mousemove " << std::lround(corner.x + window.width - 210 * unit) << " "
        << std::lround(corner.y + second_item * unit) << " sleep 0.3 click 1";
  screen->hands(words.str());
  EXPECT_TRUE(recorded("open_window(505)")) << file_text(record);
  EXPECT_EQ(leave(), 0);
}

// A gauge that tells what it is told, on a panel that is larger than the screen.
class TallyInAWindow : public InAWindow {
 protected:
  TallyInAWindow()
      : InAWindow({.screen = "640x480x24",
                   .panel = "[Window00]\nident=500\nsize_mm=400,300\nvisible=1\n"
                            "background_color=90,100,110\ngauge00=Tally!Tally, 100,120\n",
                   .size = {400, 300},
                   .zoom = 2,
                   .module = TALLY_MODULE,
                   .start = ""}) {}

  // A pixel of the gauge, `scrolled` screen pixels above where it stood at first.
  static PanelPoint spot(int x, int y, int scrolled = 0) {
    return {2 * (100 + x) + 1, 2 * (120 + y) + 1 - scrolled};
  }

  // The areas' lines, without the host's own notes.
  std::string told() const {
    std::istringstream log(file_text(folder / "log"));
    std::string lines;
    for (std::string line; std::getline(log, line);)
      if (!line.starts_with("warning: ")) lines += line + "\n";
    return lines;
  }
  bool tells(const std::string& text) {
    return eventually([&] { return told() == text; });
  }
};

TEST_F(TallyInAWindow, TheWheelTurnedAwayIncreasesOnEitherHalfOfAKnob) {
  const PanelPoint lower = spot(5, 20), upper = spot(35, 20);
  constexpr int away = 4, toward = 5;
  click(lower.x, lower.y, away);
  click(upper.x, upper.y, toward);
  EXPECT_TRUE(tells("up 10,20\ndown 10,20\n")) << told();
}

TEST_F(TallyInAWindow, AClickOnAScrolledViewLandsWhereThePointerIs) {
  constexpr int toward = 5;
  click(100, 200, toward);  // bare plate: the panel moves up by 60 pixels
  const PanelPoint point = spot(50, 7, 60);
  click(point.x, point.y);
  EXPECT_TRUE(tells("switch 10,7\n")) << told();
  EXPECT_TRUE(recorded("click(\"Tally\", 50, 7)")) << file_text(record);
}

TEST_F(TallyInAWindow, AHeldKnobRepeatsSomeTimesASecondAndStopsWhenItIsLetGo) {
  const PanelPoint point = spot(30, 20);
  screen->hands(move_to(point.x, point.y) + "sleep 0.05 mousedown 1 sleep 1.5 mouseup 1 sleep 0.3");
  const std::string lines = told();
  EXPECT_TRUE(lines.starts_with("up 10,20\nup 10,20 again\n")) << lines;
  const auto count = std::count(lines.begin(), lines.end(), '\n');
  EXPECT_GE(count, 6) << "a turn of a knob takes no minute";
  EXPECT_LE(count, 14) << "and can be stopped where one wants";
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_EQ(told(), lines);
  EXPECT_TRUE(recorded("hold(\"Tally\", 30, 20, 1.")) << file_text(record);
}

}  // namespace
