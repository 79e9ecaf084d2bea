#include "shell/front_frames.h"

#include <cmath>
#include <embedded/AuthorFrame.h>
#include <embedded/DnaFrames.h>
#include <embedded/ProteinFrames.h>

namespace orvane {
namespace {

constexpr float kStepsPerPixel = 16.0F;
constexpr int kFrameSide = 360;                  // surface pixels
constexpr Colour kDarkGround = Rgb(24, 35, 44);  // also of the author window's head

// Whole numbers in little-endian order, whatever the machine.
class Writer {
 public:
  std::string Bytes;

  void Number(std::uint32_t value, int width) {
    for (int i = 0; i < width; ++i) Bytes += static_cast<char>((value >> (8 * i)) & 255U);
  }
  void PlaceOf(float pixels) {
    Number(static_cast<std::uint32_t>(std::lround(pixels * kStepsPerPixel)), 2);
  }
};

class Reader {
 public:
  explicit Reader(std::span<const unsigned char> bytes) : bytes_(bytes) {}

  bool HasMore() const { return at_ < bytes_.size(); }
  std::uint32_t Number(std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width; ++i, ++at_) value |= std::uint32_t{bytes_[at_]} << (8 * i);
    return value;
  }
  float PlaceOf() {
    return static_cast<float>(static_cast<std::int16_t>(Number(2))) / kStepsPerPixel;
  }

 private:
  std::span<const unsigned char> bytes_;
  std::size_t at_ = 0;
};

Stroke ReadStroke(Reader& reader) {
  Stroke stroke;
  stroke.Kind = static_cast<StrokeKind>(reader.Number(1));
  stroke.Width = static_cast<std::uint8_t>(reader.Number(1));
  stroke.Style = static_cast<std::uint8_t>(reader.Number(1));
  stroke.X1 = reader.PlaceOf();
  stroke.Y1 = reader.PlaceOf();
  stroke.X2 = reader.PlaceOf();
  stroke.Y2 = reader.PlaceOf();
  stroke.Ink = reader.Number(3);
  stroke.Fill = reader.Number(3);
  return stroke;
}

}  // namespace

std::string FramesAsBytes(std::span<const std::shared_ptr<const Picture>> frames) {
  Writer writer;
  for (const auto& frame : frames) {
    writer.Number(static_cast<std::uint32_t>(frame->Strokes.size()), 2);
    for (const Stroke& stroke : frame->Strokes) {
      writer.Number(static_cast<std::uint32_t>(stroke.Kind), 1);
      writer.Number(stroke.Width, 1);
      writer.Number(stroke.Style, 1);
      for (const float place : {stroke.X1, stroke.Y1, stroke.X2, stroke.Y2}) writer.PlaceOf(place);
      writer.Number(stroke.Ink, 3);
      writer.Number(stroke.Fill, 3);
    }
  }
  return writer.Bytes;
}

std::vector<std::shared_ptr<const Picture>> FramesFromBytes(std::span<const unsigned char> bytes) {
  std::vector<std::shared_ptr<const Picture>> frames;
  Reader reader(bytes);
  while (reader.HasMore()) {
    auto frame = std::make_shared<Picture>();
    frame->Width = kFrameSide;
    frame->Height = kFrameSide;
    const std::uint32_t count = reader.Number(2);
    for (std::uint32_t i = 0; i < count; ++i) frame->Strokes.push_back(ReadStroke(reader));
    frames.push_back(std::move(frame));
  }
  return frames;
}

void FillInformationPictures(Orvane_Desk& desk) {
  const auto protein = FramesFromBytes(embedded::ProteinFrames());
  const auto dna = FramesFromBytes(embedded::DnaFrames());
  for (std::size_t i = 0; i < kFrontFrames; ++i) {
    desk.front.Pro_Image[i].SetPicture(protein.at(i));
    desk.front.DNA_Image[i].SetPicture(dna.at(i));
  }
  desk.front.Image1[0].SetPicture(protein.front());
  desk.front.Image1[1].SetPicture(dna.front());
  desk.content.Image1[0].SetPicture(dna.front());
  desk.content.Image1[1].SetPicture(protein.front());
  Picture alanine = *FramesFromBytes(embedded::AuthorFrame()).front();
  alanine.BackColor = kDarkGround;
  desk.author.Image1.SetPicture(std::make_shared<const Picture>(std::move(alanine)));
}

}  // namespace orvane
