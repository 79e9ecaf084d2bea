// A structure on the desk, chosen from its list as by a student.
#pragma once

#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {

// The row of the list that begins like this.
inline void Choose(DeskAtWork& work, List& list, std::string_view start) {
  const auto& rows = list.Rows.Get();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].starts_with(start)) return SelectRow(work.desk, list, static_cast<int>(row));
  }
  FAIL() << "no row " << start;
}

}  // namespace orvane
