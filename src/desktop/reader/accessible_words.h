// What a screen reader is told without asking: what the picture shows, where the walk over the
// atoms stands and which names show on the map, whenever that changes.
#pragma once

#include <functional>
#include <unordered_map>

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "controls/window.h"

namespace orvane {

class Host;
struct Orvane_Desk;

// An invisible notice: readers speak a notice when it is shown, wherever the keyboard is.
class Announcer : public QWidget {
 public:
  explicit Announcer(QWidget& ground);
  void Say(const QString& words);
};

class AccessibleWords {
 public:
  using HostOf = std::function<Host&(Window&)>;  // the window on the screen, made if need be

  AccessibleWords(Orvane_Desk& desk, HostOf host_of);

  // Something on the desk has changed. The many changes of one command are told once.
  void Soon(const Window& where);

 private:
  void Tell();
  void TellPicture();
  void TellMap();
  void Say(Window& where, const QString& words);

  Orvane_Desk& desk_;
  HostOf host_of_;
  QTimer soon_;
  bool on_desk_ = false, map_ = false;  // where something has changed
  QString on_map_;                      // the names on the map when they were last told
  std::unordered_map<const Window*, QPointer<Announcer>> announcers_;  // made for the first reader
};

}  // namespace orvane
