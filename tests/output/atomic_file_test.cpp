// Files that appear whole or not at all.
#include "output/atomic_file.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "runtime/failure.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

const FileBytes kOld{'o', 'l', 'd'};

struct Aside : testing::Test {
  Aside() {
    std::string pattern = (fs::temp_directory_path() / "orvane-XXXXXX").string();
    outer = mkdtemp(pattern.data());
    folder = outer + "/own";
    fs::create_directory(folder);
  }
  ~Aside() override { fs::remove_all(outer); }

  std::string outer, folder;

  // The names of everything below the outer folder.
  std::vector<std::string> All() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(outer)) {
      names.push_back(fs::relative(entry.path(), outer).string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string Clause(const std::string& name, const FileBytes& bytes = kOld) const {
    return ClauseIn(folder, name, bytes);
  }
  static std::string ClauseIn(const std::string& where, const std::string& name,
                              const FileBytes& bytes = kOld) {
    try {
      WriteAside(where, name, bytes);
    } catch (const Failure& failure) {
      return failure.what();
    }
    return "";
  }
};

TEST_F(Aside, AFileIsWrittenWholeAndNothingElseIsLeft) {
  FileBytes bytes(300000);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<unsigned char>(i * 7);
  EXPECT_EQ(Clause("a.gif", bytes), "");
  EXPECT_EQ(ReadWhole(folder, "a.gif"), bytes);
  EXPECT_EQ(All(), (std::vector<std::string>{"own", "own/a.gif"}));
}

TEST_F(Aside, ANewFileMayBeReadLikeTheUsersOthers) {
  const mode_t mask = umask(022);
  WriteAside(folder, "a.gif", kOld);
  umask(mask);
  EXPECT_EQ(static_cast<int>(fs::status(folder + "/a.gif").permissions()), 0644);
}

TEST_F(Aside, AnOlderFileIsReplaced) {
  WriteAside(folder, "a.gif", kOld);
  WriteAside(folder, "a.gif", {'n', 'e', 'w'});
  EXPECT_EQ(ReadWhole(folder, "a.gif"), (FileBytes{'n', 'e', 'w'}));
}

TEST_F(Aside, ALinkIsReplacedAndNotWrittenThrough) {
  std::ofstream(outer + "/elsewhere") << "old";
  fs::create_symlink("../elsewhere", folder + "/a.gif");
  EXPECT_EQ(Clause("a.gif", {'n', 'e', 'w'}), "");
  EXPECT_EQ(ReadWhole(outer, "elsewhere"), kOld);
}

TEST_F(Aside, NamesThatLeadOutOfTheFolderWriteNothing) {
  for (const char* name : {"..", ".", "", "a/b", "/x", "../x", "a/../../x"}) {
    EXPECT_NE(Clause(name), "") << name;
  }
  EXPECT_NE(Clause(std::string("a\0b", 3)), "");
  EXPECT_EQ(All(), std::vector<std::string>{"own"});
}

TEST_F(Aside, AMissingFolderIsReportedInPlainWords) {
  EXPECT_EQ(ClauseIn(folder + "/none", "a.gif"),
            folder + "/none/a.gif could not be written: there is no such folder");
}

TEST_F(Aside, AFileInPlaceOfTheFolderIsReportedInPlainWords) {
  std::ofstream(outer + "/file") << "x";
  EXPECT_EQ(ClauseIn(outer + "/file", "a.gif"),
            outer + "/file/a.gif could not be written: there is no such folder");
}

TEST_F(Aside, AFolderInPlaceOfTheFileStaysAndNothingIsLeftBesideIt) {
  fs::create_directory(folder + "/a.gif");
  EXPECT_EQ(Clause("a.gif"), folder + "/a.gif could not be written: a folder has that name");
  EXPECT_EQ(All(), (std::vector<std::string>{"own", "own/a.gif"}));
}

// A limit on the file's size plays the part of a disk that fills up half way.
TEST_F(Aside, AWriteThatFailsHalfWayLeavesTheOlderFileAndNothingBesideIt) {
  WriteAside(folder, "a.gif", kOld);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{10000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string clause = Clause("a.gif", FileBytes(200000));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, old_handler);

  EXPECT_EQ(clause, folder + "/a.gif could not be written: the file is too large");
  EXPECT_EQ(ReadWhole(folder, "a.gif"), kOld);
  EXPECT_EQ(All(), (std::vector<std::string>{"own", "own/a.gif"}));
}

TEST_F(Aside, NoFileIsNotAnEmptyFile) {
  EXPECT_EQ(ReadWhole(folder, "a.gif"), std::nullopt);
  std::ofstream(folder + "/a.gif").flush();
  EXPECT_EQ(ReadWhole(folder, "a.gif"), FileBytes{});
}

TEST_F(Aside, WhatCannotBeReadFails) {
  fs::create_directory(folder + "/a.gif");
  EXPECT_THROW((void)ReadWhole(folder, "a.gif"), Failure);
}

}  // namespace
}  // namespace orvane
