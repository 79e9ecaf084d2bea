#include "desktop/outside/qt_platform.h"

#include <QApplication>
#include <QDateTime>
#include <QInputDialog>
#include <QMessageBox>
#include <QThread>

#include "desktop/outside/picture_files.h"
#include "desktop/outside/printed_page.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

constexpr const char* kTitle = "Orvane";

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Counts a box as long as it is open.
struct BoxUp {
  explicit BoxUp(int& boxes) : count(boxes) { ++count; }
  ~BoxUp() { --count; }
  int& count;
};

// OK is the default, Escape closes.
void ShowBox(std::string_view text, QMessageBox::Icon icon) {
  QMessageBox box(icon, QString::fromLatin1(kTitle), Text(text), QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Ok);
  box.exec();
}

}  // namespace

void QtPlatform::Beep() { QApplication::beep(); }

void QtPlatform::MessageBox(std::string_view text) {
  const BoxUp up(boxes_);
  ShowBox(text, QMessageBox::NoIcon);
}

void QtPlatform::WarningBox(std::string_view text) {
  const BoxUp up(boxes_);
  ShowBox(text, QMessageBox::Warning);
}

void QtPlatform::FailureBox(std::string_view text) {
  const BoxUp up(boxes_);
  ShowBox(text, QMessageBox::Critical);
}

std::optional<std::string> QtPlatform::InputBox(std::string_view prompt, std::string_view title) {
  const BoxUp up(boxes_);
  return QInputDialog::getText(QApplication::activeWindow(),
                               title.empty() ? QString::fromLatin1(kTitle) : Text(title),
                               Text(prompt))
      .toStdString();
}

void QtPlatform::LetEventsRun() { QCoreApplication::processEvents(); }

void QtPlatform::Wait(int seconds) {
  // The clock counts whole seconds: a wait of 0 lasts until the next second begins.
  const qint64 last = QDateTime::currentSecsSinceEpoch() + seconds;
  while (!ended_ && QDateTime::currentSecsSinceEpoch() <= last) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QThread::msleep(1);
  }
}

void QtPlatform::EndProgram() {
  ended_ = true;
  QCoreApplication::exit(0);
}

void QtPlatform::SavePicture(const SaveRequest& request) {
  SavePictureFile(*screen, request, PictureFolder(ProgramFolder()));
}

bool QtPlatform::PrintWindow(Window& page) { return PrintOnPaper(*screen, page); }

std::string QtPlatform::ProgramFolder() {
  return QCoreApplication::applicationDirPath().toStdString();
}

int QtPlatform::SoundOpen(const std::string& path) {
  if (sound_ == nullptr) sound_ = MakeSound();
  return sound_ == nullptr ? kSoundNoPlayer : sound_->Open(path);
}

void QtPlatform::SoundPlay() {
  if (sound_ != nullptr) sound_->Play();
}

void QtPlatform::SoundStop() {
  if (sound_ != nullptr) sound_->Stop();
}

void QtPlatform::SoundClose() {
  if (sound_ != nullptr) sound_->Close();
}

bool QtPlatform::SoundIsOpen() { return sound_ != nullptr && sound_->IsOpen(); }
int QtPlatform::SoundLength() { return sound_ == nullptr ? 0 : sound_->Length(); }

}  // namespace orvane
