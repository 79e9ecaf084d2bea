// The outside world of the windows: beep, boxes, files, paper, sound.
#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "controls/platform.h"
#include "desktop/outside/sound.h"

namespace orvane {

class Screen;

class QtPlatform : public Platform {
 public:
  void Beep() override;
  void MessageBox(std::string_view text) override;
  void WarningBox(std::string_view text) override;
  void FailureBox(std::string_view text) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) override;
  void LetEventsRun() override;
  void Wait(int seconds) override;
  void EndProgram() override;
  void SavePicture(const SaveRequest& request) override;
  bool PrintWindow(Window& page) override;
  std::string ProgramFolder() override;
  int SoundOpen(const std::string& path) override;
  void SoundPlay() override;
  void SoundStop() override;
  void SoundClose() override;
  bool SoundIsOpen() override;
  int SoundLength() override;

  Screen* screen = nullptr;  // shows what is saved and printed
  bool BoxIsUp() const override { return boxes_ > 0; }

 private:
  std::unique_ptr<Sound> sound_;  // made when the first file is opened
  int boxes_ = 0;
  bool ended_ = false;
};

}  // namespace orvane
