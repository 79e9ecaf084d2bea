// The toolkit's application as every program with windows here needs it: in the type and style of
// the desk, whatever the desktop's theme, and alive after its last window closes, since the desk
// decides when the program ends.
#pragma once

#include <QApplication>

namespace orvane {

class Application : public QApplication {
 public:
  Application(int& count, char** words);
};

}  // namespace orvane
