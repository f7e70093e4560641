#include "host/panel/panel_set.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

PanelSet two_windows() {
  return PanelSet(
      parse_panel_config("[Window00]\nident=500\nident_day=20\nident_night=27\nsize_mm=9,9\nvisible=1\n"
                         "[Window02]\nident=502\nsize_mm=9,9\n",
                         "panel.cfg"));
}

TEST(PanelSet, OpensClosesAndToggles) {
  PanelSet panels = two_windows();
  EXPECT_TRUE(panels.is_open(0));
  EXPECT_FALSE(panels.shows(502));
  panels.open(502);
  panels.open(502);
  EXPECT_TRUE(panels.shows(502));
  EXPECT_EQ(panels.changes(), 1u) << "opening an open window changes nothing";
  panels.toggle(502);
  EXPECT_FALSE(panels.is_open(1));
  panels.toggle(502);
  panels.close(502);
  EXPECT_FALSE(panels.is_open(1));
  const auto changes = panels.changes();
  panels.open(501);  // of another cockpit
  panels.close(0);
  panels.toggle(501);
  EXPECT_FALSE(panels.shows(501));
  EXPECT_EQ(panels.changes(), changes);
}

TEST(PanelSet, TheStartPageGivesWayToTheFirstWindowThatIsOpened) {
  EXPECT_FALSE(two_windows().begin_with_start_page()) << "not every panel has one";
  PanelSet panels(
      parse_panel_config("[Window00]\nident=500\nsize_mm=9,9\nvisible=1\n"
                         "[Window08]\nident=508\nsize_mm=9,9\nstart_page=1\n"
                         "[Window10]\nsize_mm=9,9\ndrawn=0\nvisible=1\n",
                         "panel.cfg"));
  EXPECT_FALSE(panels.shows(508)) << "a flow begins without it";
  EXPECT_TRUE(panels.begin_with_start_page());
  EXPECT_TRUE(panels.shows(508));
  EXPECT_FALSE(panels.shows(500));
  EXPECT_TRUE(panels.is_open(2)) << "what is never seen runs on";
  panels.open(500);
  EXPECT_FALSE(panels.shows(508));
}

// The panel-light switches open one face and close the other, in either order.
TEST(PanelSet, SwapsTheFacesOfAMainPanel) {
  PanelSet panels = two_windows();
  EXPECT_TRUE(panels.shows(20));
  panels.open(27);
  panels.close(20);
  EXPECT_EQ(panels.face(0), Face::night);
  EXPECT_TRUE(panels.shows(500)) << "closing the day face leaves the night face open";
  EXPECT_FALSE(panels.shows(20));
  panels.close(27);
  EXPECT_FALSE(panels.shows(500));
  panels.open(500);
  EXPECT_TRUE(panels.shows(27)) << "it opens with the face it had";
  panels.open(20);
  panels.close(27);
  EXPECT_EQ(panels.face(0), Face::day);
  EXPECT_TRUE(panels.shows(500));
}

}  // namespace
