// A platform that keeps what was shown and answers from a list, for tests of the desk.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "controls/platform.h"

namespace orvane {

class FakePlatform : public Platform {
 public:
  // What happened, one line each, in order: "beep", "message TEXT", "warning TEXT", "failure TEXT",
  // "ask PROMPT | TITLE", "save FORMAT NAME SOURCE", "print WINDOW", "sound open PATH", "end".
  std::vector<std::string> Effects;
  std::deque<std::string> Answers;      // replies to input boxes; with none left: cancelled
  bool AnswersLater = false;            // a question stays open until somebody calls Answer
  bool HasBoxUp = false;                // the desk is held
  std::function<void()> PendingEvents;  // runs inside LetEventsRun
  std::string SaveFails;                // not empty: every save fails with this clause
  bool HasPrinter = true;
  int SoundError = 0;  // of the next SoundOpen

  void Beep() override { Effects.emplace_back("beep"); }
  void MessageBox(std::string_view text) override { Keep("message ", text); }
  void WarningBox(std::string_view text) override { Keep("warning ", text); }
  void FailureBox(std::string_view text) override { Keep("failure ", text); }
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override {
    Effects.push_back("ask " + std::string(prompt) + " | " + std::string(title));
    HasBoxUp = AnswersLater;
    if (AnswersLater) return std::nullopt;
    if (Answers.empty()) return "";
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  bool BoxIsUp() const override { return HasBoxUp; }
  void LetEventsRun() override {
    if (PendingEvents) PendingEvents();
  }
  void Wait(int) override { LetEventsRun(); }
  void EndProgram() override { Effects.emplace_back("end"); }
  void SavePicture(const SaveRequest& request) override {
    if (!SaveFails.empty()) FailPlatform(SaveFails);
    static constexpr const char* kFormats[] = {"BMP", "JPG", "GIF", "AGIF"};
    Effects.push_back(std::string("save ") + kFormats[static_cast<int>(request.Format)] + " " +
                      request.Name + " " + request.Source->Name);
  }
  bool PrintWindow(Window& page) override {
    if (HasPrinter) Effects.push_back("print " + page.Name);
    return HasPrinter;
  }
  std::string ProgramFolder() override { return "/opt/orvane"; }
  int SoundOpen(const std::string& path) override {
    Effects.push_back("sound open " + path);
    const int error = SoundError;
    SoundError = 0;
    sound_open_ = error == 0;
    return error;
  }
  void SoundPlay() override { Effects.emplace_back("sound play"); }
  void SoundStop() override { Effects.emplace_back("sound stop"); }
  void SoundClose() override {
    Effects.emplace_back("sound close");
    sound_open_ = false;
  }
  bool SoundIsOpen() override { return sound_open_; }
  int SoundLength() override { return 0; }

 private:
  void Keep(const char* kind, std::string_view text) {
    Effects.push_back(kind + std::string(text));
  }

  bool sound_open_ = false;
};

}  // namespace orvane
