#include "commands/chooser_folder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace orvane {
namespace {

namespace fs = std::filesystem;

std::string WordsFor(const std::error_code& error) {
  if (error == std::errc::permission_denied) return "You may not read this folder.";
  if (error == std::errc::no_such_file_or_directory) return "This folder is not there any more.";
  if (error == std::errc::not_a_directory) return "This is not a folder.";
  return "This folder cannot be read: " + error.message() + ".";
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// "*" stands for any letters and "?" for one.
bool Fits(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    return Fits(name, pattern.substr(1)) || (!name.empty() && Fits(name.substr(1), pattern));
  }
  if (name.empty()) return false;
  const bool same = pattern.front() == '?' || Lower(pattern.front()) == Lower(name.front());
  return same && Fits(name.substr(1), pattern.substr(1));
}

bool FitsOneOf(std::string_view name, std::string_view patterns) {
  while (!patterns.empty()) {
    const auto end = std::min(patterns.find(';'), patterns.size());
    if (Fits(name, patterns.substr(0, end))) return true;
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  return false;
}

bool IsHidden(std::string_view name) { return name.starts_with('.'); }

// The names in a folder that `wanted` accepts, sorted.
template <class Wanted>
std::vector<std::string> NamesIn(const fs::path& folder, std::string& trouble, Wanted wanted) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  while (!error && entry != fs::directory_iterator()) {
    const std::string name = entry->path().filename().string();
    if (!IsHidden(name) && wanted(*entry, name)) names.push_back(name);
    entry.increment(error);
  }
  if (error) trouble = WordsFor(error);
  std::sort(names.begin(), names.end());
  return names;
}

// Absolute, without "..", and without a trailing separator.
fs::path Whole(std::string_view path) {
  std::error_code error;
  fs::path whole = fs::absolute(fs::path(path), error).lexically_normal();
  return whole.has_filename() || whole == whole.root_path() ? whole : whole.parent_path();
}

}  // namespace

FolderRows FoldersAt(std::string_view path) {
  FolderRows rows;
  if (path.empty()) return rows;
  const fs::path open = Whole(path);
  fs::path way;
  for (const fs::path& part : open) {
    way /= part;
    rows.Rows.push_back({part.string(), way.string()});
  }
  rows.Open = static_cast<int>(rows.Rows.size()) - 1;
  const auto is_folder = [](const fs::directory_entry& entry, const std::string&) {
    std::error_code unknown;
    return entry.is_directory(unknown);
  };
  for (const std::string& name : NamesIn(open, rows.Trouble, is_folder)) {
    rows.Rows.push_back({name, (open / name).string()});
  }
  return rows;
}

FileRows FilesAt(std::string_view path, std::string_view patterns) {
  FileRows rows;
  if (path.empty()) return rows;
  rows.Names = NamesIn(Whole(path), rows.Trouble,
                       [&](const fs::directory_entry& entry, const std::string& name) {
                         std::error_code unknown;
                         return FitsOneOf(name, patterns) && entry.is_regular_file(unknown);
                       });
  return rows;
}

}  // namespace orvane
