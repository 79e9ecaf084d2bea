// Every text that the program compiles in, built from the tables.
#pragma once

#include <string>
#include <vector>

namespace orvane::stock_maker {

// One constant of the program: its name and its records back to back. The last record has its
// closing blank only if another piece follows or the text ends in a blank.
struct StockText {
  std::string name;
  std::string records;
};

// Builds all of them in the order of fixed_texts.tsv and texts.tsv. Refuses anything in the tables
// of `folder` that does not fit, with a message that names the table and row or the record.
std::vector<StockText> MakeTexts(const std::string& folder);

}  // namespace orvane::stock_maker
