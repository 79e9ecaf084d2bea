// Checks that everything that the pages of the project point to is there.
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Pages() {
  std::vector<std::string> pages{"README.md", "CONTRIBUTING.md"};
  const fs::path root = ORVANE_SOURCE_DIR;
  for (const auto& entry : fs::recursive_directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md") {
      pages.push_back(fs::relative(entry.path(), root).generic_string());
    }
  }
  return pages;
}

// Where the links and pictures of a page lead, as paths of the project, without links to the web.
std::vector<std::string> Targets(const std::string& page) {
  static const std::regex link(R"(\]\(([^)#\s]+)(#[^)]*)?\))");
  const std::string text = ReadProjectFile(page);
  std::vector<std::string> targets;
  for (auto it = std::sregex_iterator(text.begin(), text.end(), link); it != std::sregex_iterator();
       ++it) {
    const std::string target = (*it)[1];
    if (target.find("://") != std::string::npos) continue;
    targets.push_back((fs::path(page).parent_path() / target).lexically_normal().generic_string());
  }
  return targets;
}

TEST(ThePages, PointToFilesThatExist) {
  for (const std::string& page : Pages()) {
    ASSERT_FALSE(ReadProjectFile(page).empty()) << page;
    for (const std::string& target : Targets(page)) {
      EXPECT_TRUE(ProjectHas(target)) << page << " points to " << target;
    }
  }
}

// Each picture makes a checkout larger, so it must be shown on a page.
TEST(ThePictures, AreEachShownOnAPage) {
  std::set<std::string> shown;
  for (const std::string& page : Pages()) {
    for (const std::string& target : Targets(page)) shown.insert(target);
  }
  const fs::path root = ORVANE_SOURCE_DIR;
  int pictures = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root / "docs")) {
    const std::string kind = entry.path().extension().string();
    if (kind != ".png" && kind != ".svg" && kind != ".gif" && kind != ".jpg") continue;
    ++pictures;
    const std::string path = fs::relative(entry.path(), root).generic_string();
    EXPECT_TRUE(shown.contains(path)) << "no page shows " << path;
  }
  EXPECT_GT(pictures, 10);
}

// A header or source that a page names in back quotes, "draw/surface.h".
TEST(ThePages, NameOnlyFilesOfTheCodeThatExist) {
  static const std::regex name("`(?:src/)?([a-z_]+/[a-z_0-9/]+\\.(?:h|cpp))`");
  for (const std::string& page : Pages()) {
    const std::string text = ReadProjectFile(page);
    for (auto it = std::sregex_iterator(text.begin(), text.end(), name);
         it != std::sregex_iterator(); ++it) {
      const std::string file = (*it)[1];
      const bool outside = file.starts_with("tests/") || file.starts_with("tools/");
      EXPECT_TRUE(ProjectHas(outside ? file : "src/" + file)) << page << " names " << file;
    }
  }
}

}  // namespace
}  // namespace orvane::house
