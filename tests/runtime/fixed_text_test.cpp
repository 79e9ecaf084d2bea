#include "runtime/fixed_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(FixedText, KeepsItsBlanksAndNoMoreThanItsWidth) {
  EXPECT_EQ(FixedText<5>("  CA "), "  CA ");
  EXPECT_EQ(FixedText<5>("abcdefg"), "abcde");
  EXPECT_EQ(FixedText<3>("A"), "A");
}

TEST(FixedText, IsEmptyUntilWritten) { EXPECT_EQ(FixedText<5>(), ""); }

TEST(FixedText, ComparesWholeBlanksIncluded) {
  EXPECT_FALSE(FixedText<5>("  O  ") == "  O");
  EXPECT_TRUE(FixedText<5>("  O  ") == FixedText<5>("  O  "));
  EXPECT_FALSE(FixedText<5>("  O  ") == FixedText<5>("  O"));
}

}  // namespace
}  // namespace orvane
