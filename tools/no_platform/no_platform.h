// A platform for makers, which show no boxes: if the desk asks it for anything, the maker has made
// a mistake.
#pragma once

#include <cstdlib>

#include "controls/platform.h"

namespace orvane {

class NoPlatform : public Platform {
 public:
  void Beep() override { Refuse(); }
  void MessageBox(std::string_view) override { Refuse(); }
  void WarningBox(std::string_view) override { Refuse(); }
  void FailureBox(std::string_view) override { Refuse(); }
  std::optional<std::string> InputBox(std::string_view, std::string_view) override { Refuse(); }
  void LetEventsRun() override { Refuse(); }
  void Wait(int) override { Refuse(); }
  void EndProgram() override { Refuse(); }
  void SavePicture(const SaveRequest&) override { Refuse(); }
  bool PrintWindow(Window&) override { Refuse(); }
  std::string ProgramFolder() override { Refuse(); }
  int SoundOpen(const std::string&) override { Refuse(); }
  void SoundPlay() override { Refuse(); }
  void SoundStop() override { Refuse(); }
  void SoundClose() override { Refuse(); }
  bool SoundIsOpen() override { Refuse(); }
  int SoundLength() override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() { std::abort(); }
};

}  // namespace orvane
