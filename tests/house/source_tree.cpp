#include "house/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace orvane::house {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = ORVANE_SOURCE_DIR;

// The words between back quotes: names of folders and files in the map.
std::vector<std::string> Quoted(const std::string& cell) {
  static const std::regex name("`([^`]*)`");
  std::vector<std::string> names;
  for (auto it = std::sregex_iterator(cell.begin(), cell.end(), name); it != std::sregex_iterator();
       ++it) {
    names.push_back((*it)[1]);
  }
  return names;
}

std::vector<std::string> Cells(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream text(row.substr(1));
  for (std::string cell; std::getline(text, cell, '|');) cells.push_back(cell);
  return cells;
}

// The rows of the table whose first line begins so:
// | `core` | what it owns | `core/molecule.h` | `runtime`, `controls` |
std::vector<MapRow> RowsUnder(std::string_view head) {
  constexpr std::size_t kRoom = 0, kChief = 2, kMayInclude = 3, kColumns = 4;
  std::vector<MapRow> rows;
  std::istringstream text(ReadProjectFile("docs/architecture.md"));
  std::string line;
  while (std::getline(text, line) && !line.starts_with(head)) {
  }
  std::getline(text, line);  // the rule under the headings
  while (std::getline(text, line) && line.starts_with("|")) {
    const auto cells = Cells(line);
    if (cells.size() < kColumns || Quoted(cells[kRoom]).empty()) continue;
    const auto chief = Quoted(cells[kChief]);
    rows.push_back({Quoted(cells[kRoom]).front(), chief.empty() ? "" : chief.front(),
                    Quoted(cells[kMayInclude])});
  }
  return rows;
}

}  // namespace

std::string RoomOf(std::string_view path) { return std::string(path.substr(0, path.find('/'))); }

std::vector<std::string> RoomsOnDisk() {
  std::vector<std::string> rooms;
  for (const auto& entry : fs::directory_iterator(kRoot / "src")) {
    if (entry.is_directory()) rooms.push_back(entry.path().filename().string());
  }
  std::sort(rooms.begin(), rooms.end());
  return rooms;
}

std::vector<std::string> Headers() {
  std::vector<std::string> headers;
  for (const char* folder : {"src", "tests", "tools"}) {
    for (const auto& entry : fs::recursive_directory_iterator(kRoot / folder)) {
      if (entry.path().extension() != ".h") continue;
      headers.push_back(fs::relative(entry.path(), kRoot).generic_string());
    }
  }
  std::sort(headers.begin(), headers.end());
  return headers;
}

std::vector<std::string> Sources() {
  std::vector<std::string> sources;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / "src")) {
    const auto kind = entry.path().extension();
    if (kind != ".h" && kind != ".cpp") continue;
    sources.push_back(fs::relative(entry.path(), kRoot / "src").generic_string());
  }
  std::sort(sources.begin(), sources.end());
  return sources;
}

std::vector<Inclusion> Inclusions() {
  static const std::regex include(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
  std::vector<Inclusion> found;
  for (const std::string& from : Sources()) {
    std::ifstream file(kRoot / "src" / from);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
      ++number;
      std::smatch match;
      if (std::regex_search(line, match, include)) {
        found.push_back({from, match[2], match[1] == "\"", number});
      }
    }
  }
  return found;
}

std::string ReadProjectFile(std::string_view path) {
  std::ifstream file(kRoot / path);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool ProjectHas(std::string_view path) { return fs::exists(kRoot / path); }

std::string PartOf(std::string_view path) {
  const auto first = path.find('/'), second = path.find('/', first + 1);
  if (first == path.npos || second == path.npos) return "";
  return std::string(path.substr(first + 1, second - first - 1));
}

std::vector<MapRow> Map() { return RowsUnder("| Folder |"); }
std::vector<MapRow> MapOfDesktop() { return RowsUnder("| Part |"); }

}  // namespace orvane::house
