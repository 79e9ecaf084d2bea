// The form in which a replay writes numbers and texts.
#include "replay/json_line.h"

#include <gtest/gtest.h>
#include <limits>

namespace orvane {
namespace {

std::string NumberText(double value, int digits = kDoubleDigits) {
  std::string text;
  AppendNumber(text, value, digits);
  return text;
}

// The nearest doubles to 0.1 and to 1/3, to 17 digits: 0.1000000000000000055 and
// 0.33333333333333331.
TEST(NumberText, IsThatOfPrintfWithSeventeenDigits) {
  EXPECT_EQ(NumberText(0.1), "0.10000000000000001");
  EXPECT_EQ(NumberText(1.0 / 3.0), "0.33333333333333331");
  EXPECT_EQ(NumberText(360), "360");
  EXPECT_EQ(NumberText(-80), "-80");
  EXPECT_EQ(NumberText(0.00001), "1.0000000000000001e-05");
  EXPECT_EQ(NumberText(1e20), "1e+20");
}

// The nearest float to 0.1 is 0.100000001490116.
TEST(NumberText, OfASingleHasNineDigits) {
  EXPECT_EQ(NumberText(0.1F, kSingleDigits), "0.100000001");
  EXPECT_EQ(NumberText(180.5F, kSingleDigits), "180.5");
}

TEST(NumberText, OfWhatIsNotANumberIsNull) {
  EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(NumberText(std::numeric_limits<double>::quiet_NaN()), "null");
}

TEST(TextInQuotes, EscapesWhatJsonWantsEscaped) {
  EXPECT_EQ(TextInQuotes("a\n\"b\"\\"), R"("a\n\"b\"\\")");
  EXPECT_EQ(TextInQuotes("ÎØÃ"), "\"ÎØÃ\"");
}

TEST(TextInQuotes, ReplacesBytesThatAreNotUtf8) {
  EXPECT_EQ(TextInQuotes("\xFF"), "\"\xEF\xBF\xBD\"");  // U+FFFD
}

TEST(ObjectLine, KeepsTheOrderInWhichNamesCome) {
  ObjectLine line;
  line.Number("b", 1);
  line.String("a", "x");
  line.Array("c", 2, [](std::string& text, int i) { AppendNumber(text, i); });
  line.Array("d", 0, [](std::string& text, int i) { AppendNumber(text, i); });
  EXPECT_EQ(line.Closed(), R"({"b":1,"a":"x","c":[0,1],"d":[]})");
}

}  // namespace
}  // namespace orvane
