#include "controls/surface.h"

#include <algorithm>
#include <functional>

#include "raster/raster.h"

namespace orvane {
namespace {

// The two halves of a split view and one more holder keep a snapshot each. A list is set aside for
// each snapshot until it is dropped.
constexpr std::size_t kMostSpares = 4;
constexpr std::size_t kFewestTextSlots = 256;

// Takes a stroke back if there was no memory for its text.
struct NotWithoutText {
  std::vector<Stroke>& Strokes;
  bool Has = false;

  ~NotWithoutText() {
    if (!Has) Strokes.pop_back();
  }
};

}  // namespace

PictureBox::PictureBox(Window& window, std::string_view name, int width, int height)
    : Control(window, name),
      content_(std::make_shared<Picture>()),
      text_slots_(kFewestTextSlots, 0) {
  content_->Width = width;
  content_->Height = height;
  spares_.reserve(kMostSpares);
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
  Stroke& stroke = Append(StrokeKind::Line);
  stroke.Style = static_cast<std::uint8_t>(DrawStyle);
  stroke.X1 = static_cast<float>(x1);
  stroke.Y1 = static_cast<float>(y1);
  stroke.X2 = static_cast<float>(x2);
  stroke.Y2 = static_cast<float>(y2);
  stroke.Ink = colour;
  CurrentX = x2;
  CurrentY = y2;
  TellDrawn(stroke, {});
}

void PictureBox::Circle(double x, double y, double radius, Colour outline) {
  Stroke& stroke = Append(StrokeKind::Circle);
  stroke.Style = static_cast<std::uint8_t>(FillStyle);
  stroke.X1 = static_cast<float>(x);
  stroke.Y1 = static_cast<float>(y);
  stroke.X2 = static_cast<float>(radius);
  stroke.Ink = outline;
  stroke.Fill = FillColor;
  TellDrawn(stroke, {});
}

void PictureBox::Print(std::string_view text) {
  Stroke& stroke = Append(StrokeKind::Print);
  NotWithoutText text_follows{content_->Strokes};
  stroke.X1 = static_cast<float>(CurrentX);
  stroke.Y1 = static_cast<float>(CurrentY);
  stroke.Ink = ForeColor;
  stroke.Text = IndexOf(text);
  text_follows.Has = true;
  TellDrawn(stroke, text);
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

// The caller fills in the stroke where it lies: copying a whole one, just after its small fields
// were written, takes longer than all the rest of a call.
Stroke& PictureBox::Append(StrokeKind kind) {
  if (content_->Strokes.size() >= kMostStrokes) {
    Wipe(std::make_shared<Bitmap>(Raster().Paint(*content_)));
  }
  Stroke& stroke = Own().Strokes.emplace_back();
  stroke.Kind = kind;
  stroke.Width = static_cast<std::uint8_t>(std::clamp(DrawWidth, 0, 255));
  return stroke;
}

void PictureBox::TellDrawn(const Stroke& stroke, std::string_view text) {
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
