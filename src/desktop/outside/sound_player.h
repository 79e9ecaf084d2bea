// Plays sound files with the toolkit's multimedia library, which looks for its decoders and for the
// computer's sound when the first file is opened.
#pragma once

#include <memory>
#include <string>

#include "desktop/outside/sound.h"

class QAudioOutput;
class QMediaPlayer;

namespace orvane {

class SoundPlayer : public Sound {
 public:
  SoundPlayer();
  ~SoundPlayer() override;

  int Open(const std::string& path) override;
  void Play() override;
  void Stop() override;
  void Close() override;
  bool IsOpen() const override { return open_; }
  int Length() const override;

 private:
  int WaitForAnswer();

  std::unique_ptr<QAudioOutput> output_;
  std::unique_ptr<QMediaPlayer> player_;
  bool open_ = false;
};

}  // namespace orvane
