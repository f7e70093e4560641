#include "host/panel/panel_config.h"

#include <gtest/gtest.h>

#include "tests/rig/refusal.h"
#include "tests/rig/rows.h"
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
  EXPECT_EQ(captain.title + ' ' + captain.background + ' ' + captain.night_background,
            "Captain main.png main_night.png");
  EXPECT_EQ(std::tuple(captain.ident, captain.day_ident, captain.night_ident, captain.position),
            std::tuple(500u, 20u, 27u, 7));
  EXPECT_EQ(captain.color, 0xFFFF0010u);
  EXPECT_FALSE(captain.visible);
  const WindowConfig& overhead = panel.windows[1];
  EXPECT_EQ(std::tuple(overhead.title, overhead.visible, overhead.width),
            std::tuple("Overhead", true, 930));
  ASSERT_EQ(overhead.gauges.size(), 2u);
  EXPECT_EQ(overhead.gauges[0].gauge, "Masterbat");
  EXPECT_EQ(overhead.gauges[0].width, 0) << "the size of its background";
  const auto& second = overhead.gauges[1];
  EXPECT_EQ(std::tuple(second.x, second.height, second.line), std::tuple(-4, 100, 11));
  ASSERT_EQ(overhead.bays.size(), 1u);
  EXPECT_EQ(std::tuple(overhead.bays[0].y, overhead.bays[0].height), std::tuple(20, 400));
  ASSERT_EQ(overhead.placards.size(), 1u);
  EXPECT_EQ(overhead.placards[0].width, 70);
  EXPECT_EQ(overhead.placards[0].lines, (std::vector<std::string>{"LIMITS", "OIL 40, 85", ""}));
}

TEST(PanelConfig, IsRefusedWithFileAndLine) {
  for (const Row& row : rows_of("panel/refused_panels.txt", 2))
    EXPECT_EQ(refusal<ConfigError>([&] { parse_panel_config(row[0], "panel.cfg"); }),
              "panel.cfg:" + row[1])
        << row[0];
}

TEST(PanelConfig, AFileThatCannotBeReadIsRefused) {
  const TempFolder folder;
  const auto config = [&](const std::string& entries) {
    return folder.write("panel.cfg", "[Window00]\nsize_mm=9,9\n" + entries);
  };
  folder.write("text.png", "no picture");
  const auto said = [&](const std::string& file) {
    return refusal<ConfigError>([&] { read_panel_config(file); }).substr(folder.path().string().size());
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
