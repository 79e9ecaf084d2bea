#include "handbook/rows_on_page.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

#include "house/source_tree.h"

namespace orvane {
namespace {

std::string AfterHead(const std::string& line, const std::string& head) {
  EXPECT_TRUE(line.starts_with(head)) << line;
  return line.substr(std::min(head.size(), line.size()));
}

std::string JoinedLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    const std::size_t start = line.find_first_not_of(' ');
    text += (text.empty() ? "" : " ") + line.substr(std::min(start, line.size()));
  }
  return text;
}

}  // namespace

std::vector<RowOnPage> RowsOnPage() {
  // Paragraphs; one that begins with a row's text is followed by the one with its three lines.
  std::vector<std::vector<std::string>> paragraphs(1);
  std::istringstream page(house::ReadProjectFile("docs/structures.md"));
  for (std::string line; std::getline(page, line);) {
    if (line.empty()) {
      paragraphs.emplace_back();
    } else {
      paragraphs.back().push_back(line);
    }
  }
  std::vector<RowOnPage> rows;
  for (std::size_t i = 0; i + 1 < paragraphs.size(); ++i) {
    const std::string text = paragraphs[i].empty() ? "" : JoinedLines(paragraphs[i]);
    const std::size_t end = text.find("`:");
    if (!text.starts_with("`") || end == std::string::npos) continue;
    RowOnPage row;
    row.Title = text.substr(1, end - 1);
    row.Key = row.Title.substr(0, row.Title.find(' '));
    row.Text = text.substr(end + 3);
    std::vector<std::vector<std::string>> bullets;
    for (const std::string& line : paragraphs[i + 1]) {
      if (line.starts_with("- ")) bullets.emplace_back();
      if (!bullets.empty()) bullets.back().push_back(line);
    }
    EXPECT_EQ(bullets.size(), 3u) << row.Title;
    if (bullets.size() == 3) {
      row.Look = AfterHead(JoinedLines(bullets[0]), "- *Look at this:* ");
      row.Measure = AfterHead(JoinedLines(bullets[1]), "- *Measure this:* ");
      row.Doubt = AfterHead(JoinedLines(bullets[2]), "- *Do not believe this:* ");
    }
    rows.push_back(row);
  }
  return rows;
}

std::vector<std::string> SplitAt(const std::string& text, const std::string& mark) {
  std::vector<std::string> parts;
  std::size_t from = 0;
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, from)) {
    parts.push_back(text.substr(from, at - from));
    from = at + mark.size();
  }
  parts.push_back(text.substr(from));
  return parts;
}

}  // namespace orvane
