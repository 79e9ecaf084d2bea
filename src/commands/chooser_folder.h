// What the lists of the music chooser show of the disk. A folder that cannot be read has no rows,
// and words for the user that say why.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

struct FolderRows {
  struct Row {
    std::string Name, Path;
  };
  // From the root down to the open folder, then the folders in it by name.
  std::vector<Row> Rows;
  int Open = -1;        // the row of the open folder; -1: none is open
  std::string Trouble;  // why the folders in it could not be read; empty: they were
};
FolderRows FoldersAt(std::string_view path);

struct FileRows {
  std::vector<std::string> Names;
  std::string Trouble;
};
// Sorted by name, those that fit one of the patterns, "*.wav;*.au", in upper or lower case.
FileRows FilesAt(std::string_view path, std::string_view patterns);

}  // namespace orvane
