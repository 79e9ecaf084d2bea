#include "desktop/reader/accessible_words.h"

#include <utility>

#include <QAccessible>

#include "controls/spoken.h"
#include "desk/orvane_desk.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/host.h"
#include "narration/atom_walk.h"
#include "narration/spoken_words.h"

namespace orvane {
namespace {

constexpr int kSoon = 30;  // milliseconds

// Gives the widget its words of this moment, which tells readers. True: they have changed.
bool Renew(ControlView& view) {
  const Orvane_Desk& desk = view.host.desk;
  const QString name = QString::fromStdString(NameNow(desk, view.control));
  const QString description = QString::fromStdString(DescriptionNow(desk, view.control));
  const bool named = view.widget.accessibleName() != name;
  const bool described = view.widget.accessibleDescription() != description;
  if (named) view.widget.setAccessibleName(name);
  if (described) view.widget.setAccessibleDescription(description);
  return named || described;
}

// A name lies within the area that holds it; the rest of the map is always shown.
bool IsNameOnMap(const Control& control) {
  return RoleOf(control) == SpokenRole::Text && control.Parent != nullptr &&
         control.Parent->Row.Kind == ControlKind::PictureBox;
}

}  // namespace

Announcer::Announcer(QWidget& ground) : QWidget(&ground) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(0, 0, 1, 1);
  setAccessibleName(QStringLiteral("Announcements"));
  lower();
  show();
}

void Announcer::Say(const QString& words) {
  setAccessibleName(words);
  for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(this, kind);
    QAccessible::updateAccessibility(&event);
  }
}

AccessibleWords::AccessibleWords(Orvane_Desk& desk, HostOf host_of)
    : desk_(desk), host_of_(std::move(host_of)) {
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { Tell(); });
}

void AccessibleWords::Soon(const Window& where) {
  if (!QAccessible::isActive()) return;
  on_desk_ = on_desk_ || &where == &desk_.main;
  map_ = map_ || &where == &desk_.plot;
  if ((on_desk_ || map_) && !soon_.isActive()) soon_.start();
}

void AccessibleWords::Tell() {
  if (std::exchange(on_desk_, false)) TellPicture();
  if (std::exchange(map_, false)) TellMap();
}

void AccessibleWords::Say(Window& where, const QString& words) {
  QPointer<Announcer>& announcer = announcers_[&where];
  if (announcer == nullptr) announcer = new Announcer(host_of_(where).Desk());
  announcer->Say(words);
}

void AccessibleWords::TellPicture() {
  Orvane_Desk& desk = desk_;
  if (!desk.main.Visible) return;  // nobody looks, and the window may not exist yet
  Host& window = host_of_(desk.main);
  ControlView& picture = *window.ViewOf(desk.main.Picture1);
  const QString before = picture.widget.accessibleName();
  const bool told = Renew(picture);
  Renew(*window.ViewOf(desk.main.P_Sterio));
  if (!told) return;
  QStringList news;
  const QString shown = picture.widget.accessibleName();
  if (shown != before) news.append(shown);
  const std::string walk = WalkWords(desk);
  if (!walk.empty()) news.append(QString::fromStdString(walk));
  if (!news.isEmpty()) Say(desk.main, news.join(QStringLiteral(". ")));
}

void AccessibleWords::TellMap() {
  if (!desk_.plot.Visible) return;
  QStringList names;
  for (const Control* control : desk_.plot.Controls) {
    if (IsNameOnMap(*control) && control->IsOpenToUser()) {
      names.append(QString::fromStdString(SpokenName(*control)));
    }
  }
  const QString before = std::exchange(on_map_, names.join(QStringLiteral(", ")));
  if (!on_map_.isEmpty() && on_map_ != before) Say(desk_.plot, on_map_);
}

}  // namespace orvane
