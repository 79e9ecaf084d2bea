#include "draw/surface.h"

#include <algorithm>
#include <functional>

#include "draw/raster.h"

namespace orvane {
namespace {

// The two halves of a split view and one more keep a snapshot each, and a list is put aside for
// each of them until they drop it.
constexpr std::size_t kMostSpares = 4;
constexpr std::size_t kFewestTextSlots = 256;

}  // namespace

PictureBox::PictureBox(Window& window, std::string_view name, int width, int height)
    : Control(window, name),
      content_(std::make_shared<Picture>()),
      text_slots_(kFewestTextSlots, 0) {
  content_->Width = width;
  content_->Height = height;
}

void PictureBox::ResetSurface(std::shared_ptr<const Bitmap> picture, int background) {
  picture_ = std::move(picture);
  Wipe(picture_);
  if (Trace != nullptr) Trace->PictureSet(background);
  TellDrawn();
  Raise({.Kind = EventKind::Change});
}

void PictureBox::Cls() {
  Wipe(picture_);
  TellDrawn();
}

Colour PictureBox::PlainColour() const { return BackColor; }

void PictureBox::SetBackColor(Colour colour) {
  Own().BackColor = colour;
  BackColor = colour;
  if (Trace != nullptr) Trace->BackColorSet(colour);
  TellDrawn();
}

void PictureBox::Line(double x1, double y1, double x2, double y2, Colour colour) {
  Append({.Kind = StrokeKind::Line,
          .Style = static_cast<std::uint8_t>(DrawStyle),
          .X1 = static_cast<float>(x1),
          .Y1 = static_cast<float>(y1),
          .X2 = static_cast<float>(x2),
          .Y2 = static_cast<float>(y2),
          .Ink = colour},
         {});
  CurrentX = x2;
  CurrentY = y2;
}

void PictureBox::Circle(double x, double y, double radius, Colour outline) {
  Append({.Kind = StrokeKind::Circle,
          .Style = static_cast<std::uint8_t>(FillStyle),
          .X1 = static_cast<float>(x),
          .Y1 = static_cast<float>(y),
          .X2 = static_cast<float>(radius),
          .Ink = outline,
          .Fill = FillColor},
         {});
}

void PictureBox::Print(std::string_view text) {
  Append({.Kind = StrokeKind::Print,
          .X1 = static_cast<float>(CurrentX),
          .Y1 = static_cast<float>(CurrentY),
          .Ink = ForeColor},
         text);
}

int PictureBox::ScaleWidth() const { return content_->Width; }
int PictureBox::ScaleHeight() const { return content_->Height; }

std::shared_ptr<const Picture> PictureBox::Image() const {
  told_ = false;
  return content_;
}

Picture& PictureBox::Own() {
  if (content_.use_count() > 1) content_ = std::make_shared<Picture>(*content_);
  return *content_;
}

void PictureBox::Wipe(std::shared_ptr<const Bitmap> backdrop) {
  if (content_.use_count() > 1) {
    const int width = content_->Width;
    const int height = content_->Height;
    const auto free = std::find_if(spares_.begin(), spares_.end(),
                                   [](const auto& spare) { return spare.use_count() == 1; });
    if (free != spares_.end()) {
      content_.swap(*free);
    } else {
      if (spares_.size() == kMostSpares) spares_.erase(spares_.begin());
      spares_.push_back(std::exchange(content_, std::make_shared<Picture>()));
    }
    content_->Width = width;
    content_->Height = height;
  }
  content_->BackColor = BackColor;
  content_->Backdrop = std::move(backdrop);
  content_->Strokes.clear();
  content_->Texts.clear();
  text_slots_.assign(kFewestTextSlots, 0);
}

void PictureBox::Append(Stroke stroke, std::string_view text) {
  stroke.Width = static_cast<std::uint8_t>(std::clamp(DrawWidth, 0, 255));
  if (content_->Strokes.size() >= kMostStrokes) {
    Wipe(std::make_shared<Bitmap>(Raster().Paint(*content_)));
  }
  Picture& content = Own();
  if (stroke.Kind == StrokeKind::Print) stroke.Text = IndexOf(text);
  content.Strokes.push_back(stroke);
  if (Trace != nullptr) Trace->Drawn(stroke, text);
  TellDrawn();
}

std::uint32_t PictureBox::IndexOf(std::string_view text) {
  std::vector<std::string>& texts = content_->Texts;
  if (2 * texts.size() >= text_slots_.size()) {
    text_slots_.assign(2 * text_slots_.size(), 0u);
    for (std::uint32_t index = 0; index < texts.size(); ++index) {
      std::size_t slot = std::hash<std::string_view>()(texts[index]);
      while (text_slots_[slot %= text_slots_.size()] != 0) ++slot;
      text_slots_[slot] = index + 1;
    }
  }
  std::size_t slot = std::hash<std::string_view>()(text);
  while (text_slots_[slot %= text_slots_.size()] != 0) {
    const std::uint32_t index = text_slots_[slot] - 1;
    if (texts[index] == text) return index;
    ++slot;
  }
  texts.emplace_back(text);
  text_slots_[slot] = static_cast<std::uint32_t>(texts.size());
  return text_slots_[slot] - 1;
}

void PictureBox::TellDrawn() {
  if (told_) return;
  told_ = true;
  TellWatcher(*this, Aspect::Surface);
}

}  // namespace orvane
