#include "host/panel/panel_config.h"

#include <gtest/gtest.h>

#include "tests/rig/temp_folder.h"

namespace {

using namespace host;

constexpr const char* whole_panel =
    "\xEF\xBB\xBF// A panel\r\n"
    "[Window Titles]\r\n"
    "window01 = Overhead // the upper one\r\n"
    "Window00=Captain\r\n"
    "\r\n"
    "[WINDOW01]\r\n"
    "ident=502\r\n"
    "size_mm=930, 950\r\n"
    "visible=1\r\n"
    "gauge00=Tarnvale!Masterbat, 19,473\r\n"
    "gauge01 = tarnvale!ACPWR,-4,6 , 90,100\r\n"
    "bay00=10, 20,200,400\r\n"
    "placard00=5,6, 70,40, LIMITS | OIL 40, 85 | \r\n"
    "[Window00]\n"
    "ident=500\nident_day=20\nident_night=27\nsize_mm=8,9\nposition=7\n"
    "background=main.png\nbackground_night=main_night.png\nbackground_color=255,0,16";

TEST(PanelConfig, ReadsTheFieldsUsualForm) {
  const PanelConfig panel = parse_panel_config(whole_panel, "panel.cfg");
  ASSERT_EQ(panel.windows.size(), 2u);
  const WindowConfig& captain = panel.windows[0];
  EXPECT_EQ(captain.title, "Captain");
  EXPECT_EQ(captain.ident, 500u);
  EXPECT_EQ(captain.day_ident, 20u);
  EXPECT_EQ(captain.night_ident, 27u);
  EXPECT_EQ(captain.position, 7);
  EXPECT_EQ(captain.background, "main.png");
  EXPECT_EQ(captain.night_background, "main_night.png");
  EXPECT_EQ(captain.color, 0xFFFF0010u);
  EXPECT_FALSE(captain.visible);
  const WindowConfig& overhead = panel.windows[1];
  EXPECT_EQ(overhead.title, "Overhead");
  EXPECT_TRUE(overhead.visible);
  EXPECT_EQ(overhead.width, 930);
  ASSERT_EQ(overhead.gauges.size(), 2u);
  EXPECT_EQ(overhead.gauges[0].gauge, "Masterbat");
  EXPECT_EQ(overhead.gauges[0].width, 0) << "the size of its background";
  EXPECT_EQ(overhead.gauges[1].x, -4);
  EXPECT_EQ(overhead.gauges[1].height, 100);
  EXPECT_EQ(overhead.gauges[1].line, 11);
  ASSERT_EQ(overhead.bays.size(), 1u);
  EXPECT_EQ(overhead.bays[0].y, 20);
  EXPECT_EQ(overhead.bays[0].height, 400);
  ASSERT_EQ(overhead.placards.size(), 1u);
  EXPECT_EQ(overhead.placards[0].width, 70);
  EXPECT_EQ(overhead.placards[0].lines, (std::vector<std::string>{"LIMITS", "OIL 40, 85", ""}));
}

std::string refusal(const char* text) {
  try {
    parse_panel_config(text, "panel.cfg");
    return "accepted";
  } catch (const ConfigError& error) {
    return error.what();
  }
}

TEST(PanelConfig, IsRefusedWithFileAndLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "1: the panel has no window"},
      {"[Window00]\nsize_mm=1,1\noverhead", "3: expected [section] or entry=value, not 'overhead'"},
      {"ident=1", "1: an entry before the first [section]"},
      {"[Window00", "1: a section ends with ]"},
      {"\n[Views]", "2: unknown section [views]: expected [Window Titles] or [Window00]"},
      {"[Window01]\nsize_mm=1,1\n[window01]", "3: a second [window01]"},
      {"[Window1]\nsize_mm=1,1\n[window01]", "3: a second window 1"},
      {"[Window99999999999]", "1: '99999999999' is not a whole number"},
      {"[Window00]\nident=1", "1: window 0 has no size_mm"},
      {"[Window00]\nsize_mm=100", "2: size_mm: needs 2 numbers separated by commas"},
      {"[Window00]\nsize_mm=0,100", "2: size_mm: 0 is outside 1 to 8192"},
      {"[Window00]\ncolour=1", "2: unknown entry 'colour'"},
      {"[Window00]\nident=1\nIdent=2", "3: a second 'ident' in this section"},
      {"[Window00]\nident=5\nsize_mm=1,1\n[Window01]\nident_night=5",
       "5: ident 5 belongs to a window already"},
      {"[Window00]\nvisible=yes", "2: visible: 'yes' is not a whole number"},
      {"[Window00]\nbackground=../secret.png",
       "2: background: needs the name of a picture beside this file"},
      {"[Window00]\nbackground_color=1,2,256", "2: background_color: 256 is outside 0 to 255"},
      {"[Window00]\ngauge00=Masterbat, 1,2",
       "2: a gauge is written Module!Gauge, x,y or Module!Gauge, x,y,width,height"},
      {"[Window00]\ngauge00=Tarnvale!, 1,2", "2: a gauge needs a module and a name"},
      {"[Window00]\ngauge00=Tarnvale!Ctr, 1,2,3", "2: a gauge needs x,y or x,y,width,height"},
      {"[Window00]\ngauge00=Tarnvale!Ctr, 1,left", "2: 'left' is not a whole number"},
      {"[Window00]\ngauge00=Tarnvale!Ctr, 1,2,3,0", "2: a gauge's width and height are 1 or more"},
      {"[Window00]\nbay00=1,2,0,9", "2: width and height are 1 or more"},
      {"[Window00]\nplacard00=1,2,30,9", "2: a placard is written x,y,width,height,words"},
      {"[Window00]\nplacard00=1,2,30,9,|||||||||||||", "2: a placard has at most 12 lines"},
      {"[Window Titles]\nWindow7=GPS\n[Window00]\nsize_mm=1,1",
       "2: a title for window 7, which is not there"},
      {"[Window00]\nsize_mm=1,1\ngauge00=Tarnvale!Ctr, 1,2\ngauge0=Tarnvale!Ctr, 1,2",
       "4: a second 'gauge0' in this section"},
      {"[Window00]\nnothing but words that go on and on and on and on and on and on and on and on",
       "2: expected [section] or entry=value, not 'nothing but words that go on and on and ...n and on "
       "and on'"},
      {"[Window Titles]\nMain=Captain", "2: expected Window00=title, not 'main'"},
  };
  for (const auto& [text, message] : cases)
    EXPECT_EQ(refusal(text), "panel.cfg:" + std::string(message)) << text;
}

TEST(PanelConfig, AFileThatCannotBeReadIsRefused) {
  const TempFolder folder;
  const auto config = [&](const std::string& entries) {
    return folder.write("panel.cfg", "[Window00]\nsize_mm=9,9\n" + entries);
  };
  folder.write("text.png", "no picture");
  const auto said = [&](const std::string& file) {
    try {
      read_panel_config(file);
      return std::string("accepted");
    } catch (const ConfigError& error) {
      return std::string(error.what()).substr(folder.path().string().size());
    }
  };
  EXPECT_EQ(said(folder / "gone.cfg"), "/gone.cfg: cannot be read: No such file or directory");
  EXPECT_EQ(said(folder / ""), "/: cannot be read: Is a directory");
  EXPECT_EQ(said(config(std::string(2 << 20, '\n'))), "/panel.cfg: is larger than 1 MiB");
  EXPECT_EQ(said(config("background_night=gone.png")),
            "/panel.cfg:3: the window's background gone.png cannot be read: No such file or directory");
  EXPECT_EQ(said(config("\nbackground=text.png")),
            "/panel.cfg:4: the window's background text.png is no PNG picture of at most 8192 x 8192 "
            "pixels, or "
            "damaged");
}

}  // namespace
