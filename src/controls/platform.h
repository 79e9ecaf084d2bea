// What the logic asks of the outside world. Apart from this, the controls and the surfaces' lists
// of strokes, nothing crosses between logic and skin.
#pragma once

#include <string>
#include <string_view>

#include "controls/window.h"

namespace orvane {

enum class FileFormat { Bmp, Jpeg, Gif, GifFrame };  // GifFrame: one more frame of an animation

struct SaveRequest {
  FileFormat Format = FileFormat::Bmp;
  std::string Name;           // file name without folder, with its suffix
  Control* Source = nullptr;  // Picture1, the panel P_Sterio as it shows, or the plot window
  bool FirstFrame = false;    // a recording's first frame replaces the file
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual void Beep() = 0;
  // Boxes are modal: they return when the user has answered, and no timer ticks meanwhile.
  virtual void MessageBox(std::string_view text) = 0;
  virtual void WarningBox(std::string_view text) = 0;  // with the exclamation icon
  virtual void FailureBox(std::string_view text) = 0;
  // Empty when it was cancelled.
  virtual std::string InputBox(std::string_view prompt, std::string_view title) = 0;

  virtual void LetEventsRun() = 0;     // pending events are handled inside this call
  virtual void Wait(int seconds) = 0;  // lets events run until the clock is past that many seconds
  virtual void EndProgram() = 0;

  // Pictures and paper. Whatever cannot be done ends in FailPlatform, with the reason in plain
  // words.
  virtual void SavePicture(const SaveRequest& request) = 0;
  virtual bool PrintWindow(Window& page) = 0;  // false: it could not be printed

  // The folder of the program, without a trailing separator.
  virtual std::string ProgramFolder() = 0;

  // One sound at a time. SoundOpen gives an error number, 0 when the file is open.
  virtual int SoundOpen(const std::string& path) = 0;
  virtual void SoundPlay() = 0;
  virtual void SoundStop() = 0;
  virtual void SoundClose() = 0;
  virtual bool SoundIsOpen() = 0;
  virtual int SoundLength() = 0;  // milliseconds
};

}  // namespace orvane
