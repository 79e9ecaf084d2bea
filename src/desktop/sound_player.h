// Plays one sound file at a time. What it needs of the system is looked for when the first file is
// opened, and no earlier.
#pragma once

#include <memory>
#include <string>

class QAudioOutput;
class QMediaPlayer;

namespace orvane {

// Why a file was not opened, as it is numbered to the user; 0: it is open.
inline constexpr int kSoundOpen = 0;
inline constexpr int kSoundNotThere = 1;  // no such file, or it cannot be read
inline constexpr int kSoundNotSound = 2;  // empty, or no sound that can be decoded
inline constexpr int kSoundNoAnswer = 3;  // the decoder did not answer in time

class SoundPlayer {
 public:
  SoundPlayer();
  ~SoundPlayer();

  int Open(const std::string& path);  // returns when it is known whether the file is a sound
  void Play();
  void Stop();
  void Close();
  bool IsOpen() const { return open_; }
  int Length() const;  // milliseconds

 private:
  int WaitForAnswer();

  std::unique_ptr<QAudioOutput> output_;
  std::unique_ptr<QMediaPlayer> player_;
  bool open_ = false;
};

}  // namespace orvane
