#include "host/outside/coverage.h"

#include <gtest/gtest.h>

#include <numeric>

namespace host::outside {
namespace {

constexpr int width = 40, height = 30;

/// What a polygon covers of every pixel.
std::vector<double> covered(Coverage& coverage, const std::vector<PicturePoint>& polygon) {
  std::vector<double> pixels(width * height);
  coverage.each_row(
      polygon,
      [&](int y, int x, std::span<const float> shares) {
        for (const float share : shares) pixels.at(static_cast<std::size_t>(y * width + x++)) += share;
      },
      [&](int y, int x, int count) {
        for (; count > 0; --count) pixels.at(static_cast<std::size_t>(y * width + x++)) += 1.0;
      });
  return pixels;
}

double area(const std::vector<PicturePoint>& polygon) {
  double twice = 0.0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const PicturePoint a = polygon[i], b = polygon[(i + 1) % polygon.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return std::abs(twice) / 2.0;
}

TEST(Coverage, AddsUpToThePolygonsAreaHoweverThinItIs) {
  Coverage coverage(width, height);
  const std::vector<std::vector<PicturePoint>> polygons{
      {{3, 2}, {30, 2}, {30, 20}, {3, 20}},                  // on the pixels' corners
      {{3.3, 2.7}, {30.1, 4.2}, {25.5, 20.9}, {1.2, 15.5}},  // askew
      {{1.2, 15.5}, {25.5, 20.9}, {30.1, 4.2}, {3.3, 2.7}},  // the other way round
      {{0, 10.4}, {40, 10.45}, {40, 10.5}, {0, 10.47}},      // a twentieth of a pixel high
      {{20.10, 0}, {20.14, 0}, {22.9, 30}, {22.8, 30}},
      {{5.2, 5.2}, {5.4, 5.2}, {5.4, 5.4}},  // inside one pixel
      {{0, 0}, {40, 0}, {40, 30}, {0, 30}},  // the whole picture
  };
  for (std::size_t i = 0; i < polygons.size(); ++i) {
    const std::vector<double> pixels = covered(coverage, polygons[i]);
    const double sum = std::accumulate(pixels.begin(), pixels.end(), 0.0);
    EXPECT_NEAR(sum, area(polygons[i]), 2e-3 * area(polygons[i]) + 1e-3) << "polygon " << i;
    EXPECT_LE(*std::ranges::max_element(pixels), 1.0 + 1e-6) << "polygon " << i;
  }
}

TEST(Coverage, KnowsEachPixelsShare) {
  Coverage coverage(width, height);
  const std::vector<double> pixels = covered(coverage, {{2, 1}, {6, 1}, {6, 5}});  // a right triangle
  EXPECT_NEAR(pixels[1 * width + 2], 0.5, 1e-6);
  EXPECT_NEAR(pixels[1 * width + 4], 1.0, 1e-6);
  EXPECT_NEAR(pixels[4 * width + 5], 0.5, 1e-6);
  EXPECT_EQ(pixels[4 * width + 3], 0.0);
}

}  // namespace
}  // namespace host::outside
