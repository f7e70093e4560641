// The window's parts that need no screen.
#include <gtest/gtest.h>

#include "host/window/compose.h"
#include "host/window/desk.h"
#include "host/window/height_above.h"
#include "host/window/menu.h"
#include "host/window/strip_bar.h"
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
  } cases[] = {{"place = 1,2,3", "needs 4 numbers"},
               {"place = 0,0,9,900", "a window is 100 to 16384"},
               {"zoom = nan", "expected a zoom"},
               {"zoom = 1e99", "expected a zoom"},
               {"full_screen = yes", "'yes'"},
               {"torn = 1", "there is no entry 'torn' here"},
               {"zoom", "expected name = value"},
               {"[0]", "0 is outside"},
               {"[50000000000]", "50000000000"},
               {"[settings]\nvolume = 101", "101"},
               {"[settings]\nscale = 0", "expected a scale"}};
  for (const auto& each : cases) {
    std::string told;
    EXPECT_EQ(parse_desk("[window]\n" + std::string(each.line), "w.cfg", told), Desk{}) << each.line;
    EXPECT_TRUE(told.starts_with("w.cfg:") && told.find(each.wrong) != std::string::npos) << told;
  }
}

// A card with a row of each kind, and one behind it.
class MenuOfAllKinds : public testing::Test {
 protected:
  MenuSheet build(MenuPage page) {
    if (page == MenuPage::flows) return {"Behind", {{.words = "Deep"}, {.words = "Deeper"}}};
    MenuRow act{.words = "Act"}, leads{.words = "Leads", .kind = MenuRow::Kind::page},
        level{.words = "Level", .key = std::to_string(value), .kind = MenuRow::Kind::level};
    act.act = [this] { ++acted; };
    leads.page = MenuPage::flows;
    level.step = [this](int by) { value += by; };
    level.reach = [this](double to) { value = static_cast<int>(100 * to); };
    return {"", {act, leads, level}};
  }
  void keys(std::initializer_list<SDL_Keycode> all) {
    for (const SDL_Keycode key : all) EXPECT_TRUE(menu.take_key(key));
  }
  // Where a row of the first card stands, at a part of its width.
  PanelPoint spot(std::size_t row, double along) {
    const MenuSheet sheet = build(MenuPage::top);
    const DrawnMenu drawn = draw_menu(sheet, {}, room, 1, sheet_colors(false));
    const Overlay& picture = menu.draw({700, 100}, room, 1, sheet_colors(false));
    const Rect place = drawn.rows[row];
    return {picture.x + place.x + static_cast<int>(place.width * along), picture.y + place.y + 9};
  }

  static constexpr PanelSize room{1000, 600};
  int acted = 0, value = 50;
  Menu menu{[this](MenuPage page) { return build(page); }};
};

TEST_F(MenuOfAllKinds, IsWorkedWithKeys) {
  menu.open(true);
  keys({SDLK_UP, SDLK_RIGHT, SDLK_RIGHT,
        SDLK_LEFT});  // the level, from the first row around to the last
  EXPECT_EQ(value, 51);
  EXPECT_TRUE(menu.looks_old());
  keys({SDLK_UP, SDLK_RETURN, SDLK_DOWN, SDLK_RETURN});
  EXPECT_FALSE(menu.is_open()) << "a row of the card behind does nothing and ends the menu";
  menu.open(true);
  keys({SDLK_DOWN, SDLK_RIGHT, SDLK_ESCAPE, SDLK_UP, SDLK_RETURN});  // there, back, and the row above
  EXPECT_EQ(acted, 1);
  EXPECT_FALSE(menu.is_open());
  menu.open(true);
  EXPECT_FALSE(menu.take_key(SDLK_p)) << "keys of the program are not the menu's";
}

TEST_F(MenuOfAllKinds, IsWorkedWithTheMouse) {
  menu.open(false);
  const PanelPoint low = spot(2, menu_bar_left), high = spot(2, 0.99), act = spot(0, 0.5);
  EXPECT_TRUE(menu.press(low.x, low.y));
  EXPECT_LE(value, 1);
  EXPECT_TRUE(menu.press(high.x, high.y));
  menu.point(low.x - 500, low.y + 300);  // a drag may leave the card
  EXPECT_EQ(value, 0);
  menu.point(high.x, low.y);
  menu.release();
  menu.point(low.x, low.y);
  EXPECT_EQ(value, 100);
  menu.wheel(-3);
  EXPECT_EQ(value, 97);
  EXPECT_FALSE(menu.press(5, 5)) << "beside the card";
  EXPECT_TRUE(menu.press(act.x, act.y));
  EXPECT_EQ(acted, 1);
}

TEST_F(MenuOfAllKinds, StandsInsideOfAnyWindow) {
  menu.open(false);
  for (const PanelSize size : {PanelSize{160, 120}, {1366, 768}, {3840, 2160}})
    for (const PanelPoint at : {PanelPoint{0, 0}, {size.width, size.height}, {-50, 99999}})
      for (const double scale : {1.0, 2.0}) {
        const Overlay& picture = menu.draw(at, size, scale, sheet_colors(true));
        EXPECT_GE(picture.x, 0);
        EXPECT_GE(picture.y, 0);
        EXPECT_LE(picture.x + picture.width, size.width + 1) << size.width;
        EXPECT_LE(picture.y + picture.height, size.height + 1) << size.height;
      }
}

TEST(FlowBar, CutsWhatTheFlowSaysAndNeverItsButtons) {
  const FlowState flow{"engine start", std::string(200, 'w'), 4, false};
  for (const int width : {100, 500, 1500}) {
    const StripBar bar = draw_flow_bar(flow, width, 1);
    EXPECT_EQ(bar.spots.size(), 4u);
    EXPECT_LE(bar.picture.width, std::max(width, 460));
    EXPECT_EQ(bar.at(bar.picture.width - 10, 5), StripAct::take_over);
    EXPECT_EQ(bar.at(5, 5), std::nullopt);
  }
}

}  // namespace
