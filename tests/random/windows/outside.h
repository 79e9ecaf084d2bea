// The outside world of the random windows: the program's own, except for what would reach beyond
// the
#pragma once

#include <QTemporaryDir>

#include "desktop/outside/qt_platform.h"

namespace orvane {

// windows. Boxes are real. Pictures go to a folder that is removed afterwards, pages are printed in
// memory, tunes are not played, and a wait lets events run once instead of until the next second.
// The player's home is that folder, with a few tunes for the chooser.
class OutsideAtRandom : public QtPlatform {
 public:
  OutsideAtRandom();

  bool Ended = false;      // the program was told to end
  bool SavesFail = false;  // there is no folder to save to
  bool HasPrinter = true;
  bool IsLetting = false;  // events are running
  int SoundError = 0;      // of every tune that is opened
  int Failures = 0;        // boxes that reported one

  void Beep() override {}
  void FailureBox(std::string_view text) override;
  void LetEventsRun() override;
  void Wait(int seconds) override;
  void EndProgram() override { Ended = true; }
  bool PrintWindow(Window& page) override;
  std::string ProgramFolder() override;
  int SoundOpen(const std::string& path) override;
  void SoundPlay() override {}
  void SoundStop() override {}
  void SoundClose() override { sound_is_open_ = false; }
  bool SoundIsOpen() override { return sound_is_open_; }
  int SoundLength() override { return 0; }

 private:
  QTemporaryDir folder_;
  bool sound_is_open_ = false;
};

}  // namespace orvane
