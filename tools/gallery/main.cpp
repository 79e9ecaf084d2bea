// orvane-gallery FOLDER: leaves a picture of the real window for each way of drawing and each view,
// for docs/pictures. Prints the name of each picture.

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

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

using Act = void (*)(Orvane_Desk& desk);

// Rows of the lists.
constexpr int kAlanine = 2;
constexpr int kDipeptide = 0, kAlfa = 1, kAlfb = 2, kBeta = 3, kPbs = 5, kApbs = 6;
constexpr int kDoubleStrand = 2;

struct Named {
  const char* Name;
  Act Do;
};

constexpr Named kStructures[] = {
    {"helix", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kAlfa); }},
    {"sheet", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kApbs); }},
    {"dipeptide", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kDipeptide); }},
};

// Modes that a structure does not offer are unavailable in its menu, and then leave the one before.
constexpr Named kModes[] = {
    {"wireframe", [](Orvane_Desk& d) { Click(d, d.main.D_Wf); }},
    {"sticks", [](Orvane_Desk& d) { Click(d, d.main.M_Stk); }},
    {"ball-stick", [](Orvane_Desk& d) { Click(d, d.main.D_StB); }},
    {"ca-trace", [](Orvane_Desk& d) { Click(d, d.main.D_Ca); }},
    {"ribbon", [](Orvane_Desk& d) { Click(d, d.main.M_Rbn); }},
    {"cartoon", [](Orvane_Desk& d) { Click(d, d.main.Cartn); }},
    {"planes", [](Orvane_Desk& d) { Click(d, d.main.PPB_SB); }},
};

constexpr Named kSubjects[] = {
    {"alanine", [](Orvane_Desk& d) { SelectRow(d, d.main.AA_Lst, kAlanine); }},
    {"dna", [](Orvane_Desk& d) { SelectRow(d, d.main.DNA_Lst, kDoubleStrand); }},
};

// The D/L toggle is open to amino acids only.
constexpr Named kViews[] = {
    {"stereo", [](Orvane_Desk& d) { Click(d, d.main.Bt3_Sterio); }},
    {"red-green", [](Orvane_Desk& d) { Click(d, d.main.R_G_Stereo); }},
    {"enantiomers", [](Orvane_Desk& d) { Click(d, d.main.Bt3_Isomers); }},
    {"both-pairs", [](Orvane_Desk& d) { Click(d, d.main.Bt3_D_L_Str); }},
};

constexpr Named kMaps[] = {
    {"map-helix", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kAlfa); }},
    {"map-strand", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kBeta); }},
    {"map-parallel", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kPbs); }},
    {"map-antiparallel", [](Orvane_Desk& d) { SelectRow(d, d.main.Pro_Lst, kApbs); }},
};

// A desk of its own for every picture, so that no view stands in the way of the next.
struct Visit {
  QtPlatform platform;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  Skin skin{desk, platform};

  Visit() {
    desk.front.Hide();
    desk.main.Show();
  }

  bool Keep(Window& window, const QString& folder, const std::string& name) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 150) QApplication::processEvents(QEventLoop::AllEvents, 50);
    const QString file = QDir(folder).filePath(QString::fromStdString(name) + ".png");
    std::printf("%s\n", qPrintable(file));
    return skin.WindowOf(window).grab().save(file);
  }
};

bool KeepAll(const QString& folder) {
  bool kept = QDir().mkpath(folder);
  for (const Named& structure : kStructures) {
    for (const Named& mode : kModes) {
      Visit visit;
      structure.Do(visit.desk);
      mode.Do(visit.desk);
      kept &= visit.Keep(visit.desk.main, folder, std::string(structure.Name) + "-" + mode.Name);
    }
  }
  Visit planes;
  SelectRow(planes.desk, planes.desk.main.Pro_Lst, kAlfb);
  Click(planes.desk, planes.desk.main.OPB);
  kept &= planes.Keep(planes.desk.main, folder, "polyalanine-planes-only");
  for (const Named& subject : kSubjects) {
    for (const Named& view : kViews) {
      Visit visit;
      subject.Do(visit.desk);
      view.Do(visit.desk);
      kept &= visit.Keep(visit.desk.main, folder, std::string(subject.Name) + "-" + view.Name);
    }
  }
  for (const Named& map : kMaps) {
    Visit visit;
    map.Do(visit.desk);
    Click(visit.desk, visit.desk.main.RCDP);
    kept &= visit.Keep(visit.desk.plot, folder, map.Name);
  }
  return kept;
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  orvane::Application application(count, words);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::fprintf(stderr, "usage: orvane-gallery FOLDER\n");
    return 2;
  }
  return orvane::KeepAll(arguments[1]) ? 0 : 1;
}
