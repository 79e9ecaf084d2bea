#include "random/windows/hands.h"

#include <algorithm>

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "desk/actions.h"
#include "desktop/widgets/row_list.h"
#include "desktop/windows/window_widget.h"
#include "random/windows/strike.h"

namespace orvane {
namespace {

constexpr Qt::Key kKeys[] = {Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Alt,      Qt::Key_Escape,
                             Qt::Key_F1,    Qt::Key_Return,    Qt::Key_Space,    Qt::Key_Up,
                             Qt::Key_Down,  Qt::Key_Left,      Qt::Key_Right,    Qt::Key_Home,
                             Qt::Key_End,   Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Delete,
                             Qt::Key_F10,   Qt::Key_Backspace, Qt::Key_Menu,     Qt::Key_Enter,
                             Qt::Key_F6,    Qt::Key_F8,        Qt::Key_Plus,     Qt::Key_Minus,
                             Qt::Key_Comma, Qt::Key_Period,    Qt::Key_Semicolon};
constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton,  Qt::LeftButton,  Qt::LeftButton,
                                        Qt::RightButton, Qt::RightButton, Qt::MiddleButton};
constexpr Qt::KeyboardModifier kModifiers[] = {Qt::NoModifier,      Qt::NoModifier,
                                               Qt::NoModifier,      Qt::ShiftModifier,
                                               Qt::ControlModifier, Qt::AltModifier};
constexpr const char* kTexts[] = {"0",     "255", "300", "-1",   "abc", "",    "1e2",
                                  "99999", " 7 ", "x/y", "abcd", "..",  "1 2", "9"};

struct Happening {
  int Chances;
  void (*Do)(Hands& hands, QWidget& window);
};

void Tell(Hands& hands, const std::string& event) { hands.Telling(event); }

std::string At(const QWidget& window, QPoint place) {
  return " " + window.objectName().toStdString() + " " + window.metaObject()->className() + " " +
         std::to_string(place.x()) + " " + std::to_string(place.y());
}

QWidget* AnyWindow(Hands& hands) {
  std::vector<QWidget*> windows;
  for (Window* window : hands.skin.desk.windows) {
    if (window->Visible) windows.push_back(&hands.skin.WindowOf(*window));
  }
  return windows.empty() ? nullptr : hands.dice.Of(std::span<QWidget*>(windows));
}

QWidget* Audience(Hands& hands) {
  if (QWidget* menu = QApplication::activePopupWidget()) return menu;
  if (QWidget* box = QApplication::activeModalWidget()) return box;
  return AnyWindow(hands);
}

template <class T>
T* AnyOf(Hands& hands, const QWidget& window) {
  std::vector<T*> shown;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* wanted = dynamic_cast<T*>(widget);
    if (wanted != nullptr && widget->isVisible() && widget->window() == &window) {
      shown.push_back(wanted);
    }
  }
  return shown.empty() ? nullptr : hands.dice.Of(std::span<T*>(shown));
}

QPoint Within(Dice& dice, const QWidget& widget, int beyond) {
  return {dice.Between(-beyond, widget.width() + beyond),
          dice.Between(-beyond, widget.height() + beyond)};
}

// On a widget of the window, or anywhere.
QPoint Somewhere(Hands& hands, QWidget& window) {
  QWidget* widget = hands.dice.OneIn(5) ? nullptr : AnyOf<QWidget>(hands, window);
  if (widget == nullptr) return Within(hands.dice, window, 10);
  return widget->mapTo(&window, Within(hands.dice, *widget, 0));
}

void Press(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  const Qt::MouseButton button = hands.dice.Of(std::span(kButtons));
  Tell(hands, "press " + std::to_string(button) + At(window, place));
  QTest::mousePress(window.windowHandle(), button, {}, place);
}

void LetGo(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  const Qt::MouseButton button = hands.dice.Of(std::span(kButtons));
  Tell(hands, "release " + std::to_string(button) + At(window, place));
  QTest::mouseRelease(window.windowHandle(), button, {}, place);
}

void ClickSomewhere(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  const Qt::MouseButton button = hands.dice.Of(std::span(kButtons));
  Tell(hands, "click " + std::to_string(button) + At(window, place));
  const Qt::KeyboardModifier with = hands.dice.Of(std::span(kModifiers));
  const QPointer<QWindow> handle = window.windowHandle();
  QTest::mouseMove(handle.data(), place);
  if (handle != nullptr) ClickOn(window, button, with, place);
}

void ClickTwice(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  Tell(hands, "click twice" + At(window, place));
  const QPointer<QWindow> handle = window.windowHandle();
  ClickOn(window, Qt::LeftButton, {}, place);
  if (handle != nullptr) ClickOn(window, Qt::LeftButton, {}, place);
}

void ChooseARow(Hands& hands, QWidget& window) {
  auto* list = AnyOf<RowList>(hands, window);
  if (list == nullptr || list->Rows().isEmpty()) return ClickSomewhere(hands, window);
  const int row = list->FirstRow() + hands.dice.Below(std::max(1, list->WholeRows()));
  const QPoint place = list->mapTo(&window, list->RowMiddle(row));
  const bool twice = hands.dice.OneIn(3);  // this opens a folder, or plays a tune
  Tell(hands,
       (twice ? "choose twice row " : "choose row ") + std::to_string(row) + At(window, place));
  const QPointer<QWindow> handle = window.windowHandle();
  ClickOn(window, Qt::LeftButton, {}, place);
  if (twice && handle != nullptr) ClickOn(window, Qt::LeftButton, {}, place);
}

void MoveTo(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  Tell(hands, "move" + At(window, place));
  QTest::mouseMove(window.windowHandle(), place);
}

void TurnWheel(Hands& hands, QWidget& window) {
  const QPoint place = Somewhere(hands, window);
  const QPoint turn(0, hands.dice.OneIn(2) ? 120 : -360);
  Tell(hands, "wheel " + std::to_string(turn.y()) + At(window, place));
  QWidget* under = window.childAt(place);
  QWidget& taker = under == nullptr ? window : *under;
  QWheelEvent event(taker.mapFrom(&window, place), window.mapToGlobal(place), {}, turn,
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&taker, &event);
}

void PressAKey(Hands& hands, QWidget& window) {
  const Qt::Key key = hands.dice.OneIn(4) ? static_cast<Qt::Key>(hands.dice.Between('0', 'Z'))
                                          : hands.dice.Of(std::span(kKeys));
  const Qt::KeyboardModifier with = hands.dice.Of(std::span(kModifiers));
  Tell(hands,
       "key " + std::to_string(key) + " with " + std::to_string(with) + At(window, QPoint(0, 0)));
  StrikeKey(QPointer<QWindow>(window.windowHandle()), key, with);
}

void Type(Hands& hands, QWidget& window) {
  const QPointer<QLineEdit> box = AnyOf<QLineEdit>(hands, window);
  if (box == nullptr) return PressAKey(hands, window);
  const char* text = hands.dice.Of(std::span(kTexts));
  Tell(hands, "type \"" + std::string(text) + "\" into " + box->objectName().toStdString());
  box->setFocus();
  if (hands.dice.OneIn(2)) box->selectAll();
  for (const char* letter = text; *letter != 0 && box != nullptr; ++letter) {
    QTest::keyPress(box.data(), *letter);
    if (box != nullptr) QTest::keyRelease(box.data(), *letter);
  }
}

void OpenAMenu(Hands& hands, QWidget& window) {
  auto* strip = AnyOf<QMenuBar>(hands, window);
  if (strip == nullptr) return ClickSomewhere(hands, window);
  const QList<QAction*> menus = strip->actions();
  const auto chosen = static_cast<qsizetype>(hands.dice.Below(static_cast<int>(menus.size())));
  const QPoint place = strip->mapTo(&window, strip->actionGeometry(menus[chosen]).center());
  Tell(hands, "open menu " + std::to_string(chosen) + At(window, place));
  QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
}

// As the windows do it: not while a box is open.
void TickATimer(Hands& hands, QWidget&) {
  const bool front = hands.dice.OneIn(10);
  Tell(hands, front ? "tick the splash" : "tick");
  Orvane_Desk& desk = hands.skin.desk;
  if (!hands.outside.BoxIsUp()) Tick(desk, front ? desk.front.Timer1 : desk.main.Timer1);
}

// Its menu is never shown, so it is opened directly; not while a box is open.
void OpenTheChooser(Hands& hands, QWidget&) {
  Tell(hands, "open the music chooser");
  Orvane_Desk& desk = hands.skin.desk;
  if (hands.outside.BoxIsUp()) return;
  hands.outside.SoundError = hands.dice.OneIn(3) ? hands.dice.Between(1, 400) : 0;
  Click(desk, desk.main.OpMfL, Reach::Forced);
}

void MoveFocus(Hands& hands, QWidget& window) {
  QWidget* widget = AnyOf<QWidget>(hands, window);
  if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) {
    Tell(hands, "come to the front" + At(window, QPoint(0, 0)));
    window.activateWindow();
    return;
  }
  Tell(hands, "focus " + widget->objectName().toStdString());
  widget->setFocus(hands.dice.OneIn(2) ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void Reshape(Hands& hands, QWidget& window) {
  const int how = hands.dice.Below(6);
  Tell(hands, "reshape " + std::to_string(how) + At(window, QPoint(0, 0)));
  switch (how) {
    case 0:
      return window.showMaximized();
    case 1:
      return window.showMinimized();
    case 2:
      return window.showFullScreen();
    case 3:  // as a window manager does it
      return window.windowHandle()->setGeometry(
          hands.dice.Between(0, 200), hands.dice.Between(0, 200), hands.dice.Between(1, 1600),
          hands.dice.Between(1, 1200));
    default:
      return window.showNormal();
  }
}

// Closing the main window ends the program, and so the sitting.
void CloseIt(Hands& hands, QWidget& window) {
  const bool ends = window.objectName() == QLatin1String("Orvane_Desk");
  if (ends && !hands.dice.OneIn(6)) return ClickSomewhere(hands, window);
  Tell(hands, "close" + At(window, QPoint(0, 0)));
  window.close();
}

void ChangeTheWorld(Hands& hands, QWidget&) {
  const int what = hands.dice.Below(6);
  Tell(hands, "outside " + std::to_string(what));
  if (what < 4) hands.outside.SavesFail = what < 2;
  if (what > 3) hands.outside.HasPrinter = what == 4;
}

constexpr Happening kInWindows[] = {
    {260, ClickSomewhere}, {60, Press},      {80, LetGo},         {160, MoveTo},
    {25, ClickTwice},      {40, TurnWheel},  {110, PressAKey},    {25, Type},
    {70, OpenAMenu},       {70, TickATimer}, {25, ChooseARow},    {25, MoveFocus},
    {12, Reshape},         {4, CloseIt},     {8, ChangeTheWorld}, {5, OpenTheChooser},
};
// A menu or a box offers fewer actions, and one of them is to end it.
constexpr Happening kInBoxes[] = {
    {60, ClickSomewhere}, {8, Press},      {8, LetGo}, {15, MoveTo}, {3, ClickTwice},
    {3, TurnWheel},       {45, PressAKey}, {40, Type}, {5, CloseIt},
};

template <std::size_t kCount>
void DoOneOf(const Happening (&happenings)[kCount], Hands& hands, QWidget& window) {
  int all = 0;
  for (const Happening& happening : happenings) all += happening.Chances;
  int chance = hands.dice.Below(all);
  for (const Happening& happening : happenings) {
    chance -= happening.Chances;
    if (chance < 0) return happening.Do(hands, window);
  }
}

}  // namespace

bool SomethingIsUp() {
  return QApplication::activePopupWidget() != nullptr ||
         QApplication::activeModalWidget() != nullptr;
}

void DismissWhatIsUp() {
  if (QWidget* menu = QApplication::activePopupWidget()) {
    menu->close();
  } else if (QWidget* box = QApplication::activeModalWidget()) {
    box->close();
  }
}

void OneEvent(Hands& hands) {
  QWidget* window = Audience(hands);
  if (window == nullptr || window->windowHandle() == nullptr) return;
  if (SomethingIsUp()) {
    DoOneOf(kInBoxes, hands, *window);
  } else {
    DoOneOf(kInWindows, hands, *window);
  }
}

}  // namespace orvane
