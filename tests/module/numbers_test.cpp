/// Any double becomes a defined number.
#include "module/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace tarnvale;
constexpr f64 nan = std::numeric_limits<f64>::quiet_NaN();
constexpr f64 inf = std::numeric_limits<f64>::infinity();

TEST(Numbers, WholeNumbersTruncateTowardZeroAndStayInRange) {
  constexpr u32 most = 4294967295;
  constexpr i32 highest = 2147483647, lowest = -2147483647 - 1;
  const std::tuple<f64, u32, i32> rows[] = {
      {0, 0, 0},
      {0.99, 0, 0},
      {-0.99, 0, 0},
      {7.9, 7, 7},
      {-7.9, 0, -7},
      {2147483647.5, 2147483647, highest},
      {2147483648.0, 2147483648, highest},
      {-2147483648.9, 0, lowest},
      {4294967295.0, most, highest},
      {1e300, most, highest},
      {-1e300, 0, lowest},
      {inf, most, highest},
      {-inf, 0, lowest},
      {nan, 0, 0},
      {5e-324, 0, 0},
  };
  for (const auto& [value, whole_unsigned, whole_signed] : rows) {
    EXPECT_EQ(whole_u32(value), whole_unsigned) << value;
    EXPECT_EQ(whole_i32(value), whole_signed) << value;
  }
}

TEST(Numbers, LimitsHoldForEveryValue) {
  for (const f64 value : {-inf, -1.0, nan}) EXPECT_EQ(limited(value, 2, 9), 2) << value;
  for (const f64 value : {inf, 9.0, 1e9}) EXPECT_EQ(limited(value, 2, 9), 9) << value;
  EXPECT_EQ(limited(3.5, 2, 9), 3.5);
}

}  // namespace
