/// Which pictures are drawn again when something has changed.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "resources/tool/keys.h"
#include "tests/resources/picture.h"
#include "tests/rig/temp_folder.h"

namespace artwork_test {
namespace {

namespace fs = std::filesystem;

/// Stands for the compiled code: a file for the kit and one for each unit.
class DrawnAgain : public ::testing::Test {
 protected:
  const TempFolder temp;
  const fs::path folder = temp.path();
  const DrawingCode code{folder / "kit", folder / "objects"};

  void SetUp() override {
    write("kit", "one");
    std::ofstream list(code.objects);
    for (const NamedUnit& each : units()) {
      const std::string object = std::string(each.file) + ".cpp.o";
      write(object, "one");
      list << (folder / object).string() << '\n';
    }
  }

  void write(const fs::path& file, std::string_view content) const {
    std::ofstream(folder / file) << content;
  }

  /// The gauges of which a picture gets another key when that file changes.
  std::set<std::string_view> after_change_of(const fs::path& file) const {
    const Keys before(code);
    write(file, "two");
    const Keys after(code);
    std::set<std::string_view> gauges;
    for (const Bitmap& each : bitmap_table()) {
      if (before.key(each, 1) == after.key(each, 1)) continue;
      gauges.insert(each.unit->gauge);
    }
    return gauges;
  }
};

TEST_F(DrawnAgain, IsOneGaugeForItsOwnUnit) {
  EXPECT_EQ(after_change_of("grdpsi.cpp.o"), (std::set<std::string_view>{"Grdpsi"}));
}

TEST_F(DrawnAgain, IsEverythingForTheKitAndForWhatGaugesShare) {
  EXPECT_GT(after_change_of("kit").size(), units().size() / 2);
  EXPECT_GT(after_change_of("switches.cpp.o").size(), units().size() / 2);
}

TEST_F(DrawnAgain, TellsBitmapsAndDensitiesApart) {
  const Keys keys(code);
  std::set<std::string> all;
  for (const Bitmap& each : bitmap_table()) {
    for (const int density : {1, 2, 3}) all.insert(keys.key(each, density));
  }
  EXPECT_EQ(all.size(), 3 * bitmap_table().size());
}

}  // namespace
}  // namespace artwork_test
