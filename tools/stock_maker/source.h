// The C++ source in which the program keeps the texts.
#pragma once

#include <string>
#include <vector>

#include "stock_maker/texts.h"

namespace orvane::stock_maker {

// src/stock/stock_texts.cpp to the byte: one record to a line, under a column ruler.
std::string SourceOf(const std::vector<StockText>& texts);

}  // namespace orvane::stock_maker
