// The toolkit's application as every program of windows here wants it: in the type and style of the
// desk whatever the desktop around it wears, and living on when its last window goes, since the
// desk says when the program ends.
#pragma once

#include <QApplication>

namespace orvane {

class Application : public QApplication {
 public:
  Application(int& count, char** words);
};

}  // namespace orvane
