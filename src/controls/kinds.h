// The kinds of control that are little more than their state. The bars and the picture box have
// files of their own: controls/scroll_bar.h and controls/surface.h.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controls/control.h"
#include "controls/window.h"

namespace orvane {

struct Picture;  // raster/picture.h: what a surface showed at a moment, or a stored image

class Panel : public Control {
  using Control::Control;
};
class Button : public Control {
  using Control::Control;
};
class Label : public Control {
  using Control::Control;
};
// Lines and plates: they get no events.
class Ornament : public Control {
  using Control::Control;
};
class MenuEntry : public Control {
  using Control::Control;
};

class List : public Control {
 public:
  using Control::Control;

  Watched<std::vector<std::string>, Aspect::Rows> Rows{*this, {}};
  Watched<int, Aspect::Value> ListIndex{*this, -1};  // chosen row from 0; -1: none

  // Text of the chosen row, empty without one.
  std::string Text() const {
    const auto& rows = Rows.Get();
    const int row = ListIndex;
    return row >= 0 && row < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(row)]
                                                           : "";
  }
};

// One of the three lists of the music chooser. The platform fills them; the logic keeps the folder
// and the pattern that are shown, and the chosen file.
class FileList : public Control {
 public:
  using Control::Control;

  Watched<std::string, Aspect::Rows> Path{*this, ""};       // folder whose content is listed
  Watched<std::string, Aspect::Rows> Pattern{*this, ""};    // "*.wav;*.au"
  Watched<std::string, Aspect::Value> FileName{*this, ""};  // chosen file
};

class TextBox : public Control {
 public:
  TextBox(Window& window, std::string_view name)
      : Control(window, name), Text(*this, std::string(Row.Caption)) {}

  Watched<std::string, Aspect::Text> Text;
};

class Timer : public Control {
 public:
  Timer(Window& window, std::string_view name)
      : Control(window, name), Interval(*this, Row.Interval) {}

  Watched<int, Aspect::Interval> Interval;  // milliseconds
};

// A passive holder: it keeps the picture last given to it and stretches it to its own square.
class ImageBox : public Control {
 public:
  using Control::Control;

  const std::shared_ptr<const Picture>& Shown() const { return picture_; }
  // Tells the watcher each time, even when the same picture is given again.
  void SetPicture(std::shared_ptr<const Picture> picture) {
    picture_ = std::move(picture);
    TellWatcher(*this, Aspect::Picture);
  }

 private:
  std::shared_ptr<const Picture> picture_;
};

// Like controls in an array with indices 0 to kCount - 1: ControlArray<Panel, 3> X_Tag.
template <class T, std::size_t kCount>
class ControlArray {
 public:
  ControlArray(Window& window, std::string_view name)
      : elements_(Make(window, name, std::make_index_sequence<kCount>())) {}

  T& operator[](std::size_t index) { return elements_[index]; }
  const T& operator[](std::size_t index) const { return elements_[index]; }
  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  static constexpr std::size_t size() { return kCount; }

 private:
  static std::string ElementName(std::string_view name, std::size_t index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
  }
  template <std::size_t... kIndex>
  static std::array<T, kCount> Make(Window& window, std::string_view name,
                                    std::index_sequence<kIndex...>) {
    return {T(window, ElementName(name, kIndex))...};
  }

  std::array<T, kCount> elements_;
};

}  // namespace orvane
