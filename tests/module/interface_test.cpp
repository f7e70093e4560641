/// The interface header stands alone in C++20 and declares the same records to both languages.
#include "interface/panel_interface.h"

#include <gtest/gtest.h>

#include <type_traits>

extern "C" u32 interface_c_version(void);

namespace {

TEST(Interface, RecordsArePlainInBothLanguages) {
  EXPECT_TRUE(std::is_trivial_v<Element> && std::is_standard_layout_v<Element>);
  EXPECT_TRUE(std::is_trivial_v<MouseArea> && std::is_standard_layout_v<MouseArea>);
  EXPECT_TRUE(std::is_trivial_v<GaugeHeader> && std::is_standard_layout_v<GaugeHeader>);
  EXPECT_EQ(interface_c_version(), GAUGE_HEADER_VERSION);
}

}  // namespace
