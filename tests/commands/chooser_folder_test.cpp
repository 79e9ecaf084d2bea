#include "commands/chooser_folder.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace orvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ChooserFolder : testing::Test {
  fs::path folder;

  ChooserFolder() {
    std::string name = (fs::temp_directory_path() / "orvane-chooser-XXXXXX").string();
    folder = mkdtemp(name.data());
  }
  ~ChooserFolder() override {
    std::error_code gone;
    fs::permissions(folder, fs::perms::owner_all, gone);
    fs::remove_all(folder, gone);
  }
  void File(const std::string& name) const { std::ofstream(folder / name) << "x"; }
  void Folder(const std::string& name) const { fs::create_directory(folder / name); }

  std::vector<std::string> Inside() const {
    const FolderRows rows = FoldersAt(folder.string());
    std::vector<std::string> names;
    for (std::size_t i = static_cast<std::size_t>(rows.Open) + 1; i < rows.Rows.size(); ++i) {
      names.push_back(rows.Rows[i].Name);
    }
    return names;
  }
};

TEST_F(ChooserFolder, IsTheLastOfTheWayDownFromTheRoot) {
  const FolderRows rows = FoldersAt((folder / "").string());

  ASSERT_GE(rows.Open, 1);
  EXPECT_EQ(rows.Rows.front().Name, "/");
  EXPECT_EQ(rows.Rows.front().Path, "/");
  const auto& open = rows.Rows[static_cast<std::size_t>(rows.Open)];
  EXPECT_EQ(open.Name, folder.filename().string());
  EXPECT_EQ(open.Path, folder.string());
  EXPECT_EQ(rows.Trouble, "");
}

TEST_F(ChooserFolder, ShowsItsFoldersByNameWithoutHiddenOnesAndFiles) {
  Folder("b");
  Folder("B");
  Folder("a c");
  Folder(".hidden");
  File("file");
  fs::create_directory_symlink("b", folder / "link");
  fs::create_directory_symlink("nowhere", folder / "broken");

  EXPECT_THAT(Inside(), ElementsAre("B", "a c", "b", "link"));
  const FolderRows rows = FoldersAt(folder.string());
  EXPECT_EQ(rows.Rows.back().Path, (folder / "link").string());
}

TEST_F(ChooserFolder, ShowsTheFilesThatFitAPatternInEitherCase) {
  for (const char* name : {"b.wav", "A.WAV", "c.mid", "d.txt", ".e.wav", "wav", "f.wav.bak"}) {
    File(name);
  }
  Folder("g.wav");

  EXPECT_THAT(FilesAt(folder.string(), "*.wav;*.mid").Names,
              ElementsAre("A.WAV", "b.wav", "c.mid"));
  EXPECT_THAT(FilesAt(folder.string(), "?.mid").Names, ElementsAre("c.mid"));
  EXPECT_THAT(FilesAt(folder.string(), "").Names, IsEmpty());
}

// A name is bytes to the disk, and the same bytes open the file.
TEST_F(ChooserFolder, KeepsANameThatIsNoText) {
  const std::string name = "caf\xE9.wav";
  File(name);

  EXPECT_THAT(FilesAt(folder.string(), "*.wav").Names, ElementsAre(name));
}

TEST_F(ChooserFolder, ThatIsGoneIsToldOfAndLeavesTheWayBack) {
  const std::string gone = (folder / "gone").string();

  const FolderRows rows = FoldersAt(gone);

  EXPECT_EQ(rows.Trouble, "This folder is not there any more.");
  EXPECT_EQ(rows.Rows[static_cast<std::size_t>(rows.Open) - 1].Path, folder.string());
  EXPECT_EQ(FilesAt(gone, "*").Trouble, "This folder is not there any more.");
  EXPECT_THAT(FilesAt(gone, "*").Names, IsEmpty());
}

TEST_F(ChooserFolder, ThatIsAFileIsToldOf) {
  File("file");

  EXPECT_EQ(FoldersAt((folder / "file").string()).Trouble, "This is not a folder.");
}

TEST_F(ChooserFolder, ThatMayNotBeReadIsToldOf) {
  fs::permissions(folder, fs::perms::none);
  const uid_t user = geteuid();
  constexpr uid_t kNobody = 65534;
  // The superuser may read everything.
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);

  const std::string trouble = FilesAt(folder.string(), "*").Trouble;

  ASSERT_EQ(seteuid(user), 0);
  EXPECT_EQ(trouble, "You may not read this folder.");
}

TEST_F(ChooserFolder, ThatLeadsInARingIsToldOfInTheSystemsWords) {
  fs::create_directory_symlink("ring", folder / "ring");

  EXPECT_THAT(FilesAt((folder / "ring").string(), "*").Trouble,
              testing::StartsWith("This folder cannot be read: "));
}

TEST_F(ChooserFolder, WithANameLongerThanNamesAreIsToldOf) {
  EXPECT_THAT(FilesAt((folder / std::string(5000, 'x')).string(), "*").Trouble,
              testing::StartsWith("This folder cannot be read: "));
}

TEST(NoFolder, HasNoRowsAndNoTrouble) {
  EXPECT_THAT(FoldersAt("").Rows, IsEmpty());
  EXPECT_EQ(FoldersAt("").Open, -1);
  EXPECT_EQ(FilesAt("", "*").Trouble, "");
}

}  // namespace
}  // namespace orvane
