// One sound file at a time. A separate library plays it, since most lessons are silent: it needs
// twenty more libraries, and none of them is loaded before the first file is opened.
#pragma once

#include <memory>
#include <string>

namespace orvane {

// Why a file was not opened, by the number that the user sees; 0: it is open.
inline constexpr int kSoundOpen = 0;
inline constexpr int kSoundNotThere = 1;  // no such file, or it cannot be read
inline constexpr int kSoundNotSound = 2;  // empty, or not a sound that can be decoded
inline constexpr int kSoundNoAnswer = 3;  // the decoder did not answer in time
inline constexpr int kSoundNoPlayer = 4;  // the library that plays is not installed

class Sound {
 public:
  virtual ~Sound() = default;

  virtual int Open(const std::string& path) = 0;  // returns when it is known whether it is a sound
  virtual void Play() = 0;
  virtual void Stop() = 0;
  virtual void Close() = 0;
  virtual bool IsOpen() const = 0;
  virtual int Length() const = 0;  // milliseconds
};

// Loads the library at the first call; nullptr where it is not installed.
std::unique_ptr<Sound> MakeSound();

}  // namespace orvane
