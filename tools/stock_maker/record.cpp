#include "stock_maker/record.h"

#include <cmath>

#include "stock_maker/table.h"

namespace orvane::stock_maker {

namespace {

// Right-aligned in its columns; `name` is the field's, for the message.
std::string Column(const AtomRecord& record, const char* name, const std::string& text,
                   std::size_t width) {
  if (text.size() > width) {
    Refuse("record " + std::to_string(record.serial) + ", atom " + record.atom + " of " +
               record.residue + " " + std::to_string(record.number),
           std::string(name) + " \"" + text + "\" is wider than its " + std::to_string(width) +
               " columns");
  }
  return std::string(width - text.size(), ' ') + text;
}

std::string Thousandths(double value) {
  const long long whole = std::llround(value * 1000);
  const long long size = std::llabs(whole);
  std::string digits = std::to_string(size);
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  digits.insert(digits.size() - 3, ".");
  return whole < 0 ? "-" + digits : digits;
}

}  // namespace

std::string WriteRecord(const AtomRecord& record) {
  Column(record, "atom name", record.atom,
         3);  // only to refuse it; the name itself is aligned to the left
  const std::string name = record.atom + std::string(3 - record.atom.size(), ' ');
  return "ATOM" + Column(record, "serial number", std::to_string(record.serial), 7) + "  " + name +
         " " + Column(record, "residue name", record.residue, 3) + " " + record.chain +
         Column(record, "residue number", std::to_string(record.number), 4) + "    " +
         Column(record, "x", Thousandths(record.at.x), 8) +
         Column(record, "y", Thousandths(record.at.y), 8) +
         Column(record, "z", Thousandths(record.at.z), 8) + " ";
}

}  // namespace orvane::stock_maker
