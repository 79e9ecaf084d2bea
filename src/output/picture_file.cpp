#include "output/picture_file.h"

#include <algorithm>

#include "runtime/failure.h"

namespace orvane {
namespace {

// Letters, not bytes: every byte of UTF-8 except those that continue a letter.
long LetterCount(std::string_view text) {
  return std::count_if(text.begin(), text.end(),
                       [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

// The plot window if it is open, the panel of a split view, else the surface. The captions, not the
// flags, say whether the view is split, so the surface is taken while D/L Str is on, though it is
// hidden.
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

}  // namespace

void WritePicture(Orvane_Desk& desk, const PictureFormat& format, const std::string& name,
                  bool recording) {
  const long letters = LetterCount(name);
  if (letters >= 4 || letters == 0) return;
  if (name.find_first_of("/\\") != std::string::npos) {
    FailPlatform("\"" + name + "\" is not a file name: a picture goes to one folder only");
  }
  SaveRequest request;
  request.Format = recording ? FileFormat::GifFrame : format.Format;
  request.Name = name + std::string(format.Suffix);
  request.Source = &PictureOnScreen(desk, !recording);
  request.FirstFrame = recording && desk.recording.GifFrame == 0;
  desk.platform.SavePicture(request);
}

}  // namespace orvane
