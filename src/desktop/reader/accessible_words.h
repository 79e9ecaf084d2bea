// What a screen reader is told by itself: what the picture shows, where the walk over the atoms
// stands and which names come up on the map, whenever that changes.
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

// Nothing to be seen: readers speak a notice that comes to be shown, wherever the keyboard is.
class Announcer : public QWidget {
 public:
  explicit Announcer(QWidget& ground);
  void Say(const QString& words);
};

class AccessibleWords {
 public:
  using HostOf = std::function<Host&(Window&)>;  // the window on the screen, made if need be

  AccessibleWords(Orvane_Desk& desk, HostOf host_of);

  // Something on the desk has changed. Many changes of one command are told once.
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
  QString on_map_;                      // names on the map when it was last told of
  std::unordered_map<const Window*, QPointer<Announcer>> announcers_;  // made for the first reader
};

}  // namespace orvane
