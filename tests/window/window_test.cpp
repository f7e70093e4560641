// The cockpit in its window, worked with mouse and keyboard as a person does.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>

#include "host/panel/layout.h"
#include "host/window/ui_pictures.h"
#include "tests/window/screen.h"
#include "tests/window/x11_resources.h"

namespace {

using namespace host;

constexpr const char* panel =
    "[Window Titles]\nWindow02=Overhead\nWindow05=Pushback\n"
    "[Window02]\nident=502\nsize_mm=560,320\nvisible=1\nbackground_color=90,100,110\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Cainstlg, "
    "400,0\n"
    "gauge03=Tarnvale!Pushback, 200,100\n"
    "[Window05]\nident=505\nsize_mm=200,160\ngauge00=Tarnvale!Avimaster, 10,10\n"
    "[Window09]\ndrawn=0\nvisible=1\ngauge00=Tarnvale!Msnd, 0,0\n";

struct Setting {
  const char* screen = "1280x800x24";
  const char* panel = ::panel;
  PanelSize size{560, 320};  ///< of its one open window
  double zoom = 1;
  std::string module;  ///< empty: the real one
  std::string start;   ///< where the flight begins: an option
};

class InAWindow : public testing::Test {
 protected:
  explicit InAWindow(Setting given = {}) : setting(std::move(given)) {}

  void SetUp() override {
    if (!Screen::available()) GTEST_SKIP() << "needs Xvfb and xdotool";
    screen = std::make_unique<Screen>(setting.screen);
    record = folder / "record.lua";
    folder.write("panel.cfg", setting.panel);
    begin("--record " + record + setting.start);
  }

  void begin(const std::string& options) {
    std::ostringstream command;
    // The program's own time limit is for the day when this test itself is killed.
    command << screen->environment() << cockpit_dir / "tarnvale"
            << " fly --mute --exit-after 120 --zoom " << setting.zoom << " --panel "
            << folder / "panel.cfg"
            << " --pictures " << folder.path() << " " << options;
    if (!setting.module.empty()) command << " --module " << setting.module;
    command << " 2> " << folder / "log";
    program = std::make_unique<Child>(command.str(), -1);
    ASSERT_TRUE(eventually([&] { return windows("Tarnvale") == 1; })) << file_text(folder / "log");
    take_geometry();
    ASSERT_TRUE(eventually([&] { return look(2, 2) != 0; })) << "no first picture";
  }

  int windows(const std::string& title) {
    const std::string ids =
        screen->hands("search --onlyvisible --name " + title + " 2>/dev/null").output;
    return static_cast<int>(std::count(ids.begin(), ids.end(), '\n'));
  }

  // Where the one open panel stands: in the middle of the window, under its caption.
  void take_geometry() {
    std::istringstream lines(
        screen->hands("search --onlyvisible --name Tarnvale getwindowgeometry --shell").output);
    int left = 0, top = 0, width = 0, height = 0;
    for (std::string line; std::getline(lines, line);) {
      const int value = std::atoi(line.substr(line.find('=') + 1).c_str());
      if (line.starts_with("X=")) left = value;
      if (line.starts_with("Y=")) top = value;
      if (line.starts_with("WIDTH=")) width = value;
      if (line.starts_with("HEIGHT=")) height = value;
    }
    const std::vector<PanelSize> sizes = {setting.size};
    place = arrange(sizes, {width, height, 6, caption_height(1)}, setting.zoom).places[0];
    corner = {left, top};
    window = {width, height};
  }

  std::string move_to(int x, int y) {
    std::ostringstream words;
    words << "mousemove " << corner.x + place.x + x << " " << corner.y + place.y + y << " ";
    return words.str();
  }

  void click(int x, int y, int button = 1) {
    screen->hands(move_to(x, y) + "sleep 0.05 click " + std::to_string(button));
  }

  bool recorded(const std::string& text) {
    return eventually([&] { return file_text(record).find(text) != std::string::npos; });
  }

  // The colour of a pixel of the panel on the screen, when the program has had time for it.
  unsigned look(int x, int y) const {
    std::this_thread::sleep_for(std::chrono::milliseconds(120));
    return x11_pixel(screen->display(), corner.x + place.x + x, corner.y + place.y + y);
  }

  int leave() {
    screen->hands("key q");
    const int code = program->wait();
    EXPECT_EQ(file_text(folder / "log"), "");
    return code;
  }

  Setting setting;
  TempFolder folder;
  std::unique_ptr<Screen> screen;
  std::unique_ptr<Child> program;
  std::string record;
  Rect place;
  PanelPoint corner{};
  PanelSize window{};
  int pictures = 0;
};

constexpr const char* picture_end = "IEND\xAE\x42\x60\x82";

int green(unsigned color) { return static_cast<int>(color >> 8 & 255); }

TEST_F(InAWindow, TheBatteryComesOnWithAClickAndTheRecordFliesAgain) {
  const unsigned dark = look(20, 52);  // beside the legend of the battery lamp
  click(47, 99);
  ASSERT_TRUE(recorded("click(\"Masterbat\", 47, 99)")) << file_text(record);
  unsigned lit = 0;
  EXPECT_TRUE(eventually([&] { return green(lit = look(20, 52)) > green(dark) + 60; }))
      << std::hex << dark << " and " << lit;
  EXPECT_EQ(leave(), 0);

  std::ofstream(record, std::ios::app)
      << "wait(0.1)\nexpect(image('Masterbat', 40) == 1, 'the lamp is dark')\n";
  const Outcome again = tarnvale("run " + record + " --panel " + (folder / "panel.cfg"));
  EXPECT_EQ(again.exit_code, 0) << again.output << file_text(record);
}

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
  const Outcome again =
      tarnvale("replay " + journal + " --panel " + (folder / "panel.cfg") + " --flow " + flow);
  EXPECT_EQ(again.exit_code, 0) << again.output << kept();
  EXPECT_EQ(again.output.find("damaged"), std::string::npos) << again.output;
  const std::string click = "click(\"Masterbat\", 47, 99)\n";
  EXPECT_NE(file_text(flow).find(click, file_text(flow).find(click) + 1), std::string::npos)
      << file_text(flow);
}

TEST_F(InAWindow, ARestOnAControlSaysWhatItIs) {
  const PanelPoint hint{62, 132};  // the paper of the hint beside its words, bare plate without it
  const int plate = green(look(hint.x, hint.y));
  screen->hands(move_to(45, 97) + "sleep 0.05 " + move_to(47, 99));
  EXPECT_TRUE(eventually([&] { return green(look(hint.x, hint.y)) < plate / 2; })) << "no hint";
  screen->hands(move_to(385, 85));
  EXPECT_TRUE(eventually([&] { return green(look(hint.x, hint.y)) == plate; })) << "the hint stays";
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, ARefusedClickSaysAtOnceWhatItLacked) {
  const PanelPoint paper{132, 124};  // of the words beside the pointer
  const int plate = green(look(paper.x, paper.y));
  click(117, 93);  // external power, with no ground unit there
  EXPECT_TRUE(eventually([&] { return green(look(paper.x, paper.y)) < plate / 2; }))
      << "nothing is said";
  screen->hands(move_to(385, 85));
  EXPECT_TRUE(eventually([&] { return green(look(paper.x, paper.y)) == plate; })) << "it stays";
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
  const int day = green(look(385, 85));  // bare plate
  screen->hands("key h");
  EXPECT_TRUE(eventually([&] { return green(look(385, 85)) != day; })) << "no help page";
  screen->hands("key Escape");
  EXPECT_TRUE(eventually([&] { return green(look(385, 85)) == day; })) << "the help page stays";
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

TEST_F(InAWindow, ARightClickOnBareMetalOpensTheMenuAndOneOnAControlDoesNot) {
  const unsigned plate = look(395, 95), low = look(55, 110);
  click(385, 85, 3);
  EXPECT_TRUE(eventually([&] { return look(395, 95) != plate; })) << "no menu";
  screen->hands("key Down Right sleep 0.1 key Escape Escape");  // to the panels, back, out
  EXPECT_TRUE(eventually([&] { return look(395, 95) == plate; })) << "the menu stays";
  click(47, 99, 3);
  EXPECT_EQ(look(55, 110), low);
  EXPECT_EQ(leave(), 0);
}

TEST_F(InAWindow, TheMenuMovesTheClockByHalfHours) {
  screen->hands("key F10 Down Down Down Down Down Down Right Down Down Left Left Escape Escape");
  EXPECT_TRUE(recorded("set_time_of_day(9.5)") && recorded("set_time_of_day(9)")) << file_text(record);
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
  EXPECT_EQ(tarnvale("replay " + journal + " --panel " + (folder / "panel.cfg")).exit_code, 0);
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

TEST_F(InAWindow, PanelsOpenWithKeysAndTearOff) {
  screen->hands("key 6");
  EXPECT_TRUE(recorded("open_window(505)"));
  screen->hands("key 6");
  EXPECT_TRUE(recorded("close_window(505)"));
  screen->hands(move_to(300, 90) + "sleep 0.1 key t");
  EXPECT_TRUE(eventually([&] { return windows("Overhead") == 1; }));
  const int after = windows("Tarnvale");
  EXPECT_EQ(after, 1) << "the main window stays";
  // The torn-off window stands in the middle of the screen: the key puts it back from there.
  screen->hands("mousemove 640 400 sleep 0.1 key t");
  EXPECT_TRUE(eventually([&] { return windows("Overhead") == 0; }));
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
