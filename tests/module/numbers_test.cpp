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
  struct Row {
    f64 value;
    u32 whole_unsigned;
    i32 whole_signed;
  };
  const Row rows[] = {
      {0, 0, 0},
      {0.99, 0, 0},
      {-0.99, 0, 0},
      {7.9, 7, 7},
      {-7.9, 0, -7},
      {2147483647.5, 2147483647u, 2147483647},
      {2147483648.0, 2147483648u, 2147483647},
      {-2147483648.9, 0, -2147483647 - 1},
      {4294967295.0, 4294967295u, 2147483647},
      {1e300, 4294967295u, 2147483647},
      {-1e300, 0, -2147483647 - 1},
      {inf, 4294967295u, 2147483647},
      {-inf, 0, -2147483647 - 1},
      {nan, 0, 0},
      {5e-324, 0, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(whole_u32(row.value), row.whole_unsigned) << row.value;
    EXPECT_EQ(whole_i32(row.value), row.whole_signed) << row.value;
  }
}

TEST(Numbers, LimitsHoldForEveryValue) {
  for (const f64 value : {-inf, -1.0, nan}) EXPECT_EQ(limited(value, 2, 9), 2) << value;
  for (const f64 value : {inf, 9.0, 1e9}) EXPECT_EQ(limited(value, 2, 9), 9) << value;
  EXPECT_EQ(limited(3.5, 2, 9), 3.5);
}

}  // namespace
