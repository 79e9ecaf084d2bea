// An outside world in which any one call can fail. It counts the calls and makes one of them fail.
#pragma once

#include <array>
#include <new>
#include <string_view>

#include "desk/orvane_desk.h"
#include "fake_platform.h"
#include "runtime/failure.h"

namespace orvane {

enum class Call {
  Beep,
  MessageBox,
  WarningBox,
  FailureBox,
  InputBox,
  LetEventsRun,
  Wait,
  EndProgram,
  SavePicture,
  PrintWindow,
  ProgramFolder,
  SoundOpen,
  SoundPlay,
  SoundStop,
  SoundClose,
  SoundIsOpen,
  SoundLength,
};
inline constexpr auto kCallNames = std::to_array<std::string_view>(
    {"Beep", "MessageBox", "WarningBox", "FailureBox", "InputBox", "LetEventsRun", "Wait",
     "EndProgram", "SavePicture", "PrintWindow", "ProgramFolder", "SoundOpen", "SoundPlay",
     "SoundStop", "SoundClose", "SoundIsOpen", "SoundLength"});

enum class Way {
  Clause,   // FailPlatform, as for anything that cannot be done
  TwoFold,  // the same, and the box that reports it cannot be shown either
  Memory,   // there is no memory left for it
  Refusal,  // it returns normally, with an answer that says no
};
inline constexpr auto kWayNames = std::to_array<std::string_view>(
    {"with a clause", "with a clause and no box for it", "for want of memory", "by refusing"});

inline constexpr const char* kClause = "the disk is full";

class FailingPlatform : public FakePlatform {
 public:
  std::vector<Call> Calls;  // in order, since they were last cleared
  int FailsAt = -1;         // the call that fails, counted in Calls; -1: none
  Way How = Way::Clause;

  void Beep() override {
    if (Goes(Call::Beep)) FakePlatform::Beep();
  }
  void MessageBox(std::string_view text) override {
    if (Goes(Call::MessageBox)) FakePlatform::MessageBox(text);
  }
  void WarningBox(std::string_view text) override {
    if (Goes(Call::WarningBox)) FakePlatform::WarningBox(text);
  }
  void FailureBox(std::string_view text) override {
    const bool goes = Goes(Call::FailureBox);
    if (FailsAt >= 0 && How == Way::TwoFold) FailPlatform("there is no screen");
    if (goes) FakePlatform::FailureBox(text);
  }
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override {
    return Goes(Call::InputBox) ? FakePlatform::InputBox(prompt, title) : "";
  }
  void LetEventsRun() override {
    if (Goes(Call::LetEventsRun)) FakePlatform::LetEventsRun();
  }
  void Wait(int seconds) override {
    if (Goes(Call::Wait)) FakePlatform::Wait(seconds);
  }
  void EndProgram() override {
    if (Goes(Call::EndProgram)) FakePlatform::EndProgram();
  }
  void SavePicture(const SaveRequest& request) override {
    if (Goes(Call::SavePicture)) FakePlatform::SavePicture(request);
  }
  bool PrintWindow(Window& page) override {
    return Goes(Call::PrintWindow) && FakePlatform::PrintWindow(page);
  }
  std::string ProgramFolder() override {
    return Goes(Call::ProgramFolder) ? FakePlatform::ProgramFolder() : "";
  }
  int SoundOpen(const std::string& path) override {
    constexpr int kUnknown = 275;
    return Goes(Call::SoundOpen) ? FakePlatform::SoundOpen(path) : kUnknown;
  }
  void SoundPlay() override {
    if (Goes(Call::SoundPlay)) FakePlatform::SoundPlay();
  }
  void SoundStop() override {
    if (Goes(Call::SoundStop)) FakePlatform::SoundStop();
  }
  void SoundClose() override {
    if (Goes(Call::SoundClose)) FakePlatform::SoundClose();
  }
  bool SoundIsOpen() override { return Goes(Call::SoundIsOpen) && FakePlatform::SoundIsOpen(); }
  int SoundLength() override { return Goes(Call::SoundLength) ? FakePlatform::SoundLength() : 0; }

 private:
  // Returns false if the call is to be refused.
  bool Goes(Call call) {
    const bool fails = static_cast<int>(Calls.size()) == FailsAt;
    Calls.push_back(call);
    if (!fails) return true;
    if (How == Way::Memory) throw std::bad_alloc();
    if (How != Way::Refusal) FailPlatform(kClause);
    return false;
  }
};

}  // namespace orvane
