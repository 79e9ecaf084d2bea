#include "desktop/outside/sound_player.h"

#include <QAudioOutput>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>

namespace orvane {
namespace {

constexpr int kPatience = 3000;  // milliseconds in which a decoder must answer

// Of the toolkit's two decoders, one brings all it needs; the other stops the whole program where
// its add-ons are not installed.
void ChooseDecoder() {
  constexpr const char* kChoice = "QT_MEDIA_BACKEND";
  if (!qEnvironmentVariableIsSet(kChoice)) qputenv(kChoice, "ffmpeg");
}

bool IsLoaded(QMediaPlayer::MediaStatus status) {
  return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::BufferedMedia ||
         status == QMediaPlayer::BufferingMedia || status == QMediaPlayer::EndOfMedia;
}

}  // namespace

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;

int SoundPlayer::Open(const std::string& path) {
  Close();
  const QFileInfo file(QString::fromStdString(path));
  if (!file.isFile() || !file.isReadable()) return kSoundNotThere;
  if (file.size() == 0) return kSoundNotSound;
  ChooseDecoder();
  player_ = std::make_unique<QMediaPlayer>();
  output_ = std::make_unique<QAudioOutput>();
  player_->setAudioOutput(output_.get());
  player_->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
  const int answer = WaitForAnswer();
  open_ = answer == kSoundOpen;
  if (!open_) Close();
  return answer;
}

// Meanwhile only the decoder's own events run; the user's events wait until the command is over.
int SoundPlayer::WaitForAnswer() {
  const auto answered = [this] {
    return IsLoaded(player_->mediaStatus()) || player_->error() != QMediaPlayer::NoError ||
           player_->mediaStatus() == QMediaPlayer::InvalidMedia;
  };
  if (!answered()) {
    QEventLoop loop;
    const auto quit_when_answered = [&] {
      if (answered()) loop.quit();
    };
    QObject::connect(player_.get(), &QMediaPlayer::mediaStatusChanged, &loop, quit_when_answered);
    QObject::connect(player_.get(), &QMediaPlayer::errorChanged, &loop, quit_when_answered);
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  if (!answered()) return kSoundNoAnswer;
  return IsLoaded(player_->mediaStatus()) && player_->hasAudio() ? kSoundOpen : kSoundNotSound;
}

void SoundPlayer::Play() {
  if (open_) player_->play();
}

void SoundPlayer::Stop() {
  if (open_) player_->stop();
}

void SoundPlayer::Close() {
  open_ = false;
  player_.reset();
  output_.reset();
}

int SoundPlayer::Length() const { return open_ ? static_cast<int>(player_->duration()) : 0; }

}  // namespace orvane

// What the program looks up in the library, under a name that no compiler changes.
extern "C" Q_DECL_EXPORT orvane::Sound* OrvaneMakeSound() { return new orvane::SoundPlayer; }
