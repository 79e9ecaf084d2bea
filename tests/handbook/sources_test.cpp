// docs/sources.md: each source is used, each link to one leads to it, and its name there is its
// name here.

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

#include "house/source_tree.h"

namespace orvane {
namespace {

// "Engh Huber 1991" to "engh-huber-1991", as the links have it.
std::string AnchorOf(const std::string& heading) {
  std::string anchor;
  for (const char letter : heading) {
    if (letter == ' ') {
      anchor += '-';
    } else {
      anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
  }
  return anchor;
}

std::set<std::string> Sources() {
  std::set<std::string> anchors;
  std::istringstream page(house::ReadProjectFile("docs/sources.md"));
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("### ")) anchors.insert(AnchorOf(line.substr(4)));
  }
  return anchors;
}

// All pages but the list itself, each in one line.
std::string AllPages() {
  namespace fs = std::filesystem;
  std::string text;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(ORVANE_SOURCE_DIR) / "docs")) {
    if (entry.path().extension() != ".md" || entry.path().filename() == "sources.md") continue;
    const std::string path = fs::relative(entry.path(), ORVANE_SOURCE_DIR).generic_string();
    std::istringstream words(house::ReadProjectFile(path));
    for (std::string word; words >> word;) text += word + " ";
  }
  return text;
}

TEST(TheSources, AreEachLinkedToAndEachLinkLeadsToOne) {
  const std::set<std::string> sources = Sources();
  EXPECT_GT(sources.size(), 20u);
  const std::string pages = AllPages();
  const std::regex link(R"(\[([^\]]+)\]\([^)]*sources\.md#([a-z0-9-]+)\))");
  std::set<std::string> used;
  for (std::sregex_iterator it(pages.begin(), pages.end(), link), end; it != end; ++it) {
    const std::string words = (*it)[1], anchor = (*it)[2];
    EXPECT_TRUE(sources.contains(anchor)) << anchor;
    used.insert(anchor);
    // Where the words give a year, they are the name of the source.
    if (words.find_first_of("0123456789") != std::string::npos) {
      EXPECT_EQ(AnchorOf(words), anchor);
    }
  }
  EXPECT_EQ(used, sources);
}

// Each has a year, and where it stands: a page, a chapter, a table, or a book.
TEST(TheSources, SayWhereTheyStand) {
  std::istringstream page(house::ReadProjectFile("docs/sources.md"));
  std::string heading, text;
  const auto look = [&] {
    if (heading.empty()) return;
    const std::string year = heading.substr(heading.size() - 4);
    EXPECT_NE(text.find(year), std::string::npos) << heading;
    EXPECT_TRUE(std::regex_search(text, std::regex("page|chapter|table|Springer"))) << heading;
  };
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("#")) {
      look();
      heading = line.starts_with("### ") ? line.substr(4) : "";
      text.clear();
    }
    text += line + "\n";
  }
  look();
}

}  // namespace
}  // namespace orvane
