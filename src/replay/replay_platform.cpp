#include "replay/replay_platform.h"

#include <utility>

#include "replay/json_line.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

constexpr std::string_view FormatName(FileFormat format) {
  switch (format) {
    case FileFormat::Bmp:
      return "BMP";
    case FileFormat::Jpeg:
      return "JPG";
    case FileFormat::Gif:
      return "GIF";
    case FileFormat::GifFrame:
      return "AGIF";
  }
  return "";
}

// The surface and the pair have their own names, the plot the name of its window.
const std::string& SourceName(const Control& source) {
  return source.Owner.Prefix.empty() ? source.Name : source.Owner.Name;
}

}  // namespace

void ReplayPlatform::Beep() { output_.Line("beep"); }

void ReplayPlatform::MessageBox(std::string_view text) {
  output_.Line("message " + TextInQuotes(text));
}

void ReplayPlatform::WarningBox(std::string_view text) {
  output_.Line("warning " + TextInQuotes(text));
}

void ReplayPlatform::FailureBox(std::string_view text) {
  output_.Line("failure " + TextInQuotes(text));
}

std::optional<std::string> ReplayPlatform::InputBox(std::string_view prompt,
                                                    std::string_view title) {
  output_.Line("ask " + TextInQuotes(prompt) + " " + TextInQuotes(title));
  if (Answers.empty()) return "";
  std::string answer = std::move(Answers.front());
  Answers.pop_front();
  return answer;
}

void ReplayPlatform::EndProgram() {
  output_.Line("end");
  output_.Silent = true;
  Ended = true;
}

void ReplayPlatform::SavePicture(const SaveRequest& request) {
  if (!SaveFails.empty()) FailPlatform(SaveFails);
  output_.Line("save " + std::string(FormatName(request.Format)) + " " +
               TextInQuotes(request.Name) + " " + SourceName(*request.Source));
}

bool ReplayPlatform::PrintWindow(Window& page) {
  if (HasPrinter) output_.Line("print " + page.Name);
  return HasPrinter;
}

int ReplayPlatform::SoundOpen(const std::string& path) {
  output_.Line("sound open " + TextInQuotes(path));
  const int error = std::exchange(SoundError, 0);
  sound_is_open_ = error == 0;
  return error;
}

void ReplayPlatform::SoundPlay() { output_.Line("sound play"); }

void ReplayPlatform::SoundStop() { output_.Line("sound stop"); }

void ReplayPlatform::SoundClose() {
  output_.Line("sound close");
  sound_is_open_ = false;
}

}  // namespace orvane
