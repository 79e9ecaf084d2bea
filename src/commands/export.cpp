#include "commands/export.h"

#include <memory>
#include <utility>

#include "commands/spin.h"
#include "desk/actions.h"
#include "output/picture_file.h"

namespace orvane {
namespace {

// Shows the hourglass until the end of the command: while its question is open, and even when the
// save fails.
class Hourglass {
 public:
  explicit Hourglass(MainWindow& window) : window_(window) {
    window_.MousePointer = kPointerHourglass;
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { End(); }

  void End() {
    if (std::exchange(shown_, false)) window_.MousePointer = kPointerDefault;
  }

 private:
  MainWindow& window_;
  bool shown_ = true;
};

struct SaveCommand {
  PictureFormat Format;
  std::string_view Title;  // of the box that asks for the name
};
constexpr SaveCommand kBmp{{FileFormat::Bmp, ".bmp"}, "Output BMP format"};
constexpr SaveCommand kJpeg{{FileFormat::Jpeg, ".jpg"}, "Output JPEG format"};
constexpr SaveCommand kGif{{FileFormat::Gif, ".gif"}, "Output GIF format"};

void AskForName(Orvane_Desk& desk, Control& asking, const SaveCommand& command,
                std::function<void(const std::string&)> then) {
  Ask(desk, asking, "Type in file name", command.Title, std::move(then));
}

void SavePlain(Orvane_Desk& desk, Control& asking, const SaveCommand& command) {
  const auto hourglass = std::make_shared<Hourglass>(desk.main);
  AskForName(desk, asking, command, [&desk, &command, hourglass](const std::string& name) {
    WritePicture(desk, command.Format, name, false);
  });
}

void WriteGif(Orvane_Desk& desk, const std::string& name, bool recording) {
  if (name.empty() && desk.recording.GifRecording != 0) {
    desk.recording.GifRecording = 0;
    P_Auto_Rotate_Click(desk);
  }
  WritePicture(desk, kGif.Format, name, recording);
}

}  // namespace

void S_bmp_Click(Orvane_Desk& desk) { SavePlain(desk, desk.main.S_bmp, kBmp); }

void S_JPG_Click(Orvane_Desk& desk) {
  desk.recording.GifRecording = 0;
  SavePlain(desk, desk.main.S_JPG, kJpeg);
}

void SaveGif(Orvane_Desk& desk, Control& asking, std::function<void()> then) {
  const auto hourglass = std::make_shared<Hourglass>(desk.main);
  const bool recording = desk.recording.GifRecording != 0;
  if (recording && desk.recording.GifFrame != 0) {
    WriteGif(desk, desk.recording.GifBaseName, recording);
    hourglass->End();
    return then();
  }
  AskForName(desk, asking, kGif,
             [&desk, hourglass, recording, then = std::move(then)](const std::string& name) {
               desk.recording.GifBaseName = name;
               WriteGif(desk, name, recording);
               hourglass->End();
               then();
             });
}

void S_Gif_Click(Orvane_Desk& desk) {
  SaveGif(desk, desk.main.S_Gif, [] {});
}

void ReportRefusedName(Orvane_Desk& desk, std::string_view name) {
  desk.main.MousePointer = kPointerDefault;
  desk.platform.MessageBox("'" + std::string(name) + "' not accepted as a file name, try again");
}

void P_Sterio_Click(Orvane_Desk& desk) {
  desk.platform.Wait(0);
  desk.platform.SavePicture(
      {.Format = FileFormat::Gif, .Name = "test.gif", .Source = &desk.main.P_Sterio});
}

}  // namespace orvane
