// The page for teachers has a paragraph for every row of the lists.

#include <gtest/gtest.h>

#include "desk_fixture.h"
#include "house/source_tree.h"

namespace orvane {
namespace {

TEST(StructuresPage, TellsOfEveryRowOfTheLists) {
  const std::string page = house::ReadProjectFile("docs/structures.md");
  DeskAtWork work;
  std::size_t rows = 0;
  for (const List* list : {&work.desk.main.AA_Lst, &work.desk.main.Pro_Lst, &work.desk.main.Nuc_Lst,
                           &work.desk.main.DNA_Lst}) {
    for (const std::string& row : list->Rows.Get()) {
      EXPECT_NE(page.find("\n\n`" + row + "`:"), std::string::npos) << row;
      ++rows;
    }
  }
  EXPECT_EQ(rows, 46u);  // 21 + 7 + 15 + 3
}

}  // namespace
}  // namespace orvane
