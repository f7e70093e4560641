#include "host/app/columns.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

TEST(Columns, AlignTextsLeftAndNumbersRight) {
  Columns columns({"n", "name", "unit"});
  columns.add({"7", "speed", "kt"});
  columns.add({"120", "gear", ""});
  EXPECT_EQ(columns.text(), "  n  name   unit\n  7  speed  kt\n120  gear\n");
}

}  // namespace
