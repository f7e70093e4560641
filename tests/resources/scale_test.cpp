/// Printed scales and needles share one calibration.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "resources/bitmap_table.h"
#include "resources/kit/paint.h"
#include "resources/kit/records.h"

namespace artwork {
namespace {

double brightness(const Canvas& canvas, Point at) {
  const Pixels pixels = canvas.pixels();
  const int x = static_cast<int>(at.x * canvas.density());
  const int y = static_cast<int>(at.y * canvas.density());
  double most = 0;
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      const std::uint32_t pixel = pixels.at(x + dx, y + dy);
      most = std::max(most, ((pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF)) / 3.0);
    }
  }
  return most;
}

/// A mark is bright on the needle's line for its value, and the face is dark beside it.
struct PrintedMark {
  const char* gauge;
  int plate, needle, nth;
  double value, beside, radius;
};

class PrintedScale : public ::testing::TestWithParam<PrintedMark> {};

TEST_P(PrintedScale, StandsWhereTheNeedlePoints) {
  const PrintedMark& m = GetParam();
  const std::vector<Bitmap> table = bitmap_table();
  const auto plate =
      std::find_if(table.begin(), table.end(), [&](const Bitmap& b) { return b.id == m.plate; });
  ASSERT_NE(plate, table.end());
  const Canvas canvas = drawn(*plate, 3);
  const Element& needle = part(m.gauge, m.needle, m.nth);
  const Point pivot = place(m.gauge, m.needle, m.nth);
  EXPECT_GT(brightness(canvas, polar(pivot, m.radius, needle_angle(needle, m.value))), 150);
  EXPECT_LT(brightness(canvas, polar(pivot, m.radius, needle_angle(needle, m.beside))), 90);
}

INSTANTIATE_TEST_SUITE_P(Meters, PrintedScale,
                         ::testing::Values(PrintedMark{"Acdc", 340, 350, 0, -90, -75, 24.5},
                                           PrintedMark{"Acdc", 340, 350, 1, 66, 64.8, 24.5},
                                           PrintedMark{"Acdc", 340, 350, 2, 117.4, 106, 24.5},
                                           PrintedMark{"Acdc", 340, 350, 3, 30, 25, 24.5},
                                           PrintedMark{"Acload", 390, 410, 0, 25, 37, 22.5},
                                           PrintedMark{"Acload", 390, 410, 2, 75, 87, 22.5},
                                           PrintedMark{"Gendrive", 430, 440, 1, 11703, 12288, 23.5},
                                           PrintedMark{"Grdpsi", 1060, 1070, 0, 500, 530, 23.5},
                                           PrintedMark{"Ductc", 270, 280, 0, 50, 47, 22.8},
                                           PrintedMark{"Ductc", 270, 280, 1, 10, 13, 22.8},
                                           PrintedMark{"Cabvs", 1360, 1370, 0, -1500, -1250, 26},
                                           PrintedMark{"Cabvs", 1360, 1370, 0, 1500, 1750, 26},
                                           PrintedMark{"Icepsi", 1090, 1110, 1, 300, 325, 21.8},
                                           PrintedMark{"Airfoil", 1130, 1140, 0, 900, 930, 24.2},
                                           PrintedMark{"Diffpress", 1270, 1280, 0, 70, 66, 41},
                                           PrintedMark{"Diffpress", 1270, 24220, 0, 30000, 28750, 20.8},
                                           PrintedMark{"Cabalt", 1460, 1470, 0, 11000, 10750, 29},
                                           PrintedMark{"Apuins", 460, 470, 0, 750, 800, 26.5},
                                           PrintedMark{"Apuins", 460, 470, 1, 1000, 1050, 26.3}));

}  // namespace
}  // namespace artwork
