// The drawing surface: the properties and calls of a picture box under their own names. A call
// appends one stroke to the surface's list; no pixel is made until somebody looks
// (raster/raster.h).
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "controls/kinds.h"
#include "raster/picture.h"

namespace orvane {

// A list that would grow beyond this is first painted into its backdrop, so that drawing without a
// wipe does not fill the memory.
inline constexpr std::size_t kMostStrokes = 65536;

// Hears every call, in order: the replay's trace.
class SurfaceTrace {
 public:
  virtual ~SurfaceTrace() = default;
  virtual void PictureSet(int background) = 0;  // index of the background picture, -1: none
  virtual void BackColorSet(Colour colour) = 0;
  virtual void Drawn(const Stroke& stroke, std::string_view text) = 0;
};

class PictureBox : public Control {
 public:
  // `width` and `height` are the inner size in surface pixels.
  PictureBox(Window& window, std::string_view name, int width, int height);

  // Pen and text state, set before a call that uses it.
  int ScaleMode = 3;  // 3: pixels, and no other mode is set
  int DrawWidth = 1;
  int DrawStyle = 0;  // 0 solid, 2 dotted (width 1 only)
  int FillStyle = 0;  // 0 filled, 1 not
  Colour FillColor = 0;
  Colour ForeColor = 0;               // text, and the outline of a circle
  double CurrentX = 0, CurrentY = 0;  // where the next Print begins

  // Everything drawn so far is wiped, and the change event of the picture runs. `background` is the
  // index that a trace prints, -1 for no picture.
  void ResetSurface(std::shared_ptr<const Bitmap> picture, int background);
  void ResetSurface() { ResetSurface(nullptr, -1); }
  void Cls();  // wipes the strokes and keeps the picture; no change event

  Colour PlainColour() const;  // BackColor as last set
  void SetBackColor(Colour colour);

  // Each coordinate is narrowed to 32 bits here. The end of a line becomes the current position.
  void Line(double x1, double y1, double x2, double y2, Colour colour);
  void Circle(double x, double y, double radius) { Circle(x, y, radius, ForeColor); }
  // A circle whose outline has a colour of its own instead of ForeColor.
  void Circle(double x, double y, double radius, Colour outline);
  void Print(std::string_view text);

  int ScaleWidth() const;  // inner size in surface pixels
  int ScaleHeight() const;

  // The content as it stands. Costs nothing; no later call changes it.
  std::shared_ptr<const Picture> Image() const;

  SurfaceTrace* Trace = nullptr;

 private:
  Picture& Own();  // the list, for writing: copied first if a snapshot shares it
  // Leaves an empty list over that backdrop, in memory that is there already.
  void Wipe(std::shared_ptr<const Bitmap> backdrop);
  Stroke& Append(StrokeKind kind);
  std::uint32_t IndexOf(std::string_view text);
  void TellDrawn(const Stroke& stroke, std::string_view text);
  void TellDrawn();

  std::shared_ptr<Picture> content_;
  std::vector<std::shared_ptr<Picture>> spares_;  // set aside while a snapshot shared them
  std::shared_ptr<const Bitmap> picture_;  // as assigned, without the strokes painted into it
  std::vector<std::uint32_t> text_slots_;  // text index + 1 by hash, 0: free
  mutable bool told_ = false;              // the watcher was told, and nobody has looked since
};

}  // namespace orvane
