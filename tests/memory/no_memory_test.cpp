// Wherever memory runs out, the program says so and goes on.
#include "runtime/no_memory.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

#include "desk/actions.h"
#include "memory/memory_that_runs_out.h"
#include "output/atomic_file.h"
#include "output/picture_gif.h"
#include "random/failing_desk.h"
#include "raster/raster.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

// Each of the first requests, then fewer and fewer, since some commands ask many thousand times.
long Next(long at) { return at + 1 + at / 8; }

class NoMemory : public ::testing::TestWithParam<Situation> {};

TEST_P(NoMemory, LeavesADeskThatGoesOn) {
  const Situation& situation = GetParam();
  long refusals = 0;
  for (const Command& command : EveryCommand(FailingDesk(situation).desk)) {
    FailingDesk work(situation);
    work.last.HadMemory = false;
    for (long at = 1;; at = Next(at)) {
      SCOPED_TRACE(std::string(situation.Name) + ": " + command.Name + ", memory " +
                   std::to_string(at));
      work.platform.Effects.clear();
      work.platform.Effects.reserve(64);
      bool escaped = false;
      {
        const MemoryRunsOut none(at);
        try {
          command.Do(work.desk);
        } catch (const std::bad_alloc&) {
          escaped = true;
        }
      }
      ASSERT_FALSE(escaped);
      ASSERT_EQ(work.Wrong(), "");
      if (!MemoryRunsOut::HasRefused()) break;
      ++refusals;
      ExpectPlainBox(work, kNoMemory);
    }
    ExpectToGoOn(work, command);
  }
  EXPECT_GT(refusals, 0);
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, NoMemory, ::testing::ValuesIn(Situations()),
                         [](const auto& row) {
                           std::string name = row.param.Name;
                           std::replace(name.begin(), name.end(), ' ', '_');
                           return name;
                         });

// A picture with all that a raster keeps: balls, letters and a background.
std::shared_ptr<const Picture> FullPicture(FailingDesk& work) {
  Orvane_Desk& desk = work.desk;
  Click(desk, desk.main.Bt3_Label, Reach::Forced);
  Click(desk, desk.main.D_StB, Reach::Forced);
  Click(desk, desk.main.Bgr2, Reach::Forced);
  return desk.main.Picture1.Image();
}

TEST(NoMemoryForAPicture, LeavesNothingHalfMadeInTheRaster) {
  FailingDesk work(Situations()[2]);
  const auto picture = FullPicture(work);
  ASSERT_GE(picture->Texts.size(), 5U);
  ASSERT_NE(picture->Backdrop, nullptr);
  const Bitmap expected = Raster().Paint(*picture, 1.5);
  long refusals = 0;
  for (long at = 1;; at = Next(at)) {
    Raster raster;
    std::optional<Bitmap> painted;
    {
      const MemoryRunsOut none(at);
      try {
        painted = raster.Paint(*picture, 1.5);
      } catch (const std::bad_alloc&) {
      }
    }
    if (!MemoryRunsOut::HasRefused()) break;
    ++refusals;
    ASSERT_FALSE(painted.has_value());
    ASSERT_EQ(raster.Paint(*picture, 1.5).Words, expected.Words) << "memory " << at;
  }
  EXPECT_GT(refusals, 10);
}

TEST(NoMemoryForAPicture, MakesNoHalfFile) {
  const Bitmap picture{40, 30, std::vector<std::uint32_t>(1200, 0xFFFF0000U)};
  const FileBytes film = AnimationOf(picture);
  const FileBytes longer = *WithOneMoreFrame(film, picture);
  long refusals = 0;
  for (long at = 1;; ++at) {
    std::optional<FileBytes> written;
    {
      const MemoryRunsOut none(at);
      try {
        written = WithOneMoreFrame(film, picture);
      } catch (const std::bad_alloc&) {
      } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), kNoMemory);
      }
    }
    if (!MemoryRunsOut::HasRefused()) break;
    ++refusals;
    ASSERT_FALSE(written.has_value()) << "memory " << at;
  }
  EXPECT_GT(refusals, 5);
  EXPECT_EQ(*WithOneMoreFrame(film, picture), longer);
}

std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(NoMemoryForAFile, LeavesItClosed) {
  const std::string folder = ::testing::TempDir();
  WriteAside(folder, "no_memory.gif", FileBytes(200000, 'x'));
  const auto open_before = OpenFiles();
  long refusals = 0;
  for (long at = 1;; ++at) {
    const MemoryRunsOut none(at);
    try {
      (void)ReadWhole(folder, "no_memory.gif");
    } catch (const std::bad_alloc&) {
    }
    if (!MemoryRunsOut::HasRefused()) break;
    ++refusals;
  }
  EXPECT_GT(refusals, 2);
  EXPECT_EQ(OpenFiles(), open_before);
}

}  // namespace
}  // namespace orvane
