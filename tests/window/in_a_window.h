/// The cockpit in its window, worked with mouse and keyboard as a person does.
#pragma once

#include <cmath>
#include <sstream>

#include "host/panel/layout.h"
#include "host/window/ui_pictures.h"
#include "tests/window/screen.h"
#include "tests/window/x11_resources.h"

namespace in_a_window {

using namespace host;

inline constexpr const char* panel =
    "[Window Titles]\nWindow02=Overhead\nWindow05=Pushback\n"
    "[Window02]\nident=502\nsize_mm=560,320\nvisible=1\nbackground_color=90,100,110\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Cainstlg, "
    "400,0\n"
    "gauge03=Tarnvale!Pushback, 200,100\n"
    "[Window05]\nident=505\nsize_mm=200,160\ngauge00=Tarnvale!Avimaster, 10,10\n"
    "[Window09]\ndrawn=0\nvisible=1\ngauge00=Tarnvale!Msnd, 0,0\n";

struct Setting {
  const char* screen = "1280x800x24";
  const char* panel = in_a_window::panel;
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

  /// Whether a spot of the panel comes to look like that.
  template <typename Like>
  bool becomes(PanelPoint spot, Like like) const {
    return eventually([&] { return like(look(spot.x, spot.y)); });
  }

  /// A command of the program with this panel, flown without a window.
  Outcome without_window(const std::string& command) const {
    return tarnvale(command + " --panel " + (folder / "panel.cfg"));
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

inline int green(unsigned color) { return static_cast<int>(color >> 8 & 255); }

}  // namespace in_a_window
