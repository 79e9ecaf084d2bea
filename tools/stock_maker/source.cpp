#include "stock_maker/source.h"

#include "stock_maker/record.h"

namespace orvane::stock_maker {

namespace {

constexpr const char* kHead =
    R"(// Written by orvane-stock-maker from tools/stock_maker/tables; change those, not this.
#include "stock/stock_texts.h"

namespace orvane::stock {

// clang-format off
)";

constexpr const char* kRuler = R"(   //         1         2         3         4         5
   //123456789012345678901234567890123456789012345678901234 5
)";

constexpr const char* kFoot = R"(
// clang-format on

}  // namespace orvane::stock
)";

}  // namespace

std::string SourceOf(const std::vector<StockText>& texts) {
  std::string source = kHead;
  for (const StockText& text : texts) {
    source += "\nconst std::string_view " + text.name + " =\n" + kRuler;
    for (std::size_t at = 0; at < text.records.size(); at += kRecordLength) {
      const bool last = at + kRecordLength >= text.records.size();
      source += "    \"" + text.records.substr(at, kRecordLength) + (last ? "\";\n" : "\"\n");
    }
  }
  return source + kFoot;
}

}  // namespace orvane::stock_maker
