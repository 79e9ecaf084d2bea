// orvane-pictures SCRIPT FOLDER: plays a script of orvane-replay on a desk with real windows, and
// leaves the pictures that its comments ask for. Prints the name of each picture.
//
//     # picture NAME            the main window, as FOLDER/NAME.png
//     # picture NAME CONTROL    one control of it, or of another window: "Picture1", "P_Sterio"
//     # picture NAME WINDOW     another window: "Ramachandran"
//
// A line "restart" begins again with another desk and other windows, so that no view affects the
// next. For orvane-replay these lines are comments, and the script is a script like any other.
#include <cstdio>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>

#include "desktop/outside/qt_platform.h"
#include "desktop/programs/application.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "replay/player.h"

namespace orvane {
namespace {

constexpr std::string_view kAsks = "# picture ";

// The desk is the player's, and the script answers its boxes; the windows show it.
struct Visit {
  std::ostringstream unread;
  Player player{unread};
  QtPlatform outside;
  Skin skin{*player.desk, outside};
};

void LetWindowsSettle() {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 150) QApplication::processEvents(QEventLoop::AllEvents, 50);
}

QWidget* WidgetNamed(Visit& visit, const std::string& name) {
  for (Window* window : visit.player.desk->windows) {
    if (name == window->Name) return &visit.skin.WindowOf(*window);
  }
  const Control* control = visit.player.desk->FindControl(name);
  return control == nullptr ? nullptr : visit.skin.WidgetOf(*control);
}

// Returns what is wrong with the line; empty if it was done.
std::string Keep(Visit& visit, std::string_view asked, const QDir& folder) {
  std::istringstream words{std::string(asked)};
  std::string name, subject = "Orvane_Desk";
  words >> name >> subject;
  QWidget* const widget = WidgetNamed(visit, subject);
  if (widget == nullptr) return "there is no window or control " + subject;
  LetWindowsSettle();
  const QString file = folder.filePath(QString::fromStdString(name) + ".png");
  if (!widget->grab().save(file)) return qPrintable(file + " cannot be written");
  std::printf("%s\n", qPrintable(file));
  return "";
}

int PlayWithPictures(const char* script, const QDir& folder) {
  std::ifstream lines(script);
  if (!lines || !QDir().mkpath(folder.path())) {
    std::fprintf(stderr, "orvane-pictures: no such script or folder\n");
    return 2;
  }
  std::optional<Visit> visit;
  visit.emplace();
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    std::string complaint;
    if (line == "restart") {
      visit.emplace();
    } else if (line.starts_with(kAsks)) {
      complaint = Keep(*visit, line.substr(kAsks.size()), folder);
    } else {
      complaint = PlayLine(visit->player, line);
    }
    if (complaint.empty()) continue;
    std::fprintf(stderr, "%s: line %d: %s\n", script, number, complaint.c_str());
    return 1;
  }
  return 0;
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  orvane::Application application(count, words);
  if (count != 3) {
    std::fprintf(stderr, "usage: orvane-pictures SCRIPT FOLDER\n");
    return 2;
  }
  return orvane::PlayWithPictures(words[1], QDir(QString::fromLocal8Bit(words[2])));
}
