// The window's parts that need no screen.
#include <gtest/gtest.h>

#include "host/window/compose.h"
#include "host/window/desk.h"
#include "host/window/height_above.h"
#include "host/window/ui_pictures.h"
#include "host/window/x11_desktop.h"
#include "tests/app/program.h"

namespace {

using namespace host;

TEST(X11Scale, ReadsTheResolutionOfTheDesktop) {
  const struct {
    const char* resources;
    std::optional<double> scale;
  } cases[] = {
      {"Xft.dpi:\t192\nXft.antialias: 1\n", 2.0},
      {"*background: white\nXft.dpi: 120", 1.25},
      {"Xft.dpi: 0\n", std::nullopt},
      {"Xft.dpi: many\n", std::nullopt},
      {"Xft.dpi: nan\n", std::nullopt},
      {"Emacs.Xft.dpi: 192\nXft.dpi", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& each : cases)
    EXPECT_EQ(scale_in_resources(each.resources), each.scale) << each.resources;
}

TEST(Compose, ClipsAndBlends) {
  Canvas canvas(4, 3);
  fill(canvas, {0, 0, 4, 3}, 0xFF000000u);
  Overlay half{0, 0, 2, 2, std::vector<std::uint32_t>(4, 0x80800000u)};  // half opaque red
  blend_within(canvas, half, 3, -1, {0, 0, 4, 3});
  blend_within(canvas, half, -5, 0, {0, 0, 4, 3});
  EXPECT_EQ(canvas.pixels[3], 0xFF800000u);
  EXPECT_EQ(std::count(canvas.pixels.begin(), canvas.pixels.end(), 0xFF000000u), 11);
  blend_within(canvas, half, 3, -1, {3, 0, 1, 1});
  EXPECT_EQ(canvas.pixels[3], 0xFFC00000u);
  copy_within(canvas, Canvas(9, 9), -3, -3, {1, 1, 2, 1});
  EXPECT_EQ(canvas.pixels[3], 0xFFC00000u) << "outside of the rectangle";
}

TEST(Caption, HasItsButtonsAtTheRightEnd) {
  EXPECT_EQ(caption_part(10, 300, 1.0), CaptionPart::none);
  EXPECT_EQ(caption_part(260, 300, 1.0), CaptionPart::tear);
  EXPECT_EQ(caption_part(290, 300, 1.0), CaptionPart::close);
  EXPECT_EQ(caption_part(260, 300, 2.0), CaptionPart::close);
}

TEST(HeightAbove, LeavesThePanelsLegible) {
  const PanelSize captain{898, 762}, overhead{1263, 694};
  const struct {
    const char* what;
    std::vector<PanelSize> panels;
    int width, height;
    std::optional<double> zoom;
    double scale;
    int least, most;
  } cases[] = {
      {"a large screen", {captain}, 1920, 1080, {}, 1, 370, 420},
      {"two panels that leave height", {captain, overhead}, 1920, 1080, {}, 1, 370, 500},
      {"a laptop's screen", {captain}, 1280, 720, {}, 1, 100, 200},
      {"a small window", {captain}, 800, 600, {}, 1, 0, 0},
      {"a dense screen", {captain}, 3840, 2160, {}, 2, 740, 840},
      {"a zoom that leaves room", {captain}, 1920, 1200, 1.0, 1, 350, 420},
      {"a zoom that leaves none", {captain}, 1920, 1080, 1.3, 1, 0, 0},
  };
  for (const auto& [what, panels, width, height, zoom, scale, least, most] : cases) {
    const int above = height_above(panels, {width, height, 6, 22}, zoom, scale);
    EXPECT_GE(above, least) << what;
    EXPECT_LE(above, most) << what;
  }
}

TEST(Desk, IsReadAsItWasWrittenAndBadLinesAreTold) {
  Desk desk;
  desk.main = {WindowPlace{-20, 0, 1280, 720}, 1.0 / 3, true};
  desk.outside = false;
  desk.panels[500].open = desk.panels[500].torn = true;
  desk.panels[500].place = WindowPlace{1920, 10, 800, 600};
  desk.panels[502].in_work = true;
  desk.settings = {true, 35, 1.25};
  std::string notes;
  EXPECT_EQ(parse_desk(text_of(desk), "windows.cfg", notes), desk);
  EXPECT_EQ(notes, "");

  const struct {
    const char* line;
    const char* wrong;
  } cases[] = {{"place = 1,2,3", "needs 4 numbers"},   {"place = 0,0,9,900", "a window is 100 to 16384"},
               {"zoom = nan", "expected a zoom"}, {"zoom = 1e99", "expected a zoom"},
               {"full_screen = yes", "'yes'"},    {"torn = 1", "there is no entry 'torn' here"},
               {"zoom", "expected name = value"}, {"[0]", "0 is outside"},
               {"[50000000000]", "50000000000"}, {"[settings]\nvolume = 101", "101"},
               {"[settings]\nscale = 0", "expected a scale"}};
  for (const auto& each : cases) {
    std::string told;
    EXPECT_EQ(parse_desk("[window]\n" + std::string(each.line), "w.cfg", told), Desk{}) << each.line;
    EXPECT_TRUE(told.starts_with("w.cfg:") && told.find(each.wrong) != std::string::npos) << told;
  }
}

}  // namespace
