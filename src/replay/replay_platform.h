// The outside world of a replay: an effect is a line, and what a user would have to supply comes
// from the script.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "controls/platform.h"
#include "replay/output.h"

namespace orvane {

class ReplayPlatform : public Platform {
 public:
  explicit ReplayPlatform(Output& output) : output_(output) {}

  std::deque<std::string> Answers;  // replies to the next input boxes; with none left: cancelled
  int SoundError = 0;               // of the next SoundOpen only; 0: the file opens
  bool HasPrinter = true;
  bool Ended = false;

  // No script sets these; only code that drives a player does.
  std::function<void()> PendingEvents;  // runs inside LetEventsRun
  std::string SaveFails;                // not empty: every save fails with this clause

  void Beep() override;
  void MessageBox(std::string_view text) override;
  void WarningBox(std::string_view text) override;
  void FailureBox(std::string_view text) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override;

  // A script's actions come one after the other, so none is ever pending.
  void LetEventsRun() override {
    if (PendingEvents) PendingEvents();
  }
  void Wait(int) override { LetEventsRun(); }
  void EndProgram() override;

  void SavePicture(const SaveRequest& request) override;
  bool PrintWindow(Window& page) override;
  // The lines do not depend on where the program file lies.
  std::string ProgramFolder() override { return "."; }

  int SoundOpen(const std::string& path) override;
  void SoundPlay() override;
  void SoundStop() override;
  void SoundClose() override;
  bool SoundIsOpen() override { return sound_is_open_; }
  int SoundLength() override { return 0; }

 private:
  Output& output_;
  bool sound_is_open_ = false;
};

}  // namespace orvane
