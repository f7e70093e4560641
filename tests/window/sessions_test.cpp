// Flights in the window: how they begin, what is kept of them, and the view on their way.
#include <gtest/gtest.h>

#include "tests/window/in_a_window.h"

namespace {

using namespace in_a_window;

TEST_F(InAWindow, ASessionThatWasKilledIsTakenUpWhereItWasLeft) {
  const unsigned dark = look(20, 52);
  const auto is_lit = [&] { return green(look(20, 52)) > green(dark) + 60; };
  click(47, 99);
  ASSERT_TRUE(eventually(is_lit));
  const auto entry = std::filesystem::directory_iterator(screen->sessions());
  const std::string journal = entry->path();
  const auto kept = [&] { return file_text(journal); };
  ASSERT_TRUE(
      eventually([&] { return kept().find(" mark ", kept().find(" release")) != std::string::npos; }));
  program->die();
  program->wait();
  std::ofstream(journal, std::ios::app) << "0123abcd 99 rel";
  const std::string left = kept();
  const auto good_lines = std::count(left.begin(), left.end(), '\n');

  begin("--resume");
  const std::string said = "Journal: " + journal + ":" + std::to_string(good_lines + 1) +
                           ": damaged or cut off; the flight is taken up to here\n";
  EXPECT_TRUE(eventually([&] { return file_text(folder / "log") == said; }))
      << file_text(folder / "log");
  EXPECT_TRUE(eventually(is_lit)) << "the battery is on";
  click(47, 99);
  EXPECT_TRUE(eventually([&] { return !is_lit(); }));
  screen->hands("key q");
  EXPECT_EQ(program->wait(), 0);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(screen->sessions()), {}), 1);

  const std::string flow = folder / "again.lua";
  const Outcome again = without_window("replay " + journal + " --flow " + flow);
  EXPECT_EQ(again.exit_code, 0) << again.output << kept();
  EXPECT_EQ(again.output.find("damaged"), std::string::npos) << again.output;
  const std::string click = "click(\"Masterbat\", 47, 99)\n";
  EXPECT_NE(file_text(flow).find(click, file_text(flow).find(click) + 1), std::string::npos)
      << file_text(flow);
}

TEST_F(InAWindow, TheWindowsStandAsTheyWereLeft) {
  screen->hands(move_to(300, 90) + "sleep 0.1 key t");
  ASSERT_TRUE(eventually([&] { return windows("Overhead") == 1; }));
  screen->hands("search --name Overhead windowmove 33 44 windowsize 500 290 sleep 0.3");
  screen->hands("mousemove 100 100 sleep 0.1 key 6");
  ASSERT_TRUE(recorded("open_window(505)"));
  screen->hands("key q");
  program->wait();

  begin("");
  ASSERT_TRUE(eventually([&] { return windows("Overhead") == 1; })) << file_text(folder / "log");
  EXPECT_TRUE(eventually([&] {
    const std::string geometry = screen->hands("search --name Overhead getwindowgeometry").output;
    return geometry.find("Position: 33,44") != std::string::npos &&
           geometry.find("Geometry: 500x290") != std::string::npos;
  })) << screen->hands("search --name Overhead getwindowgeometry").output;
  EXPECT_EQ(leave(), 0);
}

// What it did is in the journal, and so is what the person did after it.
TEST_F(InAWindow, AFlowIsWatchedAndTakenOver) {
  screen->hands("key q");
  program->wait();
  const std::string flow = folder.write("lamps.lua", "click('Masterbat', 'battery_switch') wait(600)");
  const std::string journal = folder / "watched.journal";
  begin("--watch " + flow + " --journal " + journal);
  const auto kept = [&](const std::string& text) {
    return eventually([&] { return file_text(journal).find(text) != std::string::npos; });
  };
  ASSERT_TRUE(kept(" press left ")) << file_text(journal);
  click(240, 35, 4);  // the wheel, while the flow has control
  screen->hands("key Right sleep 0.2 key Escape sleep 0.2");
  click(240, 35, 4);
  EXPECT_TRUE(kept(" wheel 1 40 35 Acdcsw"));
  EXPECT_EQ(leave(), 0);
  const std::string lines = file_text(journal);
  EXPECT_EQ(lines.find("wheel"), lines.rfind("wheel"));
  EXPECT_EQ(without_window("replay " + journal).exit_code, 0);
}

TEST_F(InAWindow, AnotherFlightBeginsInTheSameWindow) {
  const std::string before = screen->hands("search --onlyvisible --name Tarnvale").output;
  screen->hands(
      "key F10 sleep 0.2 key Down Down Return sleep 0.2 key Down Down Down Return");  // runway
  EXPECT_TRUE(eventually(
      [&] { return std::distance(std::filesystem::directory_iterator(screen->sessions()), {}) == 2; }));
  EXPECT_TRUE(eventually([&] { return look(2, 2) != 0; }));
  EXPECT_EQ(screen->hands("search --onlyvisible --name Tarnvale").output, before);
  EXPECT_EQ(leave(), 0);
}

// The captain's panel alone on a screen of a size on which the view has room.
class CaptainInAWindow : public InAWindow {
 protected:
  CaptainInAWindow()
      : InAWindow({.panel = "[Window00]\nident=500\nsize_mm=560,320\nvisible=1\n"
                            "background_color=90,100,110\ngauge00=Tarnvale!Masterbat, 0,0\n",
                   .module = "",
                   .start = " --at final"}) {}

  // The colour in the middle of the main window, `down` pixels below its upper edge.
  unsigned look_out(int down) { return look(setting.size.width / 2, down - place.y); }
  static bool is_sky(unsigned color) {
    return (color & 255) > 150 && (color & 255) > (color >> 16) + 20;
  }
};

TEST_F(CaptainInAWindow, TheViewStandsAboveThePanelAndGoesWithItsKey) {
  EXPECT_TRUE(eventually([&] { return is_sky(look_out(20)); }));
  screen->hands("key v");
  EXPECT_TRUE(eventually([&] { return !is_sky(look_out(20)); })) << "the view stays";
  screen->hands("key v");
  EXPECT_TRUE(eventually([&] { return is_sky(look_out(20)); })) << "the view does not come back";
  screen->hands("key 1");
  EXPECT_TRUE(eventually([&] { return !is_sky(look_out(20)); })) << "the view stays without the panel";
  EXPECT_EQ(leave(), 0);
}

// From the key to the ailerons to the horizon.
TEST_F(CaptainInAWindow, AHeldArrowBanksTheAircraft) {
  const auto sky_at = [&](int x) { return is_sky(look(x, 12 - place.y)); };
  const int left = 30 - place.x, right = place.width + place.x - 30;
  EXPECT_TRUE(eventually([&] { return sky_at(left) && sky_at(right); })) << "level at first";
  screen->hands("keydown Left");
  EXPECT_TRUE(eventually([&] { return !sky_at(left) && sky_at(right); })) << "no bank to the left";
  screen->hands("keyup Left");
  EXPECT_EQ(leave(), 0);
}

TEST(Fly, FollowsTheScaleOfTheDesktop) {
  if (!Screen::available()) GTEST_SKIP() << "needs Xvfb and xdotool";
  const Screen screen("1920x1080x24");
  const TempFolder folder;
  const std::string config = folder.write("panel.cfg", panel);
  for (const auto& [resources, option, width] : {std::tuple{"Xft.dpi: 96\n", "", 560 + 12},
                                                 {"Xft.dpi: 192\n", "", 2 * 560 + 24},
                                                 {"Xft.dpi: 192\n", "--scale 1", 560 + 12}}) {
    ASSERT_TRUE(set_x11_resources(screen.display(), resources));
    const Child program(screen.environment() + (cockpit_dir / "tarnvale").string() +
                            " fly --fresh --mute --zoom 1 " + option + " --exit-after 20 --panel " +
                            config,
                        -1);
    const std::string wanted = "Geometry: " + std::to_string(width) + "x";
    EXPECT_TRUE(eventually([&] {
      return screen.hands("search --onlyvisible --name Tarnvale getwindowgeometry")
                 .output.find(wanted) != std::string::npos;
    })) << resources
        << option << " does not open " << width << " pixels wide";
  }
}

TEST(Fly, LeavesByItselfWhenAsked) {
  if (!Screen::available()) GTEST_SKIP() << "needs Xvfb and xdotool";
  const Screen screen("1920x1080x24");
  const Outcome outcome = run_command(screen.environment() + (cockpit_dir / "tarnvale").string() +
                                      " fly --mute --scale 2 --open 503 505 --exit-after 1");
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  EXPECT_EQ(outcome.output, "");
}

}  // namespace
