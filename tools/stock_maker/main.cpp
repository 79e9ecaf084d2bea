// orvane-stock-maker TABLES SOURCE: builds every stock text from the tables in the folder TABLES
// and writes them as the C++ file SOURCE. If a table is refused, it writes nothing.
#include <fstream>
#include <iostream>

#include "stock_maker/source.h"
#include "stock_maker/table.h"

int main(int argc, char** argv) {
  using namespace orvane::stock_maker;
  if (argc != 3) {
    std::cerr << "usage: orvane-stock-maker TABLES SOURCE\n";
    return 2;
  }
  try {
    const std::string source = SourceOf(MakeTexts(argv[1]));
    std::ofstream file(argv[2], std::ios::binary);
    file << source << std::flush;
    if (!file) Refuse(argv[2], "cannot be written");
  } catch (const Refusal& refusal) {
    std::cerr << "orvane-stock-maker: " << refusal.what() << "\n";
    return 1;
  }
  return 0;
}
