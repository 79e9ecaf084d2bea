// The page docs/bends.md: what is bent in the twenty amino acids, in a teacher's words and in
// numbers, and what to measure instead.
#pragma once

#include <string>
#include <vector>

#include "stock_check/bends.h"
#include "stock_check/stock_row.h"

namespace orvane::stock_check {

std::string BendsPage(const std::vector<StockRow>& rows);

// A bend as the page names it, "CD - NE - CZ", and the measured and the true value as they are
// written, "142.5".
std::string MeasureWords(const Bend& bend);
std::string DrawnWords(const Bend& bend);
std::string TrueWords(const Bend& bend);

// Bends that nearly all of the residues share are given once, at the top of the page.
bool IsCommon(const Bend& bend);

}  // namespace orvane::stock_check
