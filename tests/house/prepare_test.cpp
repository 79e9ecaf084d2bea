// What `run` and `test` do before they build, played on a made-up machine: a folder of small
// scripts stands in for dpkg, apt and sudo, and notes what they were asked.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

namespace fs = std::filesystem;

class Preparing : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string folder = (fs::temp_directory_path() / "orvane_prepare_XXXXXX").string();
    ASSERT_NE(::mkdtemp(folder.data()), nullptr);
    machine_ = folder;
    for (const char* tool : {"awk", "mktemp", "cat", "rm", "env", "bash"}) Links(tool);
    Has("apt-get", "echo \"apt-get $*\" >> $MACHINE/asked");
    Has("dpkg-query", "cat $MACHINE/installed");
    Write("asked", "");
    Write("installed", "");
    UserIs(0);
  }
  void TearDown() override { fs::remove_all(machine_); }

  void Write(const std::string& name, const std::string& text) {
    std::ofstream(machine_ / name) << text;
  }
  void Has(const std::string& command, const std::string& script) {
    Write(command, "#!/bin/bash\n" + script + "\n");
    fs::permissions(machine_ / command,
                    fs::perms::owner_all | fs::perms::others_exec | fs::perms::others_read);
  }
  void Links(const std::string& tool) {  // the real one
    const fs::path real = fs::exists(fs::path("/usr/bin") / tool) ? "/usr/bin" : "/bin";
    fs::create_symlink(real / tool, machine_ / tool);
  }
  void HasCMake() { Has("cmake", "echo \"cmake $*\" >> $MACHINE/asked"); }
  std::string Place(const std::string& name) const { return machine_ / name; }
  void UserIs(int number) { Has("id", "echo " + std::to_string(number)); }
  void HasSudo() { Has("sudo", "echo sudo >> $MACHINE/asked; exec \"$@\""); }

  // Runs a command after sourcing the common part, as `run` and `test` do.
  void Play(const std::string& words) {
    const std::string script =
        "set -euo pipefail; root=" ORVANE_SOURCE_DIR "; source $root/tools/prepare.sh; " + words;
    const std::string command = "MACHINE=" + machine_.string() + " PATH=" + machine_.string() +
                                " /bin/bash -c '" + script + "' 2>&1";
    std::FILE* pipe = ::popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::array<char, 512> part{};
    Said.clear();
    while (std::fgets(part.data(), part.size(), pipe) != nullptr) Said += part.data();
    ExitStatus = WEXITSTATUS(::pclose(pipe));
    std::ifstream file(machine_ / "asked");
    Asked.assign(std::istreambuf_iterator<char>(file), {});
  }

  std::string Said;   // both outputs of the command
  std::string Asked;  // what apt-get and sudo were started with
  int ExitStatus = -1;

 private:
  fs::path machine_;
};

TEST_F(Preparing, AsksAptForNothingWhenNothingIsMissing) {
  Write("installed", "installed:cmake installed:g++ ");

  Play("need_packages cmake g++");

  EXPECT_EQ(ExitStatus, 0);
  EXPECT_EQ(Asked, "");
  EXPECT_EQ(Said, "");
}

TEST_F(Preparing, AsksAptOnlyForWhatIsMissing) {
  Write("installed", "installed:cmake ");

  Play("need_packages cmake g++");

  EXPECT_EQ(ExitStatus, 0);
  EXPECT_THAT(Asked, HasSubstr("update"));
  EXPECT_THAT(Asked, HasSubstr("install g++\n"));
}

TEST_F(Preparing, TreatsARemovedPackageThatLeftItsFilesAsMissing) {
  Write("installed", "config-files:g++ ");

  Play("need_packages g++");

  EXPECT_THAT(Asked, HasSubstr("install g++\n"));
}

TEST_F(Preparing, TreatsANameThatOnlyBeginsAnInstalledOneAsMissing) {
  Write("installed", "installed:g++-12 ");

  Play("need_packages g++");

  EXPECT_THAT(Asked, HasSubstr("install g++\n"));
}

TEST_F(Preparing, UsesSudoWhenTheUserIsNotRoot) {
  UserIs(1000);
  HasSudo();

  Play("need_packages g++");

  EXPECT_EQ(ExitStatus, 0);
  EXPECT_THAT(Asked, HasSubstr("sudo\napt-get"));
}

TEST_F(Preparing, SaysWhatToTypeWhenTheUserIsNeitherRootNorHasSudo) {
  UserIs(1000);

  Play("need_packages g++");

  EXPECT_EQ(ExitStatus, 1);
  EXPECT_EQ(Asked, "");
  EXPECT_THAT(Said, HasSubstr("missing: g++"));
  EXPECT_THAT(Said, HasSubstr("apt-get install g++"));
}

TEST_F(Preparing, ShowsWhatAptSaidWhenItFails) {
  Has("apt-get", "echo no network here; exit 100");

  Play("need_packages g++; echo went on");

  EXPECT_EQ(ExitStatus, 1);
  EXPECT_THAT(Said, HasSubstr("no network here"));
  EXPECT_THAT(Said, Not(HasSubstr("went on")));
}

TEST_F(Preparing, ReadsOneGroupOfTheListAtATime) {
  Play("packages_of test");

  EXPECT_THAT(Said, HasSubstr("libgtest-dev\n"));
  EXPECT_THAT(Said, Not(HasSubstr("cmake\n")));
  EXPECT_THAT(Said, Not(HasSubstr("#")));
}

// As ctest writes it: of one test by its exit code, of another by the words of its framework.
TEST_F(Preparing, SaysWhyATestSkippedItself) {
  Write("report.xml", R"xml(<testsuite name="(empty)" tests="4" skipped="2">
	<testcase name="on_paper" classname="on_paper" time="0.01" status="notrun">
		<skipped message="SKIP_RETURN_CODE=77"/>
		<system-out>looking for a printer
only root can run it
</system-out>
	</testcase>
	<testcase name="Passes" classname="Passes" time="0.01" status="run">
		<system-out>all is well
</system-out>
	</testcase>
	<testcase name="Files.OnAFullDisk" classname="Files" time="0.01" status="notrun">
		<skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/>
		<system-out>[ RUN      ] Files.OnAFullDisk
tests/files_test.cpp:250: Skipped
only root can have a small disk

[  SKIPPED ] Files.OnAFullDisk (3 ms)
</system-out>
	</testcase>
	<testcase name="Fails" classname="Fails" time="0.01" status="fail">
		<failure message=""/>
		<system-out>nothing is well
</system-out>
	</testcase>
</testsuite>
)xml");

  Play("why_left_out $MACHINE/report.xml");

  EXPECT_EQ(Said,
            "Orvane: on_paper did not run: only root can run it\n"
            "Orvane: Files.OnAFullDisk did not run: only root can have a small disk\n");
}

TEST_F(Preparing, BuildsTheTargetsThatAreNamed) {
  HasCMake();

  Play("root=$MACHINE; build_preset release orvane probe");

  EXPECT_THAT(Asked, HasSubstr("--build " + Place("build/release") + " --target orvane probe\n"));
}

TEST_F(Preparing, BuildsEverythingWhereNoTargetIsNamed) {
  HasCMake();

  Play("root=$MACHINE; build_preset dev");

  EXPECT_THAT(Asked, HasSubstr("--build " + Place("build/dev") + "\n"));
}

TEST_F(Preparing, LeavesATestOutWhereItsJudgeIsOfAnotherRelease) {
  Links("cmake");
  Write("ask.cmake", "include(" ORVANE_SOURCE_DIR
                     "/cmake/judge.cmake)\n"
                     "orvane_judge(format_judged format clang-format 14)\n"
                     "orvane_judge(tidy_judged tidy clang-tidy 14)\n"
                     "message(\"format ${format_judged}, tidy ${tidy_judged}\")\n");
  Has("clang-format", "echo Debian clang-format version 14.0.6");
  Has("clang-tidy", "echo Debian LLVM version 19.1.7");

  Play("cmake -DLEFT_OUT=$MACHINE/left_out -P $MACHINE/ask.cmake; echo; cat $MACHINE/left_out");

  EXPECT_THAT(Said, HasSubstr("format ON, tidy OFF\n"));
  EXPECT_THAT(Said, EndsWith("\nthe test 'tidy' is left out: clang-tidy 14 is the judge, "
                             "not 19.1.7.\n"));
}

// `run` on that machine: a copy of it, with a program and a probe that answers as it is told.
class Running : public Preparing {
 protected:
  void SetUp() override {
    Preparing::SetUp();
    HasCMake();
    for (const char* tool : {"dirname", "timeout"}) Links(tool);
    fs::create_directories(Place("tools"));
    fs::create_directories(Place("build/release/bin"));
    for (const char* name : {"run", "tools/prepare.sh", "dependencies.txt"}) {
      Write(name, ReadProjectFile(name));
    }
    Has("dpkg-query", R"(shift 3; printf "installed:%s " "$@")");  // whatever is asked for
    Has("build/release/bin/orvane", "echo the program >> $MACHINE/asked");
    Has("Xvfb", "exit 1");
  }
};

TEST_F(Running, BuildsWhatItStartsAndNothingElse) {
  Has("build/release/bin/orvane-display-probe", "exit 0");

  Play("source $MACHINE/run");

  EXPECT_THAT(Asked, EndsWith("--target orvane orvane-display-probe\nthe program\n"));
}

TEST_F(Running, BuildsTheTourWhereThereIsNoDisplay) {
  Has("build/release/bin/orvane-display-probe", "exit 1");

  Play("source $MACHINE/run");

  EXPECT_THAT(Asked, EndsWith("--target orvane-pictures\n"));
  EXPECT_THAT(Asked, Not(HasSubstr("the program")));
}

}  // namespace
}  // namespace orvane::house
