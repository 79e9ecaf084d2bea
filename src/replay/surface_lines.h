// The trace: a line for every call on the drawing surface, and for every mark on the plot.
#pragma once

#include "controls/surface.h"
#include "replay/output.h"

namespace orvane {

class SurfaceLines : public SurfaceTrace {
 public:
  explicit SurfaceLines(Output& output) : output_(output) {}

  void PictureSet(int background) override;
  void BackColorSet(Colour colour) override;
  void Drawn(const Stroke& stroke, std::string_view text) override;

 private:
  Output& output_;
};

// Circles on one picture of the plot; nothing else that happens to it is printed.
class PlotLines : public SurfaceTrace {
 public:
  PlotLines(Output& output, int index) : output_(output), index_(index) {}

  void PictureSet(int) override {}
  void BackColorSet(Colour) override {}
  void Drawn(const Stroke& stroke, std::string_view text) override;

 private:
  Output& output_;
  const int index_;
};

}  // namespace orvane
