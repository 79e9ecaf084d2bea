#include "commands/export.h"

#include "commands/spin.h"
#include "output/picture_file.h"

namespace orvane {
namespace {

// Shows the hourglass until the end of the command, even when the save fails.
class Hourglass {
 public:
  explicit Hourglass(MainWindow& window) : window_(window) {
    window_.MousePointer = kPointerHourglass;
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { window_.MousePointer = kPointerDefault; }

 private:
  MainWindow& window_;
};

struct SaveCommand {
  PictureFormat Format;
  std::string_view Title;  // of the box that asks for the name
};
constexpr SaveCommand kBmp{{FileFormat::Bmp, ".bmp"}, "Output BMP format"};
constexpr SaveCommand kJpeg{{FileFormat::Jpeg, ".jpg"}, "Output JPEG format"};
constexpr SaveCommand kGif{{FileFormat::Gif, ".gif"}, "Output GIF format"};

std::string AskForName(Orvane_Desk& desk, const SaveCommand& command) {
  return desk.platform.InputBox("Type in file name", command.Title);
}

void SavePlain(Orvane_Desk& desk, const SaveCommand& command) {
  const Hourglass hourglass(desk.main);
  WritePicture(desk, command.Format, AskForName(desk, command), false);
}

}  // namespace

void S_bmp_Click(Orvane_Desk& desk) { SavePlain(desk, kBmp); }

void S_JPG_Click(Orvane_Desk& desk) {
  desk.recording.GifRecording = 0;
  SavePlain(desk, kJpeg);
}

void S_Gif_Click(Orvane_Desk& desk) {
  const Hourglass hourglass(desk.main);
  const bool recording = desk.recording.GifRecording != 0;
  std::string name = desk.recording.GifBaseName;
  if (!recording || desk.recording.GifFrame == 0) {
    name = AskForName(desk, kGif);
    desk.recording.GifBaseName = name;
  }
  if (name.empty() && desk.recording.GifRecording != 0) {
    desk.recording.GifRecording = 0;
    P_Auto_Rotate_Click(desk);
  }
  WritePicture(desk, kGif.Format, name, recording);
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
