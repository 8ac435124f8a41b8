#include "station/screen/grid.h"

#include <gmock/gmock.h>

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;

TEST(Grid, SortIsByBytesAndKeepsEqualRows) {
  const std::vector<GridRow> rows = {{"1", "b"}, {"2", "a"},    {"3", "B"},
                                     {"4", "a"}, {"5", "\xC9"}, {"6", ""}};
  EXPECT_THAT(SortedOrder(rows, 1), ElementsAre(5U, 2U, 1U, 3U, 0U, 4U));
}

}  // namespace
}  // namespace quixair::testing
