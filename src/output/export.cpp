#include "output/export.h"

#include <algorithm>

#include "runtime/failure.h"
#include "view/spin.h"

namespace orvane {
namespace {

// The hourglass until the end of the command, also when the save fails.
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
  FileFormat Format;
  std::string_view Title;  // of the box that asks for the name
  std::string_view Suffix;
};
constexpr SaveCommand kBmp{FileFormat::Bmp, "Output BMP format", ".bmp"};
constexpr SaveCommand kJpeg{FileFormat::Jpeg, "Output JPEG format", ".jpg"};
constexpr SaveCommand kGif{FileFormat::Gif, "Output GIF format", ".gif"};

// Letters, not bytes: every byte of UTF-8 but those that go on with a letter.
long LetterCount(std::string_view text) {
  return std::count_if(text.begin(), text.end(),
                       [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

std::string AskForName(Orvane_Desk& desk, const SaveCommand& command) {
  return desk.platform.InputBox("Type in file name", command.Title);
}

// The plot window if it is open, the panel of a split view, else the surface. The captions and not
// the flags tell of a split view, so the surface is taken while D/L Str is on, though it is hidden.
Control& PictureOnScreen(Orvane_Desk& desk, bool plot_counts) {
  if (plot_counts && desk.plot.Visible) {
    desk.plot.BringToFront();
    desk.platform.Wait(0);
    return desk.plot;
  }
  if (desk.main.Bt3_Isomers.Caption == "D / L On" || desk.main.Bt3_Sterio.Caption == "Stereo On") {
    return desk.main.P_Sterio;
  }
  return desk.main.Picture1;
}

void WritePicture(Orvane_Desk& desk, const SaveCommand& command, const std::string& name,
                  bool recording) {
  // Only names of one to three letters are written. A longer one is refused in silence, with its
  // suffix or without.
  const long letters = LetterCount(name);
  if (letters >= 4 || letters == 0) return;
  if (name.find_first_of("/\\") != std::string::npos) {
    FailPlatform("\"" + name + "\" is not a file name: a picture goes to one folder only");
  }
  SaveRequest request;
  request.Format = recording ? FileFormat::GifFrame : command.Format;
  request.Name = name + std::string(command.Suffix);
  request.Source = &PictureOnScreen(desk, !recording);
  request.FirstFrame = recording && desk.recording.GifFrame == 0;
  desk.platform.SavePicture(request);
}

void SavePlain(Orvane_Desk& desk, const SaveCommand& command) {
  const Hourglass hourglass(desk.main);
  WritePicture(desk, command, AskForName(desk, command), false);
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
  WritePicture(desk, kGif, name, recording);
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
