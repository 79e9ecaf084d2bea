#include "runtime/slots.h"

#include <gtest/gtest.h>
#include <memory>

namespace orvane {
namespace {

TEST(Slots, ReachFrom0To30000) {
  const auto slots = std::make_unique<Slots<int>>();
  (*slots)[0] = 1;
  (*slots)[30000] = 2;
  EXPECT_EQ((*slots)[0], 1);
  EXPECT_EQ((*slots)[30000], 2);
}

TEST(Slots, RefuseEveryOtherSubscript) {
  const auto slots = std::make_unique<Slots<int>>();
  const Slots<int>& read_only = *slots;
  EXPECT_THROW((*slots)[30001], Failure);
  EXPECT_THROW((*slots)[-1], Failure);
  EXPECT_THROW((void)read_only[30001], Failure);
}

TEST(Slots, BeginEmpty) {
  const auto slots = std::make_unique<Slots<double>>();
  EXPECT_EQ((*slots)[1], 0.0);
  EXPECT_EQ((*slots)[30000], 0.0);
}

TEST(Slots, TheFailureNamesThePlace) {
  const auto slots = std::make_unique<Slots<int>>();
  try {
    (*slots)[30001] = 1;
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_STREQ(failure.what(), "place 30001 of a list was asked for, which it does not have");
  }
}

}  // namespace
}  // namespace orvane
