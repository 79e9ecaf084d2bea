// What the logic asks of the outside world. Apart from this, the controls and the surfaces' lists
// of strokes, nothing crosses between logic and skin.
#pragma once

#include <optional>
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
  // Nothing here waits for the user. A box that is asked for while another is up comes after it,
  // and the desk is held as long as one is up: no timer ticks, and no action of the user comes in.
  virtual void MessageBox(std::string_view text) = 0;
  virtual void WarningBox(std::string_view text) = 0;  // with the exclamation icon
  virtual void FailureBox(std::string_view text) = 0;
  // The answer, where there is one already (a script has them); an empty one means cancelled. Else
  // nothing: the box opens, and the skin calls Answer when the user has answered it.
  virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title) = 0;
  virtual bool BoxIsUp() const { return false; }

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
