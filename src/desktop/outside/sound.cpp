#include "desktop/outside/sound.h"

#include <QCoreApplication>
#include <QLibrary>

namespace orvane {

// The library lies beside the program: the same relative path leads there from where it is built
// and from where it is installed.
std::unique_ptr<Sound> MakeSound() {
  QLibrary library(QCoreApplication::applicationDirPath() +
                   QStringLiteral("/../lib/orvane/liborvane_sound.so"));
  using Maker = Sound* (*)();
  const auto maker = reinterpret_cast<Maker>(library.resolve("OrvaneMakeSound"));
  return std::unique_ptr<Sound>(maker == nullptr ? nullptr : maker());
}

}  // namespace orvane
