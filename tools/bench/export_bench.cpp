// How long it takes to make the file of a picture: one frame of the heaviest scene in each format,
// and a whole recording of a turning structure. Bytes are made but not written, so no disk is
// timed.
#include <memory>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include "canvas.h"
#include "controls/platform.h"
#include "controls/surface.h"
#include "desk/actions.h"
#include "heaviest_scene.h"
#include "output/picture_gif.h"
#include "raster/raster.h"
#include "ratios.h"
#include "shell/start_up.h"

namespace orvane::bench {
namespace {

BENCHMARK(Memset);

void ByQt(benchmark::State& state, const char* format, int quality) {
  const Picture picture = HeaviestScene();
  Raster raster;
  for (auto unused : state) {
    QImage image(360, 360, QImage::Format_RGB32);
    raster.Paint(picture, 1, reinterpret_cast<std::uint32_t*>(image.bits()), 360, 360, 360);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(image)) state.SkipWithError("not written");
    benchmark::DoNotOptimize(bytes.data());
  }
}
void OneBmp(benchmark::State& state) { ByQt(state, "bmp", -1); }
BENCHMARK(OneBmp);
void OneJpeg(benchmark::State& state) { ByQt(state, "jpg", 75); }
BENCHMARK(OneJpeg);

void OneGif(benchmark::State& state) {
  const Picture picture = HeaviestScene();
  Raster raster;
  for (auto unused : state) benchmark::DoNotOptimize(GifOf(raster.Paint(picture)));
}
BENCHMARK(OneGif);

// Answers with a name, and makes the frames.
class Camera : public Platform {
 public:
  Raster raster;
  FileBytes film;
  int frames = 0;

  void SavePicture(const SaveRequest& request) override {
    const Bitmap picture = raster.Paint(*dynamic_cast<PictureBox&>(*request.Source).Image());
    film = request.FirstFrame ? AnimationOf(picture) : WithOneMoreFrame(film, picture).value();
    ++frames;
  }
  std::optional<std::string> InputBox(std::string_view, std::string_view) override { return "abc"; }
  void Beep() override {}
  void MessageBox(std::string_view) override {}
  void WarningBox(std::string_view) override {}
  void FailureBox(std::string_view) override {}
  void LetEventsRun() override {}
  void Wait(int) override {}
  void EndProgram() override {}
  bool PrintWindow(Window&) override { return false; }
  std::string ProgramFolder() override { return ""; }
  int SoundOpen(const std::string&) override { return 1; }
  void SoundPlay() override {}
  void SoundStop() override {}
  void SoundClose() override {}
  bool SoundIsOpen() override { return false; }
  int SoundLength() override { return 0; }
};

// From the click to the tick that ends it: 18 frames, with 36 steps of the spin.
void WholeRecording(benchmark::State& state) {
  Camera camera;
  const auto desk = StartDesk(camera);
  desk->main.Visible = true;
  SelectRow(*desk, desk->main.Pro_Lst, 1);
  for (auto unused : state) {
    camera.frames = 0;
    Click(*desk, desk->main.S_AnGif);
    for (int tick = 0; tick < 36; ++tick) Tick(*desk, desk->main.Timer1);
    if (camera.frames != 18) state.SkipWithError("not 18 frames");
  }
  state.counters["bytes"] = static_cast<double>(camera.film.size());
}
BENCHMARK(WholeRecording)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  orvane::bench::Ratios ratios;
  orvane::bench::RunAll(argc, argv, ratios);
  ratios.Print("one BMP / memset of the surface", "OneBmp", "Memset");
  ratios.Print("one JPEG / memset of the surface", "OneJpeg", "Memset");
  ratios.Print("one GIF / memset of the surface", "OneGif", "Memset");
  ratios.Print("a whole recording / one GIF", "WholeRecording", "OneGif");
  return 0;
}
