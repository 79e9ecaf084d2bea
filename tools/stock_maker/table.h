// The maker's tables: tab-separated text with `#` comments. The first other line names the columns.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::stock_maker {

// Ends a run of the maker: `what()` names the table and the row, or the record, that is wrong.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One row of a table; `place` ("places.tsv, line 14") is for messages.
struct Row {
  std::string place;
  const std::vector<std::string>* columns = nullptr;
  std::vector<std::string> fields;
};

struct Table {
  std::string name;
  std::vector<std::string> columns;
  std::vector<Row> rows;

  Table() = default;
  Table(const Table&) = delete;  // rows point at the columns
  Table& operator=(const Table&) = delete;
};

// Fills a table from its text; refuses a row that does not have one field for each column.
void ReadTable(Table& table, std::string name, std::string_view text);
// The same from a file in a folder; refuses a file that cannot be read.
void ReadTableFile(Table& table, const std::string& folder, const std::string& name);

// The field of a column; refuses a column that the table does not have.
const std::string& Field(const Row& row, std::string_view column);
// The field as a number, and as a whole number; anything else is refused.
double Number(const Row& row, std::string_view column);
int Whole(const Row& row, std::string_view column);
// The words of a field, separated by blanks.
std::vector<std::string> Words(const Row& row, std::string_view column);

[[noreturn]] void Refuse(const std::string& place, const std::string& why);

}  // namespace orvane::stock_maker
