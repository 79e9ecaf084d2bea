// orvane-stock-check: measures all rows of the four lists and compares them with what chemistry
// requires; prints what it found, and exits with 1 if something is wrong. orvane-stock-check
// KEY...: only these rows. orvane-stock-check --bends FILE: writes docs/bends.md.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "stock_check/bends_page.h"
#include "stock_check/check.h"

namespace {

using namespace orvane::stock_check;

int WritePage(const std::string& name) {
  std::ofstream file(name, std::ios::binary);
  file << BendsPage(StockRows());
  if (file.flush()) return 0;
  std::cerr << name << " could not be written\n";
  return 1;
}

int Check(const std::vector<std::string>& keys) {
  std::size_t rows = 0, wrong = 0;
  for (const StockRow& row : StockRows()) {
    if (!keys.empty() && std::find(keys.begin(), keys.end(), row.Key) == keys.end()) continue;
    const Verdict verdict = CheckRow(row);
    std::cout << row.Text << "\n";
    for (const std::string& line : verdict.Found) std::cout << "  " << line << "\n";
    for (const std::string& line : verdict.Wrong) std::cout << "  WRONG: " << line << "\n";
    ++rows;
    wrong += verdict.Wrong.size();
  }
  std::cout << rows << " rows, " << wrong << " wrong\n";
  return rows > 0 && wrong == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> arguments(words + 1, words + count);
  if (!arguments.empty() && arguments[0] == "--bends") {
    if (arguments.size() == 2) return WritePage(arguments[1]);
    std::cerr << "usage: orvane-stock-check [KEY...] | --bends FILE\n";
    return 2;
  }
  return Check(arguments);
}
