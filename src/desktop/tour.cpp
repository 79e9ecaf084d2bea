// orvane-tour [FOLDER]: opens the real windows, takes one structure from each list and leaves
// pictures of what they show, in build/tour unless a folder is named. Prints the name of each
// picture.
#include <array>
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>

#include "desk/actions.h"
#include "desktop/application.h"
#include "desktop/qt_platform.h"
#include "desktop/skin.h"
#include "desktop/window_widget.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

// A stop of the tour: what is done, and the name of the picture of what it shows then.
struct Stop {
  const char* Picture;
  void (*Do)(Orvane_Desk& desk);
};

void Pick(Orvane_Desk& desk, List& list, int row) {
  if (row < static_cast<int>(list.Rows.Get().size())) SelectRow(desk, list, row);
}

// Rows: tryptophan, the alpha helix, a nucleotide, the double strand.
constexpr auto kStops = std::to_array<Stop>({
    {"start", [](Orvane_Desk&) {}},
    {"amino-acid", [](Orvane_Desk& desk) { Pick(desk, desk.main.AA_Lst, 7); }},
    {"labels", [](Orvane_Desk& desk) { Click(desk, desk.main.Bt3_Label); }},
    {"helix",
     [](Orvane_Desk& desk) {
       Click(desk, desk.main.Bt3_Label);
       Pick(desk, desk.main.Pro_Lst, 1);
     }},
    {"ball-stick", [](Orvane_Desk& desk) { Click(desk, desk.main.Bt_BlS); }},
    {"nucleotide", [](Orvane_Desk& desk) { Pick(desk, desk.main.Nuc_Lst, 5); }},
    {"dna", [](Orvane_Desk& desk) { Pick(desk, desk.main.DNA_Lst, 2); }},
    {"stereo", [](Orvane_Desk& desk) { Click(desk, desk.main.Bt3_Sterio); }},
});

void LetWindowsSettle() {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 300) QApplication::processEvents(QEventLoop::AllEvents, 50);
}

int Tour(const QString& folder) {
  if (!QDir().mkpath(folder)) {
    std::fprintf(stderr, "orvane-tour: the folder %s cannot be made\n", qPrintable(folder));
    return 1;
  }
  QtPlatform platform;
  const auto desk = StartDesk(platform);
  Skin skin(*desk, platform);
  desk->front.Hide();
  desk->main.Show();
  for (const Stop& stop : kStops) {
    stop.Do(*desk);
    LetWindowsSettle();
    const QString file = QDir(folder).filePath(QString::fromLatin1(stop.Picture) + ".png");
    if (!skin.WindowOf(desk->main).grab().save(file)) {
      std::fprintf(stderr, "orvane-tour: %s cannot be written\n", qPrintable(file));
      return 1;
    }
    std::printf("%s\n", qPrintable(file));
  }
  return 0;
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  orvane::Application application(count, words);
  QApplication::setApplicationName(QStringLiteral("Orvane"));
  const QStringList arguments = QApplication::arguments();
  return orvane::Tour(arguments.size() > 1 ? arguments[1] : QStringLiteral("build/tour"));
}
