#include "random/windows/sitting.h"

#include <memory>
#include <utility>

#include <QTest>
#include <QThread>
#include <QTimerEvent>

#include "desk/actions.h"
#include "desktop/windows/window_widget.h"
#include "random/desk/always.h"
#include "random/windows/agreement.h"
#include "random/windows/hands.h"
#include "random/windows/timers.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

constexpr int kThoroughEvery = 16;
constexpr int kDeepest = 3;      // events inside events
constexpr int kNestOneIn = 4;    // where events run and no box or menu is open
constexpr int kMostInOne = 300;  // events inside one event; then the open box or menu is ended

struct Table : QObject {
  OutsideAtRandom outside;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(outside);
  Orvane_Desk& desk = *owned;
  Skin skin{desk, outside};
  HeldTimers timers;
  Hands hands;
  Stay sitting;
  Freedom freedom;
  LastSeen last;
  int most;
  int depth = 0;  // events that are under way
  int in_this_one = 0;
  int level = 0;      // of event loops, where the innermost of them began
  int listening = 0;  // a timer's number

  Table(std::uint64_t seed, int events,
        const std::function<void(const std::string& event)>& telling)
      : hands{{seed}, skin, outside, telling}, most(events) {
    NoteLoads();
    skin.ShowWindows();
    if (hands.dice.OneIn(8)) return;
    Click(desk, desk.front.Get_in);
    Click(desk, desk.content.Get_in);
  }

  // An event that may load says so, even if it fails.
  void NoteLoads() {
    const auto loads = [this](const Event&) { freedom.MayHaveLoaded = true; };
    for (Control* control :
         std::initializer_list<Control*>{&desk.main.AA_Lst, &desk.main.Pro_Lst, &desk.main.Nuc_Lst,
                                         &desk.main.DNA_Lst, &desk.main.Bt_M_Ld}) {
      control->Bind(EventKind::Click, loads);
      control->Bind(EventKind::Failed, loads);
    }
    for (const EventKind kind : {EventKind::Move, EventKind::Release}) {
      desk.main.Picture1.Bind(kind, [this](const Event&) { freedom.MayHaveSetAxis = true; });
    }
  }

  bool IsOver() const { return sitting.Events >= most || outside.Ended || !sitting.Wrong.empty(); }

  void MakeOne() {
    ++sitting.Events;
    ++depth;
    const int outer_level = std::exchange(level, LoopLevel());
    Listen();
    OneEvent(hands);
    level = outer_level;
    --depth;
  }

  static int LoopLevel() { return QThread::currentThread()->loopLevel(); }

  // While an event goes on, whatever waits inside it gets events: a box its answer, a tick whatever
  // nests in it. The toolkit's own steps from one event to the next do not count.
  void ComeInBetween() {
    if (depth == 0) return;
    Listen();
    const bool box_waits = LoopLevel() > level;
    if (!box_waits && !outside.IsLetting) return;
    if (box_waits && (IsOver() || ++in_this_one > kMostInOne)) {
      DismissWhatIsUp();
    } else if (!IsOver() && (box_waits || (depth <= kDeepest && hands.dice.OneIn(kNestOneIn)))) {
      MakeOne();
    }
  }

  // A timer of zero time fires with the next events that run. It does not fire again while it is
  // being handled, so each time it is a new one.
  void Listen() {
    if (listening == 0) listening = startTimer(0);
  }
  void timerEvent(QTimerEvent*) override {
    killTimer(std::exchange(listening, 0));
    ComeInBetween();
  }

  void Check() {
    const bool thorough = sitting.Events % kThoroughEvery == 0;
    sitting.Wrong = WhatIsWrong(desk, std::exchange(freedom, {}), last, thorough);
    if (sitting.Wrong.empty()) sitting.Wrong = WhatDiffers(skin, thorough);
  }
};

}  // namespace

Stay SitDown(std::uint64_t seed, int events,
             const std::function<void(const std::string& event)>& telling) {
  Table table(seed, events, telling);
  while (!table.IsOver()) {
    table.in_this_one = 0;
    table.MakeOne();
    QCoreApplication::processEvents();
    table.Check();
  }
  while (SomethingIsUp()) DismissWhatIsUp();
  table.sitting.Failures = table.outside.Failures;
  return table.sitting;
}

}  // namespace orvane
